#include "host/second/SecondText.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>

#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorSetUp.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

/// A command that lets timers run has the text.
constexpr int kBusyMilliseconds = 50;

constexpr unsigned long kMarkers = 32;

constexpr int kEditingKeys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Delete};

bool Edits(const QKeyEvent& event) {
  return IsTyping(event) ||
         std::ranges::find(kEditingKeys, event.key()) != std::ranges::end(kEditingKeys);
}

bool BelongsToClipboard(const QKeyEvent& event) {
  const auto command = CommandOf(event.keyCombination());
  return command == EditorCommand::kCut || command == EditorCommand::kCopy ||
         command == EditorCommand::kPaste || event.matches(QKeySequence::SelectAll);
}

/// Their ranges are the document's: the editor's own view draws them.
void HideLayers(QsciScintillaBase& view) {
  for (unsigned long layer = Sci::INDIC_CONTAINER; layer <= Sci::INDIC_MAX; ++layer) {
    view.SendScintilla(Sci::SCI_INDICSETSTYLE, layer, long{Sci::INDIC_HIDDEN});
  }
  for (unsigned long marker = 0; marker < kMarkers; ++marker) {
    view.SendScintilla(Sci::SCI_MARKERSETALPHA, marker, long{Sci::SC_ALPHA_TRANSPARENT});
  }
}

}  // namespace

SecondText::SecondText(std::function<bool()> busy, QWidget* parent)
    : QsciScintillaBase(parent),
      busy_(std::move(busy)),
      accessibility_(*this),
      document_(*this),
      lineNumbers_(*this) {
  setAccessibleName(tr("Second view"));
  setAccessibleDescription(tr("A document, for reading"));
  SetUpEditor(*this);
  HideLayers(*this);
  setAttribute(Qt::WA_InputMethodEnabled, false);
  ApplyTheme();
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { lineNumbers_.Fit(); });
  recolour_.setSingleShot(true);
  recolour_.setInterval(0);
  connect(&recolour_, &QTimer::timeout, this, &SecondText::Recolour);
  catchUp_.setSingleShot(true);
  connect(&catchUp_, &QTimer::timeout, this, &SecondText::CatchUp);
}

SecondText::~SecondText() { Show(nullptr); }

// --- The document

void SecondText::Show(ScintillaView* first) {
  subscriptions_.clear();
  catchUp_.stop();
  if (first_ != nullptr) first_->mirror().ShareDocument(false);
  first_ = first;
  void* document = first == nullptr ? nullptr : first->SendScintillaPtrResult(SCI_GETDOCPOINTER);
  SendScintilla(SCI_SETDOCPOINTER, 0UL, document);
  if (first != nullptr) Follow(*first);
  stylesPainted_ = 0;
  lineNumbers_.FollowLines();
}

void SecondText::Follow(ScintillaView& first) {
  ScintillaMirror& mirror = first.mirror();
  mirror.ShareDocument(true);
  const auto catchUp = [this] {
    if (first_->mirror().State() == MirrorState::kStale) catchUp_.start(0);
  };
  // Scintilla itself draws what is edited; other colours of the page come a moment later.
  const auto recoloured = [this](Position) { recolour_.start(); };
  auto& editor = const_cast<RichTextBox&>(mirror.Model());
  subscriptions_ = {mirror.Recoloured.Connect(recoloured),
                    mirror.TextChanged.Connect([this] { lineNumbers_.FollowLines(); }),
                    editor.Change.Connect(catchUp), editor.Store().Reset.Connect(catchUp)};
  mirror.Settle();
}

// A document that is not in sight is brought up to date for whoever looks here.
void SecondText::CatchUp() {
  if (first_ == nullptr) return;
  if (busy_()) return catchUp_.start(kBusyMilliseconds);
  first_->mirror().Settle();
}

long SecondText::TopLine() const {
  return SendScintilla(SCI_DOCLINEFROMVISIBLE, SendScintilla(SCI_GETFIRSTVISIBLELINE));
}

void SecondText::ScrollTo(long line) {
  SendScintilla(SCI_SETFIRSTVISIBLELINE, SendScintilla(SCI_VISIBLEFROMDOCLINE, line));
}

// --- Looks

void SecondText::SetTextFont(const QString& family, int points) {
  SetUpFont(*this, family, points);
  ApplyTheme();
  lineNumbers_.Fit();
}

void SecondText::ApplyTheme() {
  PaintEditor(*this, ThemeOfWidget(*this));
  document_.HideStyle(STYLE_MAX);
  stylesPainted_ = 0;
  PaintNewStyles();
}

