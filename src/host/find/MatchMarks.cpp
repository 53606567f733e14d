#include "host/find/MatchMarks.h"

#include <span>

#include "qt/editor/EditorSetUp.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

// Numbers of their own among the layers of the view; the outline of the selection has the first.
constexpr unsigned long kMatches = Sci::INDIC_CONTAINER + 4;
constexpr unsigned long kCurrent = Sci::INDIC_CONTAINER + 5;
constexpr long kFillAlpha = 48;
constexpr long kLineAlpha = 255;
// 3:1 and more on a light and on a dark ground.
const QColor kAmber(0xb5, 0x76, 0x00);

unsigned long At(long position) { return static_cast<unsigned long>(position); }

/// Only what differs is changed: a change asks for another painting, which leads back here.
void MarkOnly(ScintillaView& view, unsigned long indicator, std::span<const TextMatch> matches) {
  const long length = view.SendScintilla(Sci::SCI_GETLENGTH);
  view.SendScintilla(Sci::SCI_SETINDICATORCURRENT, indicator);
  long done = 0;
  long value = 1;
  for (const TextMatch& match : matches) {
    const long start = view.mirror().PositionOf(match.start);
    const long end = view.mirror().PositionOf(match.End());
    view.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, At(done), start - done);
    value = start == done ? 3 - value : 1;  // so that neighbours do not become one
    view.SendScintilla(Sci::SCI_SETINDICATORVALUE, At(value));
    view.SendScintilla(Sci::SCI_INDICATORFILLRANGE, At(start), end - start);
    done = end;
  }
  view.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, At(done), length - done);
}

}  // namespace

SearchArea MatchMarks::InSight(ScintillaView& view) {
  const auto lineOf = [&view](long shown) {
    return view.SendScintilla(Sci::SCI_DOCLINEFROMVISIBLE, At(shown));
  };
  const long top = view.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  const long rows = view.SendScintilla(Sci::SCI_LINESONSCREEN) + 1;
  const long start = view.SendScintilla(Sci::SCI_POSITIONFROMLINE, At(lineOf(top)));
  const long end = view.SendScintilla(Sci::SCI_GETLINEENDPOSITION, At(lineOf(top + rows)));
  return {view.mirror().OffsetOf(start), view.mirror().OffsetOf(end)};
}

void MatchMarks::Take(ScintillaView& view) {
  if (view_ == &view) return;
  Clear();
  view_ = &view;
  for (const unsigned long indicator : {kMatches, kCurrent}) {
    view.SendScintilla(Sci::SCI_INDICSETSTYLE, indicator, long{Sci::INDIC_STRAIGHTBOX});
    view.SendScintilla(Sci::SCI_INDICSETALPHA, indicator, kFillAlpha);
    view.SendScintilla(Sci::SCI_INDICSETOUTLINEALPHA, indicator, kLineAlpha);
  }
  Paint();
}

void MatchMarks::Paint() {
  if (view_ == nullptr) return;
  const EditorTheme theme = ThemeOfWidget(*view_);
  view_->SendScintilla(Sci::SCI_INDICSETFORE, kMatches, kAmber);
  view_->SendScintilla(Sci::SCI_INDICSETFORE, kCurrent, theme.outline);
}

void MatchMarks::Show(ScintillaView& view, const std::vector<TextMatch>& matches,
                      const std::optional<TextMatch>& current) {
  Take(view);
  if (view.mirror().State() != MirrorState::kInStep) return;
  MarkOnly(view, kMatches, matches);
  MarkOnly(view, kCurrent, current ? std::span(&*current, 1) : std::span<const TextMatch>());
}

void MatchMarks::Clear() {
  if (view_ == nullptr) return;
  MarkOnly(*view_, kMatches, {});
  MarkOnly(*view_, kCurrent, {});
  view_ = nullptr;
}

}  // namespace tessel
