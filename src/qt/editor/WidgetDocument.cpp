#include "qt/editor/WidgetDocument.h"

#include <Qsci/qsciscintillabase.h>

#include <QWidget>

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

SciPosition WidgetDocument::StyledEnd() const {
  return widget_.SendScintilla(Sci::SCI_GETENDSTYLED);
}

void WidgetDocument::ForgetStyles(SciPosition from) {
  widget_.SendScintilla(Sci::SCI_STARTSTYLING, Unsigned(from), 0L);
  widget_.viewport()->update();
}

void WidgetDocument::SetStyles(SciPosition at, std::string_view styles) {
  widget_.SendScintilla(Sci::SCI_STARTSTYLING, Unsigned(at), 0L);
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