void SecondText::PaintNewStyles() {
  if (first_ == nullptr) return;
  const EditorTheme theme = ThemeOfWidget(*this);
  const ScintillaMirror& mirror = first_->mirror();
  const auto styles = mirror.StylesInUse();
  for (; stylesPainted_ < styles.size(); ++stylesPainted_) {
    const int style = styles[stylesPainted_];
    document_.PaintStyle(style, theme.PaintOf(mirror.ColourOfStyle(style)));
  }
}

void SecondText::paintEvent(QPaintEvent* event) {
  Recolour();
  QsciScintillaBase::paintEvent(event);
}

void SecondText::Recolour() {
  if (first_ == nullptr) return;
  first_->mirror().ColourApart(document_.Page());
  PaintNewStyles();
}

void SecondText::changeEvent(QEvent* event) {
  QsciScintillaBase::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) ApplyTheme();
}

void SecondText::focusInEvent(QFocusEvent* event) {
  QsciScintillaBase::focusInEvent(event);
  ApplyTheme();
  emit focused();
}

void SecondText::focusOutEvent(QFocusEvent* event) {
  QsciScintillaBase::focusOutEvent(event);
  ApplyTheme();
}

// --- Keys

bool SecondText::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QsciScintillaBase::event(event);
  event->setAccepted(BelongsToClipboard(*static_cast<QKeyEvent*>(event)));
  return true;
}

void SecondText::keyPressEvent(QKeyEvent* event) {
  event->accept();
  const QKeyCombination pressed(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key()));
  if (const auto command = CommandOf(pressed)) return Run(*command);
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F6) return emit left();
  if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
    QAbstractScrollArea::focusNextPrevChild(event->key() == Qt::Key_Tab);
    return;
  }
  if (Edits(*event)) return emit editRefused();
  QKeyEvent key(event->type(), event->key(), event->modifiers(), {}, event->isAutoRepeat());
  QsciScintillaBase::keyPressEvent(&key);
  event->setAccepted(key.isAccepted());
}

void SecondText::Run(EditorCommand command) {
  switch (command) {
    case EditorCommand::kCopy:
      SendScintilla(SCI_COPY);
      return;
    case EditorCommand::kLeaveForwards:
    case EditorCommand::kLeaveBackwards:
      QAbstractScrollArea::focusNextPrevChild(command == EditorCommand::kLeaveForwards);
      return;
    case EditorCommand::kShowMenu: {
      QContextMenuEvent wanted(QContextMenuEvent::Keyboard, rect().center(),
                               mapToGlobal(rect().center()));
      return contextMenuEvent(&wanted);
    }
    case EditorCommand::kUndo:
    case EditorCommand::kRedo:
    case EditorCommand::kCut:
    case EditorCommand::kPaste:
      return emit editRefused();
  }
}

void SecondText::inputMethodEvent(QInputMethodEvent* event) {
  event->accept();
  if (!event->commitString().isEmpty()) emit editRefused();
}

// --- Mouse

// The base would paste by the middle button, and drag a selection out of the document.
void SecondText::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::MiddleButton) emit editRefused();
    return;
  }
  if (!event->modifiers().testFlag(Qt::ShiftModifier)) {
    SendScintilla(SCI_SETEMPTYSELECTION, SendScintilla(SCI_GETCURRENTPOS));
  }
  QsciScintillaBase::mousePressEvent(event);
}

void SecondText::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QsciScintillaBase::mouseReleaseEvent(event);
}

void SecondText::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QsciScintillaBase::wheelEvent(event);
    return;
  }
  event->accept();
  const int way = event->angleDelta().y();
  if (way != 0) SendScintilla(way > 0 ? SCI_ZOOMIN : SCI_ZOOMOUT);
}

void SecondText::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(tr("&Copy"), this, [this] { SendScintilla(SCI_COPY); })
      ->setEnabled(SendScintilla(SCI_GETSELECTIONEMPTY) == 0);
  menu->addAction(tr("Select &All"), this, [this] { SendScintilla(SCI_SELECTALL); });
  menu->popup(event->globalPos());
}

// Files are the window's, and text goes nowhere.
void SecondText::dragEnterEvent(QDragEnterEvent* event) { event->ignore(); }

void SecondText::dropEvent(QDropEvent* event) { event->ignore(); }

QMimeData* SecondText::toMimeData(const QByteArray&, bool) const {
  const auto [start, end] = document_.Selection();
  return MimeOfBytes(BytesOfUtf8(document_.Utf8(start, end - start)).value_or(std::string()))
      .release();
}

}  // namespace tessel
