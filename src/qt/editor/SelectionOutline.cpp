#include "qt/editor/SelectionOutline.h"

#include <Qsci/qsciscintillabase.h>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr unsigned long kIndicator = Sci::INDIC_CONTAINER;
constexpr long kFillAlpha = 40;
constexpr long kLineAlpha = 255;

unsigned long At(long position) { return static_cast<unsigned long>(position); }

}  // namespace

SelectionOutline::SelectionOutline(QsciScintillaBase& widget) : widget_(widget) {
  widget_.SendScintilla(Sci::SCI_INDICSETSTYLE, kIndicator, long{Sci::INDIC_FULLBOX});
  widget_.SendScintilla(Sci::SCI_INDICSETALPHA, kIndicator, kFillAlpha);
  widget_.SendScintilla(Sci::SCI_INDICSETOUTLINEALPHA, kIndicator, kLineAlpha);
}

void SelectionOutline::Paint(const EditorTheme& theme) {
  widget_.SendScintilla(Sci::SCI_INDICSETFORE, kIndicator, theme.outline);
}

void SelectionOutline::Want(bool wanted) {
  wanted_ = wanted;
  Follow();
}

// Only what differs is changed: every change asks for another painting, which comes back here.
void SelectionOutline::Follow() {
  const long length = widget_.SendScintilla(Sci::SCI_GETLENGTH);
  const long start = wanted_ ? widget_.SendScintilla(Sci::SCI_GETSELECTIONSTART) : length;
  const long end = wanted_ ? widget_.SendScintilla(Sci::SCI_GETSELECTIONEND) : length;
  widget_.SendScintilla(Sci::SCI_SETINDICATORCURRENT, kIndicator);
  widget_.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, 0UL, start);
  widget_.SendScintilla(Sci::SCI_INDICATORFILLRANGE, At(start), end - start);
  widget_.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, At(end), length - end);
}

SciRange SelectionOutline::Shown() const {
  const auto edge = [this](unsigned int message, long position) {
    return widget_.SendScintilla(message, kIndicator, position);
  };
  const auto boxedAt = [this](long position) {
    return widget_.SendScintilla(Sci::SCI_INDICATORVALUEAT, kIndicator, position) != 0;
  };
  const long start = boxedAt(0) ? 0 : edge(Sci::SCI_INDICATOREND, 0);
  if (!boxedAt(start)) return {};
  return {start, edge(Sci::SCI_INDICATOREND, start)};
}

}  // namespace tessel
