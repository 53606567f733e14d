// Keys, input methods, mouse, and drag and drop of a ScintillaView.
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>

#include "base/RuntimeError.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorKeys.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

bool IsPrintable(const QString& text) {
  return !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate());
}

/// Windows and some X11 keymaps report AltGr as Ctrl+Alt.
bool CanType(Qt::KeyboardModifiers modifiers) {
  const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
  const bool alt = modifiers.testFlag(Qt::AltModifier);
  return ctrl == alt && !modifiers.testFlag(Qt::MetaModifier);
}

MouseButton ModelButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::RightButton:
      return MouseButton::kRight;
    case Qt::MiddleButton:
      return MouseButton::kMiddle;
    default:
      return MouseButton::kLeft;
  }
}

bool IsKnown(Qt::MouseButton button) {
  return button == Qt::LeftButton || button == Qt::RightButton || button == Qt::MiddleButton;
}

}  // namespace

// --- Keys

struct ScintillaView::KeyCommand {
  QKeyCombination keys;
  void (ScintillaView::*run)();
};

const std::vector<ScintillaView::KeyCommand>& ScintillaView::KeyCommands() {
  using View = ScintillaView;
  static const std::vector<KeyCommand> commands = {
      {Qt::CTRL | Qt::Key_Z, &View::Undo},
      {Qt::ALT | Qt::Key_Backspace, &View::Undo},
      {Qt::CTRL | Qt::Key_Y, &View::Redo},
      {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &View::Redo},
      {Qt::CTRL | Qt::Key_X, &View::Cut},
      {Qt::SHIFT | Qt::Key_Delete, &View::Cut},
      {Qt::CTRL | Qt::Key_C, &View::Copy},
      {Qt::CTRL | Qt::Key_Insert, &View::Copy},
      {Qt::CTRL | Qt::Key_V, &View::Paste},
      {Qt::SHIFT | Qt::Key_Insert, &View::Paste},
      {Qt::CTRL | Qt::Key_Tab, &View::LeaveForwards},
      {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, &View::LeaveBackwards},
      {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, &View::LeaveBackwards},
      {QKeyCombination(Qt::Key_Menu), &View::ShowMenuAtCaret},
      {Qt::SHIFT | Qt::Key_F10, &View::ShowMenuAtCaret},
  };
  return commands;
}

bool ScintillaView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto pressed = key->keyCombination();
    const bool own = std::ranges::any_of(
        KeyCommands(), [&](const KeyCommand& command) { return command.keys == pressed; });
    if (own || key->matches(QKeySequence::SelectAll) || key->matches(QKeySequence::Delete)) {
      event->accept();
      return true;
    }
  }
  return QsciScintillaBase::event(event);
}

void ScintillaView::keyPressEvent(QKeyEvent* event) {
  const auto pressed =
      QKeyCombination(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key()));
  for (const KeyCommand& command : KeyCommands()) {
    if (command.keys != pressed) continue;
    event->accept();
    (this->*command.run)();
    return;
  }
  const bool types = IsPrintable(event->text()) && CanType(event->modifiers());
  if (types && !BytesOfText(event->text())) {
    event->accept();
    Refuse(RefusalOf(event->text()));
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) UseLineEndOfText();
  mirror_.ByHand([&] { QsciScintillaBase::keyPressEvent(event); }, types);
}

void ScintillaView::UseLineEndOfText() {
  const std::string_view lineEnd = LineEndOfReturn(model_.Bytes());
  const int mode = lineEnd == "\n" ? SC_EOL_LF : lineEnd == "\r" ? SC_EOL_CR : SC_EOL_CRLF;
  SendScintilla(SCI_SETEOLMODE, mode);
}

void ScintillaView::Insert(const std::string& bytes, bool typing) {
  mirror_.ByHand(
      [&] {
        mirror_.TakeOver();
        mirror_.OpenUndoStep(typing);
        model_.EditByHand(model_.SelStart(), model_.SelLength(), bytes);
      },
      typing);
}

