#include "qt/editor/WidgetDocument.h"

#include <Qsci/qsciscintillabase.h>

#include <QWidget>
#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

unsigned long Unsigned(long value) { return static_cast<unsigned long>(value); }

}  // namespace

WidgetDocument::WidgetDocument(QsciScintillaBase& widget) : widget_(widget) {
  widget_.SendScintilla(Sci::SCI_SETCODEPAGE, Unsigned(Sci::SC_CP_UTF8));
  widget_.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0UL);
}

SciPosition WidgetDocument::Size() const { return widget_.SendScintilla(Sci::SCI_GETLENGTH); }

std::string_view WidgetDocument::Utf8(SciPosition at, SciPosition length) const {
  if (length == 0) return {};
  const auto address = widget_.SendScintilla(Sci::SCI_GETRANGEPOINTER, Unsigned(at), length);
  return {reinterpret_cast<const char*>(address), static_cast<std::size_t>(length)};
}

void WidgetDocument::Replace(SciPosition at, SciPosition removed, std::string_view inserted) {
  // Reading only is for persons.
  const bool reading = widget_.SendScintilla(Sci::SCI_GETREADONLY) != 0;
  if (reading) widget_.SendScintilla(Sci::SCI_SETREADONLY, 0UL);
  widget_.SendScintilla(Sci::SCI_SETTARGETRANGE, Unsigned(at), at + removed);
  widget_.SendScintilla(Sci::SCI_REPLACETARGET, static_cast<uintptr_t>(inserted.size()),
                        inserted.data() == nullptr ? "" : inserted.data());
  if (reading) widget_.SendScintilla(Sci::SCI_SETREADONLY, 1UL);
}

SciRange WidgetDocument::Selection() const {
  return {widget_.SendScintilla(Sci::SCI_GETSELECTIONSTART),
          widget_.SendScintilla(Sci::SCI_GETSELECTIONEND)};
}

void WidgetDocument::Select(SciRange range) {
  widget_.SendScintilla(Sci::SCI_SETSEL, Unsigned(range.start), range.end);
}

void WidgetDocument::HideSelection(bool hidden) {
  widget_.SendScintilla(Sci::SCI_HIDESELECTION, hidden ? 1UL : 0UL);
}

bool WidgetDocument::HasFocus() const { return widget_.hasFocus(); }

// Lines are counted as they are shown; the last one may be in sight in part.
SciRange WidgetDocument::Page() const {
  const auto lineShownAt = [this](long place) {
    return widget_.SendScintilla(Sci::SCI_DOCLINEFROMVISIBLE, Unsigned(place));
  };
  const long first = widget_.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  const long last = first + widget_.SendScintilla(Sci::SCI_LINESONSCREEN);
  return {StartOfLine(lineShownAt(first)), StartOfLine(lineShownAt(last) + 1)};
}

SciPosition WidgetDocument::StartOfLine(long line) const {
  const long lines = widget_.SendScintilla(Sci::SCI_GETLINECOUNT);
  return line < lines ? widget_.SendScintilla(Sci::SCI_POSITIONFROMLINE, Unsigned(line)) : Size();
}

SciPosition WidgetDocument::StyledEnd() const {
  return widget_.SendScintilla(Sci::SCI_GETENDSTYLED);
}

void WidgetDocument::SetStyledEnd(SciPosition end) {
  widget_.SendScintilla(Sci::SCI_STARTSTYLING, Unsigned(end), 0L);
}

void WidgetDocument::ForgetStyles(SciPosition from) {
  SetStyledEnd(from);
  widget_.viewport()->update();
}

void WidgetDocument::SetStyles(SciPosition at, std::string_view styles) {
  SetStyledEnd(at);
  widget_.SendScintilla(Sci::SCI_SETSTYLINGEX, static_cast<uintptr_t>(styles.size()),
                        styles.data());
}

void WidgetDocument::PaintStyle(int style, const QColor& colour) {
  widget_.SendScintilla(Sci::SCI_STYLESETFORE, static_cast<unsigned long>(style), colour);
}

void WidgetDocument::HideStyle(int style) {
  widget_.SendScintilla(Sci::SCI_STYLESETVISIBLE, static_cast<unsigned long>(style), 0L);
}

}  // namespace tessel
