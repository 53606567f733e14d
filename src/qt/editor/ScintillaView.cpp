#include "qt/editor/ScintillaView.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "base/RuntimeError.h"
#include "qt/base/HeldText.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorKeys.h"
#include "qt/editor/EditorSetUp.h"
#include "qt/editor/PreeditLabel.h"

namespace tessel {
namespace {

constexpr int kRestingCaretWidth = 4;
constexpr int kRestingLine = 9;  // among the markers

std::optional<MouseButton> ModelButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::kLeft;
    case Qt::RightButton:
      return MouseButton::kRight;
    case Qt::MiddleButton:
      return MouseButton::kMiddle;
    default:
      return std::nullopt;
  }
}

}  // namespace

ScintillaView::ScintillaView(RichTextBox& model, Clipboard& clipboard, QWidget* parent)
    : QsciScintillaBase(parent),
      model_(model),
      accessibility_(*this),
      document_(*this),
      mirror_(model, document_),
      commands_(model, mirror_, clipboard),
      lineNumbers_(*this),
      outline_(*this) {
  setAccessibleName(tr("Editor"));
  setAccessibleDescription(tr("The text of the document"));
  SetUpEditor(*this);
  ApplyTheme();
  lineNumbers_.FollowLines();
  ListenToScintilla();
  ListenToParts();
  mirror_.Follow();
}

void ScintillaView::ListenToScintilla() {
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
          [this](int position, int type, const char*, int length) {
            if ((type & SC_MOD_BEFOREINSERT) != 0) mirror_.BeforeInsertion(position, length);
            if ((type & SC_MOD_BEFOREDELETE) != 0) mirror_.BeforeDeletion(position, length);
          });
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this] {
    mirror_.SelectionMayHaveMoved();
    outline_.Follow();
    FollowRestingCaret();
  });
  connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this,
          [this](int end) { mirror_.ColoursNeeded(end); });
  connect(this, &QsciScintillaBase::SCN_MODIFYATTEMPTRO, this, [this] {
    if (reading_) emit textRefused(reading_->why);
  });
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { lineNumbers_.Fit(); });
}

void ScintillaView::ListenToParts() {
  const auto refuse = [this](const QString& why) { emit textRefused(why); };
  const auto takeOverSoon = [this] {
    QMetaObject::invokeMethod(
        this, [this] { mirror_.TakeOver(); }, Qt::QueuedConnection);
  };
  subscriptions_ = {mirror_.TextChanged.Connect([this] { lineNumbers_.FollowLines(); }),
                    mirror_.TakeOverWanted.Connect(takeOverSoon), mirror_.Refused.Connect(refuse),
                    commands_.Refused.Connect(refuse)};
}

void ScintillaView::SetReading(const std::optional<Reading>& reading) {
  reading_ = reading;
  SendScintilla(SCI_SETREADONLY, reading ? 1UL : 0UL);
  commands_.RefuseEdits(reading ? std::optional(reading->why) : std::nullopt);
  mirror_.ShowOfLines(reading ? std::optional(reading->shownOfLines) : std::nullopt);
}

// --- Keys

bool ScintillaView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (CommandOf(key->keyCombination()) || key->matches(QKeySequence::SelectAll) ||
        key->matches(QKeySequence::Delete)) {
      event->accept();
      return true;
    }
  }
  return QsciScintillaBase::event(event);
}

void ScintillaView::keyPressEvent(QKeyEvent* event) {
  const auto pressed =
      QKeyCombination(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key()));
  if (const auto command = CommandOf(pressed)) {
    event->accept();
    Run(*command);
    return;
  }
  const bool typing = IsTyping(*event);
  if (typing && !BytesOfText(event->text())) {
    event->accept();
    emit textRefused(RefusalOf(event->text()));
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (keepsIndentation_ && CanBreakLine(*event)) {
      event->accept();
      SendScintilla(SCI_CALLTIPCANCEL);
      return commands_.BreakLine();
    }
    UseLineEndOf(model_.Bytes(), *this);
  }
  QKeyEvent key(event->type(), event->key(), event->modifiers(), TextOfKey(*event),
                event->isAutoRepeat());
  mirror_.ByHand([&] { QsciScintillaBase::keyPressEvent(&key); }, typing);
  event->setAccepted(key.isAccepted());
}

