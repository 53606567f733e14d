#include "qt/views/ComboBoxView.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>

#include "base/ScopeGuard.h"
#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/looks/Theme.h"
#include "qt/views/BoxPaste.h"
#include "qt/views/ByteValidator.h"

namespace tessel {
namespace {

constexpr int kMostRowsDropped = 12;
constexpr int kNoteRole = Qt::UserRole + 1;
constexpr int kGapBeforeNote = 14;

/// Rows with their notes in a column of its own. The toolkit's own delegate draws lower rows.
class RowsWithNotes : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  int noteColumn = 0;  // in pixels

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    const QString note = index.data(kNoteRole).toString();
    if (note.isEmpty()) return size;
    const int noteWidth = option.fontMetrics.horizontalAdvance(note) + kGapBeforeNote;
    return {noteColumn + noteWidth, size.height()};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const QString note = index.data(kNoteRole).toString();
    if (note.isEmpty()) return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(selected ? option.palette.color(QPalette::HighlightedText)
                             : Theme(option.palette).QuietText());
    const QRect room = option.rect.adjusted(noteColumn, 0, -4, 0);
    painter->drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(note, Qt::ElideRight, room.width()));
    painter->restore();
  }
};

}  // namespace

ComboBoxView::ComboBoxView(ComboBox& model, QWidget* parent) : QComboBox(parent), model_(model) {
  setMaxVisibleItems(kMostRowsDropped);
  setItemDelegate(new RowsWithNotes(this));
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
  auto* paste = new BoxPaste(this);
  installEventFilter(paste);
  lineEdit()->installEventFilter(paste);
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

void ComboBoxView::TakeNotes() {
  const QSignalBlocker quiet(this);
  const QStringList notes = notes_ ? notes_() : QStringList();
  int widest = 0;
  for (int i = 0; i < count(); ++i) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    setItemData(i, notes.value(i), kNoteRole);
  }
  static_cast<RowsWithNotes*>(itemDelegate())->noteColumn = widest + kGapBeforeNote;
  const int needed = notes.isEmpty() ? 0 : view()->sizeHintForColumn(0) + kGapBeforeNote;
  view()->setMinimumWidth(std::min(needed, screen()->availableGeometry().width() / 2));
}

void ComboBoxView::showPopup() {
  TakeNotes();
  QComboBox::showPopup();
}

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
