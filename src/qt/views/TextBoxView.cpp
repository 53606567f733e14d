#include "qt/views/TextBoxView.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include "qt/base/ControlView.h"
#include "qt/base/QtText.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/views/BoxPaste.h"
#include "qt/views/ByteValidator.h"

namespace tessel {

TextBoxView::TextBoxView(TextBox& model, QWidget* parent) : QLineEdit(parent), model_(model) {
  setMaxLength(kLongestTyped);
  installEventFilter(new BoxPaste(this));
  auto* validator = new ByteValidator(this);
  setValidator(validator);
  connect(validator, &ByteValidator::refused, this,
          [this](const QString& reason) { ShowRefusal(*this, reason); });
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& text) { model_.Type(TypedBytes(text)); });
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  selectAll_ = model_.SelectAllRequested.Connect([this] {
    selectAll();
    selectAllWanted_ = true;
  });
  Draw();
}

void TextBoxView::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  selectAllWanted_ = false;
  if (MovedByPerson(event->reason())) model_.Enter();
}

// The press that brought the focus would leave only a caret where everything is to be selected.
void TextBoxView::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (selectAllWanted_ && !hasSelectedText()) selectAll();
  selectAllWanted_ = false;
}

void TextBoxView::Draw() {
  const QSignalBlocker quiet(this);
  const QString wanted = ShownText(model_.Text());
  if (text() != wanted) setText(wanted);
  DrawState(*this, model_);
}

MultiLineTextBoxView::MultiLineTextBoxView(TextBox& model, QWidget* parent)
    : QPlainTextEdit(parent), model_(model) {
  setTabChangesFocus(true);
  auto* paste = new BoxPaste(this);
  installEventFilter(paste);
  viewport()->installEventFilter(paste);
  connect(this, &QPlainTextEdit::textChanged, this, &MultiLineTextBoxView::TakeText);
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
  selectAll_ = model_.SelectAllRequested.Connect([this] { selectAll(); });
  Draw();
}

// The widget's plain text has blanks for no-break spaces.
QString MultiLineTextBoxView::ExactText() const {
  QString text = document()->toRawText();
  text.replace(QChar::ParagraphSeparator, '\n');
  return text.replace(QChar::LineSeparator, '\n');
}

void MultiLineTextBoxView::TakeText() {
  const QString text = ExactText();
  if (const auto bytes = BytesOfText(text)) return model_.Type(*bytes);
  Draw();
  ShowRefusal(*this, RefusalOf(text));
}

void MultiLineTextBoxView::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  if (MovedByPerson(event->reason())) model_.Enter();
}

void MultiLineTextBoxView::Draw() {
  const QSignalBlocker quiet(this);
  const QString wanted = ShownText(model_.Text()).replace("\r\n", "\n");
  if (ExactText() != wanted) setPlainText(wanted);
  DrawState(*this, model_);
}

}  // namespace tessel