void ScintillaView::inputMethodEvent(QInputMethodEvent* event) {
  // Scintilla would put the text being composed into the document for a while, and rely on its own
  // undo to take it out again.
  event->accept();
  ShowPreedit(event->preeditString());
  if (event->commitString().isEmpty() && event->replacementLength() == 0) return;
  const auto bytes = BytesOfText(event->commitString());
  if (!bytes) {
    Refuse(RefusalOf(event->commitString()));
    return;
  }
  mirror_.ByHand([&] {
    mirror_.TakeOver();
    if (event->replacementLength() > 0) {
      model_.SelectByHand(model_.SelStart() + event->replacementStart(),
                          event->replacementLength());
    }
  });
  Insert(*bytes, IsPrintable(event->commitString()));
}

void ScintillaView::ShowPreedit(const QString& text) {
  if (preedit_ == nullptr) {
    preedit_ = new QLabel(viewport());
    preedit_->setAutoFillBackground(true);
    preedit_->setBackgroundRole(QPalette::Base);
    preedit_->setForegroundRole(QPalette::Text);
  }
  QFont underlined = font();
  underlined.setUnderline(true);
  preedit_->setFont(underlined);
  preedit_->setTextFormat(Qt::PlainText);
  preedit_->setText(text);
  preedit_->adjustSize();
  preedit_->move(CaretPoint());
  preedit_->setVisible(!text.isEmpty());
}

// --- Commands

void ScintillaView::Undo() {
  mirror_.ByHand([this] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    model_.Undo();
  });
}

void ScintillaView::Redo() {
  mirror_.ByHand([this] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    model_.Redo();
  });
}

void ScintillaView::Copy() {
  if (model_.SelLength() == 0) return;
  clipboard_.Clear();
  clipboard_.SetText(model_.SelText());
}

void ScintillaView::Cut() {
  if (model_.SelLength() == 0) return;
  Copy();
  Insert({}, false);
}

void ScintillaView::Paste() {
  try {
    const std::string bytes = clipboard_.GetText();
    if (!bytes.empty()) Insert(bytes, false);
  } catch (const RuntimeError& error) {
    Refuse(QString::fromUtf8(error.what()));
  }
}

void ScintillaView::LeaveForwards() { QAbstractScrollArea::focusNextPrevChild(true); }
void ScintillaView::LeaveBackwards() { QAbstractScrollArea::focusNextPrevChild(false); }

void ScintillaView::ShowMenuAtCaret() {
  const auto line = SendScintilla(SCI_TEXTHEIGHT, 0UL);
  popupPosition_ = viewport()->mapToGlobal(CaretPoint() + QPoint(0, static_cast<int>(line)));
  model_.ReleaseMouse(MouseButton::kRight);
}

QPoint ScintillaView::CaretPoint() const {
  const long caret = SendScintilla(SCI_GETCURRENTPOS);
  return {static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, caret)),
          static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, caret))};
}

// --- Mouse

std::optional<Position> ScintillaView::OffsetAt(QPoint point) const {
  const long left = SendScintilla(SCI_GETMARGINWIDTHN, 0UL);
  if (point.x() < left) return std::nullopt;
  return mirror_.OffsetOf(SendScintilla(
      SCI_POSITIONFROMPOINT, static_cast<unsigned long>(point.x()), static_cast<long>(point.y())));
}

void ScintillaView::MoveCaretForMenu(QPoint at) {
  const auto offset = OffsetAt(at);
  if (!offset) return;
  const bool inSelection = *offset >= model_.SelStart() && *offset <= model_.SelEnd();
  if (!inSelection) model_.SelectByHand(*offset, 0);
}

void ScintillaView::PasteFromMouse(QPoint at) {
  const QClipboard* system = QGuiApplication::clipboard();
  const auto offset = OffsetAt(at);
  if (!system->supportsSelection() || !offset) return;
  const QMimeData* held = system->mimeData(QClipboard::Selection);
  if (held == nullptr || !HoldsText(*held)) return;
  try {
    const std::string bytes = BytesOfMime(*held);
    model_.SelectByHand(*offset, 0);
    Insert(bytes, false);
  } catch (const RuntimeError& error) {
    Refuse(QString::fromUtf8(error.what()));
  }
}

