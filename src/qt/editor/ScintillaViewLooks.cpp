// How a ScintillaView is set up, and how it looks.
#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>
#include <cmath>

#include "qt/editor/EditorTheme.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr unsigned long kLineNumbers = 0;  // the margin's number
constexpr int kPadding = 8;
constexpr qsizetype kFewestDigits = 3;

struct Setting {
  unsigned int message;
  unsigned long value;
  long second = 0;
};

constexpr Setting kSettings[] = {
    // The text is the model's, as it stands
    {Sci::SCI_SETPASTECONVERTENDINGS, 0},
    {Sci::SCI_SETTABWIDTH, 8},
    {Sci::SCI_SETINDENT, 0},
    {Sci::SCI_SETUSETABS, 1},
    {Sci::SCI_SETTABINDENTS, 0},
    {Sci::SCI_SETBACKSPACEUNINDENTS, 0},
    // One selection, and never a rectangular one
    {Sci::SCI_SETMULTIPLESELECTION, 0},
    {Sci::SCI_SETADDITIONALSELECTIONTYPING, 0},
    {Sci::SCI_SETMOUSESELECTIONRECTANGULARSWITCH, 0},
    {Sci::SCI_SETRECTANGULARSELECTIONMODIFIER, 0},
    {Sci::SCI_SETVIRTUALSPACEOPTIONS, Sci::SCVS_NONE},
    // Looks
    {Sci::SCI_SETWRAPMODE, Sci::SC_WRAP_NONE},
    {Sci::SCI_SETSCROLLWIDTH, 1},
    {Sci::SCI_SETSCROLLWIDTHTRACKING, 1},
    {Sci::SCI_SETBUFFEREDDRAW, 0},  // Qt buffers the whole window
    {Sci::SCI_SETLAYOUTCACHE, Sci::SC_CACHE_PAGE},
    // What comes into sight comes with some lines around it.
    {Sci::SCI_SETYCARETPOLICY, Sci::CARET_SLOP | Sci::CARET_EVEN, 5},
    {Sci::SCI_SETCARETWIDTH, 2},
    {Sci::SCI_SETCARETLINEVISIBLE, 1},
    {Sci::SCI_SETEXTRAASCENT, 1},
    {Sci::SCI_SETEXTRADESCENT, 1},
    {Sci::SCI_SETMARGINTYPEN, kLineNumbers, Sci::SC_MARGIN_NUMBER},
    {Sci::SCI_SETMARGINWIDTHN, 1, 0},
    {Sci::SCI_SETMARGINLEFT, 0, kPadding},
    {Sci::SCI_SETMARGINRIGHT, 0, kPadding},
    {Sci::SCI_USEPOPUP, 0},
};

struct Key {
  int code;
  int modifiers;
};

// Keys of Scintilla that would bypass the model's undo and clipboard, make a rectangular selection,
// or change case by Unicode's rules (which can lead out of Windows-1252).
constexpr int kAltShift = Sci::SCMOD_ALT | Sci::SCMOD_SHIFT;
constexpr int kCtrlShift = Sci::SCMOD_CTRL | Sci::SCMOD_SHIFT;
constexpr Key kUnboundKeys[] = {
    {'Z', Sci::SCMOD_CTRL},      {'Y', Sci::SCMOD_CTRL},     {'X', Sci::SCMOD_CTRL},
    {'C', Sci::SCMOD_CTRL},      {'V', Sci::SCMOD_CTRL},     {'L', Sci::SCMOD_CTRL},
    {'T', kCtrlShift},           {'U', Sci::SCMOD_CTRL},     {'U', kCtrlShift},
    {Sci::SCK_DOWN, kAltShift},  {Sci::SCK_UP, kAltShift},   {Sci::SCK_LEFT, kAltShift},
    {Sci::SCK_RIGHT, kAltShift}, {Sci::SCK_HOME, kAltShift}, {Sci::SCK_END, kAltShift},
    {Sci::SCK_PRIOR, kAltShift}, {Sci::SCK_NEXT, kAltShift},
};

QFont EditorFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (!QFontInfo(font).fixedPitch()) font.setFamily(QStringLiteral("DejaVu Sans Mono"));
  return font;
}

}  // namespace

void ScintillaView::SetUp() {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Editor"));
  setAccessibleDescription(tr("The text of the document"));
  setAcceptDrops(true);
  for (const Setting& setting : kSettings) {
    SendScintilla(setting.message, setting.value, setting.second);
  }
  UnbindKeys();
  SetUpFont();
  ApplyTheme();
  ShowLineNumbers();
}

void ScintillaView::UnbindKeys() {
  for (const Key& key : kUnboundKeys) {
    SendScintilla(SCI_CLEARCMDKEY, static_cast<unsigned long>(key.code | key.modifiers << 16));
  }
}

void ScintillaView::SetUpFont() {
  const QFont font = EditorFont();
  setFont(font);
  const QByteArray family = QFontInfo(font).family().toUtf8();
  SendScintilla(SCI_STYLESETFONT, static_cast<uintptr_t>(STYLE_DEFAULT), family.constData());
  SendScintilla(SCI_STYLESETSIZEFRACTIONAL, static_cast<unsigned long>(STYLE_DEFAULT),
                std::lround(QFontInfo(font).pointSizeF() * int{SC_FONT_SIZE_MULTIPLIER}));
}

void ScintillaView::ApplyTheme() {
  const auto group = !isEnabled() ? QPalette::Disabled
                     : hasFocus() ? QPalette::Active
                                  : QPalette::Inactive;
  const EditorTheme theme = ThemeOf(palette(), group);
  SendScintilla(SCI_STYLESETBACK, static_cast<unsigned long>(STYLE_DEFAULT), theme.background);
  SendScintilla(SCI_STYLESETFORE, static_cast<unsigned long>(STYLE_DEFAULT), theme.text);
  SendScintilla(SCI_STYLECLEARALL);
  mirror_.SetTheme(theme);
  SendScintilla(SCI_STYLESETBACK, static_cast<unsigned long>(STYLE_LINENUMBER),
                theme.marginBackground);
  SendScintilla(SCI_STYLESETFORE, static_cast<unsigned long>(STYLE_LINENUMBER), theme.marginText);
  SendScintilla(SCI_SETSELBACK, 1UL, theme.selection);
  SendScintilla(SCI_SETSELFORE, 1UL, theme.selectedText);
  SendScintilla(SCI_SETCARETFORE, theme.text);
  SendScintilla(SCI_SETCARETLINEBACK, theme.currentLine);
}

void ScintillaView::ShowLineNumbers() {
  const auto lines = static_cast<qlonglong>(SendScintilla(SCI_GETLINECOUNT));
  const auto digits = std::max(kFewestDigits, QByteArray::number(lines).size());
  if (digits == digits_) return;
  digits_ = digits;
  FitLineNumbers();
}

void ScintillaView::FitLineNumbers() {
  const QByteArray widest(digits_, '9');
  const long width =
      SendScintilla(SCI_TEXTWIDTH, static_cast<uintptr_t>(STYLE_LINENUMBER), widest.constData());
  SendScintilla(SCI_SETMARGINWIDTHN, kLineNumbers, width + kPadding + kPadding / 2);
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
  mirror_.FocusChanged();
}

void ScintillaView::focusOutEvent(QFocusEvent* event) {
  QsciScintillaBase::focusOutEvent(event);
  ApplyTheme();
  mirror_.FocusChanged();
}

}  // namespace tessel
