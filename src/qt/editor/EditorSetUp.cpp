#include "qt/editor/EditorSetUp.h"

#include <Qsci/qsciscintillabase.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <cmath>

#include "qt/editor/EditorKeys.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr int kPadding = 8;

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
    // Widths of short pieces that are remembered: as many as a line of 128 KB has.
    {Sci::SCI_SETPOSITIONCACHE, 16'384},
    // What comes into sight comes with some lines around it.
    {Sci::SCI_SETYCARETPOLICY, Sci::CARET_SLOP | Sci::CARET_EVEN, 5},
    {Sci::SCI_SETCARETWIDTH, 2},
    {Sci::SCI_SETCARETLINEVISIBLE, 1},
    {Sci::SCI_SETEXTRAASCENT, 1},
    {Sci::SCI_SETEXTRADESCENT, 1},
    {Sci::SCI_SETMARGINWIDTHN, 1, 0},
    {Sci::SCI_SETMARGINLEFT, 0, kPadding},
    {Sci::SCI_SETMARGINRIGHT, 0, kPadding},
    {Sci::SCI_USEPOPUP, 0},
};

QFont EditorFont(const QString& family, int points) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (!QFontInfo(font).fixedPitch()) font.setFamily(QStringLiteral("DejaVu Sans Mono"));
  if (!family.isEmpty()) font.setFamily(family);
  if (points > 0) font.setPointSize(points);
  return font;
}

}  // namespace

void SetUpFont(QsciScintillaBase& widget, const QString& family, int points) {
  const QFont font = EditorFont(family, points);
  widget.setFont(font);
  const QByteArray name = QFontInfo(font).family().toUtf8();
  widget.SendScintilla(Sci::SCI_STYLESETFONT, static_cast<uintptr_t>(Sci::STYLE_DEFAULT),
                       name.constData());
  widget.SendScintilla(Sci::SCI_STYLESETSIZEFRACTIONAL,
                       static_cast<unsigned long>(Sci::STYLE_DEFAULT),
                       std::lround((points > 0 ? points : QFontInfo(font).pointSizeF()) *
                                   int{Sci::SC_FONT_SIZE_MULTIPLIER}));
}

void SetUpEditor(QsciScintillaBase& widget) {
  widget.setFrameShape(QFrame::NoFrame);
  widget.setFocusPolicy(Qt::StrongFocus);
  widget.setAcceptDrops(true);
  for (const Setting& setting : kSettings) {
    widget.SendScintilla(setting.message, setting.value, setting.second);
  }
  BindKeys(widget);
  SetUpFont(widget, {}, 0);
}

EditorTheme ThemeOfWidget(const QsciScintillaBase& widget) {
  const auto group = !widget.isEnabled() ? QPalette::Disabled
                     : widget.hasFocus() ? QPalette::Active
                                         : QPalette::Inactive;
  return ThemeOf(widget.palette(), group);
}

void PaintEditor(QsciScintillaBase& widget, const EditorTheme& theme) {
  const auto style = [&](unsigned int message, int number, const QColor& colour) {
    widget.SendScintilla(message, static_cast<unsigned long>(number), colour);
  };
  style(Sci::SCI_STYLESETBACK, Sci::STYLE_DEFAULT, theme.background);
  style(Sci::SCI_STYLESETFORE, Sci::STYLE_DEFAULT, theme.text);
  widget.SendScintilla(Sci::SCI_STYLECLEARALL);
  style(Sci::SCI_STYLESETBACK, Sci::STYLE_LINENUMBER, theme.marginBackground);
  style(Sci::SCI_STYLESETFORE, Sci::STYLE_LINENUMBER, theme.marginText);
  widget.SendScintilla(Sci::SCI_SETSELBACK, 1UL, theme.selection);
  widget.SendScintilla(Sci::SCI_SETSELFORE, 1UL, theme.selectedText);
  widget.SendScintilla(Sci::SCI_SETCARETFORE, theme.text);
  widget.SendScintilla(Sci::SCI_SETCARETLINEBACK, theme.currentLine);
}

}  // namespace tessel
