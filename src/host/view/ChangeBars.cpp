#include "host/view/ChangeBars.h"

#include <algorithm>

#include "host/view/MarkStrip.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr unsigned long kBarMargin = 1;
constexpr unsigned long kBar = 8;  // among the markers
constexpr long kBarWidth = 4;

unsigned long AsNumber(long value) { return static_cast<unsigned long>(value); }

}  // namespace

void ShowChangeBars(ScintillaView& view, bool shown) {
  view.SendScintilla(Sci::SCI_MARKERDELETEALL, kBar);
  view.SendScintilla(Sci::SCI_MARKERDEFINE, kBar, long{Sci::SC_MARK_FULLRECT});
  view.SendScintilla(Sci::SCI_MARKERSETBACK, kBar, MarkColoursOf(view.palette()).change);
  view.SendScintilla(Sci::SCI_SETMARGINTYPEN, kBarMargin, long{Sci::SC_MARGIN_SYMBOL});
  view.SendScintilla(Sci::SCI_SETMARGINMASKN, kBarMargin, 1L << kBar);
  view.SendScintilla(Sci::SCI_SETMARGINWIDTHN, kBarMargin, shown ? kBarWidth : 0L);
}

void FollowChanges(ScintillaView& view, std::span<const ChangedPlace> changes) {
  if (view.mirror().State() != MirrorState::kInStep) return;
  const auto lineShown = [&view](long row) {
    return view.SendScintilla(Sci::SCI_DOCLINEFROMVISIBLE, AsNumber(row));
  };
  const long top = view.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  const long bottom = top + view.SendScintilla(Sci::SCI_LINESONSCREEN) + 1;
  const auto start = static_cast<Position>(view.mirror().OffsetOf(
      view.SendScintilla(Sci::SCI_POSITIONFROMLINE, AsNumber(lineShown(top)))));
  auto place = std::ranges::lower_bound(changes, start, {}, &ChangedPlace::end);
  LineSpan lines{-1, -1};
  for (long line = lineShown(top); line <= lineShown(bottom); ++line) {
    while (lines.last < line && place != changes.end()) lines = LinesOf(view, *place++);
    const bool changed = lines.first <= line && line <= lines.last;
    const bool marked = (view.SendScintilla(Sci::SCI_MARKERGET, AsNumber(line)) & 1L << kBar) != 0;
    if (changed == marked) continue;
    view.SendScintilla(changed ? Sci::SCI_MARKERADD : Sci::SCI_MARKERDELETE, AsNumber(line),
                       static_cast<long>(kBar));
  }
}

}  // namespace tessel