/// A list of words takes the key for itself.
bool ScintillaView::CanBreakLine(const QKeyEvent& event) const {
  return !(event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) &&
         SendScintilla(SCI_AUTOCACTIVE) == 0;
}

void ScintillaView::Run(EditorCommand command) {
  switch (command) {
    case EditorCommand::kUndo:
      return commands_.Undo();
    case EditorCommand::kRedo:
      return commands_.Redo();
    case EditorCommand::kCut:
      return commands_.Cut();
    case EditorCommand::kCopy:
      return commands_.Copy();
    case EditorCommand::kPaste:
      return commands_.Paste();
    case EditorCommand::kLeaveForwards:
    case EditorCommand::kLeaveBackwards:
      QAbstractScrollArea::focusNextPrevChild(command == EditorCommand::kLeaveForwards);
      return;
    case EditorCommand::kShowMenu:
      return ShowMenuAtCaret();
  }
}

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

void ScintillaView::inputMethodEvent(QInputMethodEvent* event) {
  // Scintilla would put the text being composed into the document for a while, and rely on its own
  // undo to take it out again.
  event->accept();
  if (preedit_ == nullptr) preedit_ = new PreeditLabel(viewport());
  preedit_->Show(event->preeditString(), font(), CaretPoint());
  if (event->commitString().isEmpty() && event->replacementLength() == 0) return;
  commands_.Commit(event->commitString(), event->replacementStart(), event->replacementLength());
}

// --- Mouse

std::optional<Position> ScintillaView::OffsetAt(QPoint point) const {
  const long left = SendScintilla(SCI_GETMARGINWIDTHN, 0UL);
  if (point.x() < left) return std::nullopt;
  return mirror_.OffsetOf(SendScintilla(
      SCI_POSITIONFROMPOINT, static_cast<unsigned long>(point.x()), static_cast<long>(point.y())));
}

void ScintillaView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    mirror_.ByHand([&] {
      const auto offset = OffsetAt(event->position().toPoint());
      if (offset) commands_.MoveCaretOutOfSelection(*offset);
    });
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
  if (button == Qt::LeftButton) {
    mirror_.ByHand([&] { QsciScintillaBase::mouseReleaseEvent(event); });
  }
  if (button == Qt::MiddleButton) PasteFromMouse(at);
  if (const auto released = ModelButton(button)) model_.ReleaseMouse(*released);
}

void ScintillaView::PasteFromMouse(QPoint at) {
  const auto offset = OffsetAt(at);
  if (!QGuiApplication::clipboard()->supportsSelection() || !offset) return;
  const HeldText held = ReadHeldText(QClipboard::Selection);
  if (!held.refusal.isEmpty()) {
    emit textRefused(held.refusal);
  } else if (held.data != nullptr && HoldsText(*held.data)) {
    commands_.PasteAt(*offset, *held.data);
  }
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
  const bool moving = fromHere && event->dropAction() == Qt::MoveAction;
  if (!commands_.Drop(*offset, *event->mimeData(), moving)) {
    event->ignore();
    return;
  }
  // What comes from here has been moved already: the source must not remove it once more.
  if (fromHere) event->setDropAction(Qt::CopyAction);
  event->accept();
}

bool ScintillaView::canInsertFromMimeData(const QMimeData* source) const {
  return HoldsText(*source);
}