void ScintillaView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    mirror_.ByHand([&] { MoveCaretForMenu(event->position().toPoint()); });
    return;
  }
  if (event->button() != Qt::LeftButton) return;
  mirror_.ByHand([&] { QsciScintillaBase::mousePressEvent(event); });
}

void ScintillaView::mouseMoveEvent(QMouseEvent* event) {
  mirror_.ByHand([&] { QsciScintillaBase::mouseMoveEvent(event); });
}

void ScintillaView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  mirror_.ByHand([&] { QsciScintillaBase::mouseDoubleClickEvent(event); });
}

void ScintillaView::mouseReleaseEvent(QMouseEvent* event) {
  const auto button = event->button();
  const QPoint at = event->position().toPoint();
  popupPosition_ = event->globalPosition().toPoint();
  if (button == Qt::LeftButton)
    mirror_.ByHand([&] { QsciScintillaBase::mouseReleaseEvent(event); });
  if (button == Qt::MiddleButton) PasteFromMouse(at);
  if (IsKnown(button)) model_.ReleaseMouse(ModelButton(button));
}

void ScintillaView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();  // the model's MouseUp shows the menu
}

void ScintillaView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QsciScintillaBase::wheelEvent(event);
    return;
  }
  event->accept();
  if (event->angleDelta().y() != 0) {
    SendScintilla(event->angleDelta().y() > 0 ? SCI_ZOOMIN : SCI_ZOOMOUT);
  }
}

// --- Drag and drop

void ScintillaView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) {
    event->ignore();  // files are opened by the host, not inserted
    return;
  }
  QsciScintillaBase::dragEnterEvent(event);
}

void ScintillaView::dropEvent(QDropEvent* event) {
  QDragLeaveEvent leaving;
  QsciScintillaBase::dragLeaveEvent(&leaving);  // takes the mark of the drop place away
  const auto offset = OffsetAt(event->position().toPoint());
  if (!offset || !HoldsText(*event->mimeData())) return;
  const bool fromHere = event->source() == this || event->source() == viewport();
  try {
    const std::string bytes = BytesOfMime(*event->mimeData());
    Drop(*offset, bytes, fromHere && event->dropAction() == Qt::MoveAction);
    // What comes from here has been moved already: the source must not remove it once more.
    if (fromHere) event->setDropAction(Qt::CopyAction);
    event->accept();
  } catch (const RuntimeError& error) {
    event->ignore();
    Refuse(QString::fromUtf8(error.what()));
  }
}

void ScintillaView::Drop(Position at, const std::string& bytes, bool moving) {
  const Position start = model_.SelStart();
  const Position length = model_.SelLength();
  if (moving && at >= start && at <= start + length) return;
  mirror_.ByHand([&] {
    mirror_.TakeOver();
    mirror_.CloseUndoStep();
    mirror_.OpenUndoStep(false);
    if (moving) model_.EditByHand(start, length, {});
    const Position target = moving && at > start ? at - length : at;
    model_.EditByHand(target, 0, bytes);
    model_.SelectByHand(target, std::ssize(bytes));
  });
}

bool ScintillaView::canInsertFromMimeData(const QMimeData* source) const {
  return HoldsText(*source);
}

QByteArray ScintillaView::fromMimeData(const QMimeData* source, bool& rectangular) const {
  rectangular = false;
  try {
    return QByteArray::fromStdString(Utf8OfBytes(BytesOfMime(*source)));
  } catch (const RuntimeError& error) {
    const_cast<ScintillaView*>(this)->Refuse(QString::fromUtf8(error.what()));
    return {};
  }
}

QMimeData* ScintillaView::toMimeData(const QByteArray&, bool) const {
  // The text that Scintilla passes has blanks for NULs; all its ways here take the selection.
  const long start = SendScintilla(SCI_GETSELECTIONSTART);
  const auto selected = document_.Utf8(start, SendScintilla(SCI_GETSELECTIONEND) - start);
  return MimeOfBytes(BytesOfUtf8(selected).value_or(std::string())).release();
}

}  // namespace tessel
