#include "host/find/FindField.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "host/find/FindHistory.h"

namespace tessel {
namespace {

/// It gives way in a narrow window before anything beside it is cut.
constexpr int kLeastCharacters = 8;

}  // namespace

FindField::FindField(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kLeastCharacters);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addItems(SearchHistory());
  setEditText({});
  connect(lineEdit(), &QLineEdit::textEdited, this, &FindField::edited);
  connect(this, &QComboBox::textActivated, this, &FindField::edited);
}

void FindField::Offer(const QString& text) {
  setEditText(text);
  lineEdit()->selectAll();
}

void FindField::Remember() {
  const QString text = Text();
  RememberSearch(text);
  const QSignalBlocker quietly(this);
  clear();
  addItems(SearchHistory());
  setEditText(text);
}

bool FindField::TakeKey(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if ((enter || key.key() == Qt::Key_Down) && modifiers == Qt::NoModifier) {
    emit nextWanted();
  } else if ((enter && modifiers == Qt::ShiftModifier) ||
             (key.key() == Qt::Key_Up && modifiers == Qt::NoModifier)) {
    emit previousWanted();
  } else {
    return false;
  }
  return true;
}

void FindField::keyPressEvent(QKeyEvent* event) {
  if (!TakeKey(*event)) QComboBox::keyPressEvent(event);
}

void FindField::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  const auto reason = event->reason();
  if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) emit entered();
}

}  // namespace tessel