QByteArray ScintillaView::fromMimeData(const QMimeData* source, bool& rectangular) const {
  rectangular = false;
  try {
    return QByteArray::fromStdString(Utf8OfBytes(BytesOfMime(*source)));
  } catch (const RuntimeError& error) {
    emit const_cast<ScintillaView*>(this)->textRefused(QString::fromUtf8(error.what()));
    return {};
  }
}

QMimeData* ScintillaView::toMimeData(const QByteArray&, bool) const {
  // The text that Scintilla passes has blanks for NULs; all its ways here take the selection.
  const auto [start, end] = document_.Selection();
  const auto selected = document_.Utf8(start, end - start);
  return MimeOfBytes(BytesOfUtf8(selected).value_or(std::string())).release();
}

// --- Looks

void ScintillaView::SetTextFont(const QString& family, int points) {
  SetUpFont(*this, family, points);
  ApplyTheme();
  lineNumbers_.Fit();
}

void ScintillaView::ApplyTheme() {
  const EditorTheme theme = ThemeOfWidget(*this);
  PaintEditor(*this, theme);
  outline_.Paint(theme);
  SendScintilla(SCI_MARKERSETBACK, static_cast<unsigned long>(kRestingLine), theme.currentLine);
  mirror_.SetTheme(theme);
}

void ScintillaView::paintEvent(QPaintEvent* event) {
  mirror_.AboutToDraw();
  QsciScintillaBase::paintEvent(event);
  PaintRestingCaret();
}

void ScintillaView::ShowCaretAlways(bool always) {
  caretAlways_ = always;
  SendScintilla(SCI_MARKERDEFINE, static_cast<unsigned long>(kRestingLine),
                long{SC_MARK_BACKGROUND});
  ApplyTheme();
  MarkRestingLine();
  viewport()->update();
}

QRect ScintillaView::RestingCaret() const {
  const auto height = static_cast<int>(SendScintilla(SCI_TEXTHEIGHT, 0UL));
  return {CaretPoint() - QPoint(1, 0), QSize(kRestingCaretWidth, height)};
}

// A line with a hidden selection is no current line for Scintilla.
void ScintillaView::MarkRestingLine() {
  if (!caretAlways_ || hasFocus()) {
    SendScintilla(SCI_MARKERDELETEALL, kRestingLine);
    return;
  }
  const long line = SendScintilla(SCI_LINEFROMPOSITION, SendScintilla(SCI_GETCURRENTPOS));
  if ((SendScintilla(SCI_MARKERGET, line) & 1L << kRestingLine) != 0) return;
  SendScintilla(SCI_MARKERDELETEALL, kRestingLine);
  SendScintilla(SCI_MARKERADD, static_cast<unsigned long>(line), long{kRestingLine});
}

void ScintillaView::FollowRestingCaret() {
  if (!caretAlways_ || hasFocus()) return;
  MarkRestingLine();
  if (restingCaret_ == RestingCaret()) return;
  viewport()->update(restingCaret_);
  viewport()->update(RestingCaret());
}

void ScintillaView::PaintRestingCaret() {
  if (!caretAlways_ || hasFocus()) return;
  restingCaret_ = RestingCaret();
  QPainter painter(viewport());
  painter.setPen(ThemeOfWidget(*this).text);
  painter.drawRect(restingCaret_.adjusted(0, 0, -1, -1));
}

void ScintillaView::changeEvent(QEvent* event) {
  QsciScintillaBase::changeEvent(event);
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
    case QEvent::StyleChange:
      ApplyTheme();
      break;
    default:
      break;
  }
}

void ScintillaView::focusInEvent(QFocusEvent* event) {
  QsciScintillaBase::focusInEvent(event);
  ApplyTheme();
  MarkRestingLine();
  mirror_.FocusChanged();
}

void ScintillaView::focusOutEvent(QFocusEvent* event) {
  QsciScintillaBase::focusOutEvent(event);
  ApplyTheme();
  MarkRestingLine();
  mirror_.FocusChanged();
}

}  // namespace tessel
