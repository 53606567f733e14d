#include "qt/views/ComboBoxView.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "base/ScopeGuard.h"
#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/views/ByteValidator.h"

namespace tessel {
namespace {

constexpr int kMostRowsDropped = 12;

}  // namespace

ComboBoxView::ComboBoxView(ComboBox& model, QWidget* parent) : QComboBox(parent), model_(model) {
  setMaxVisibleItems(kMostRowsDropped);
  setItemDelegate(new QStyledItemDelegate(this));  // the toolkit's own draws lower rows
  if (model_.Editable()) MakeEditable();
  connect(this, &QComboBox::activated, this, [this](int entry) { model_.Pick(entry); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  Draw();
}

void ComboBoxView::MakeEditable() {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  lineEdit()->setMaxLength(kLongestTyped);
  auto* validator = new ByteValidator(this);
  setValidator(validator);
  connect(validator, &ByteValidator::refused, this,
          [this](const QString& reason) { ShowRefusal(*this, reason); });
  // The toolkit takes a typed text that equals an entry for a pick of it, on Return and when the
  // focus leaves. Here only a pick is a pick.
  setDuplicatesEnabled(true);
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, &ComboBoxView::Typed);
}

// The model passes through states between the old text and the new one, which are not drawn: the
// caret stays where the person types.
void ComboBoxView::Typed(const QString& text) {
  const int caret = lineEdit()->cursorPosition();
  {
    const ScopeGuard done([this] { typing_ = false; });
    typing_ = true;
    model_.Type(TypedBytes(text));
  }
  Draw();
  if (lineEdit()->text() == text) lineEdit()->setCursorPosition(caret);
}

// Scrolling the panel must not change values on the way.
void ComboBoxView::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ComboBoxView::Draw() {
  if (typing_) return;
  const QSignalBlocker quiet(this);
  if (model_.List() != shown_) {
    const QString text = currentText();
    clear();
    QStringList entries;
    for (const std::string& entry : model_.List()) entries += ShownText(entry);
    addItems(entries);
    if (isEditable()) setEditText(text);
    shown_ = model_.List();
  }
  DrawText();
  DrawState(*this, model_);
}

void ComboBoxView::DrawText() {
  const QString text = ShownText(model_.Text());
  if (currentIndex() != model_.ListIndex()) setCurrentIndex(model_.ListIndex());
  if (!isEditable()) {
    // What stays in the box while no entry is selected.
    setPlaceholderText(text);
    return;
  }
  if (lineEdit()->text() != text) setEditText(text);
}

}  // namespace tessel
