// The boxes around the matches in sight.
#pragma once

#include <QPointer>
#include <optional>
#include <vector>

#include "host/find/MatchScan.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

/// Drawn over the text of one view at a time; the text knows nothing of them.
class MatchMarks {
 public:
  ~MatchMarks() { Clear(); }

  /// What of the text is in sight, in whole lines.
  static SearchArea InSight(ScintillaView& view);

  /// Draws a box around each of these, and another one around `current`; no others.
  void Show(ScintillaView& view, const std::vector<TextMatch>& matches,
            const std::optional<TextMatch>& current);
  void Clear();
  /// The palette has changed.
  void Paint();

 private:
  void Take(ScintillaView& view);

  QPointer<ScintillaView> view_;
};

}  // namespace tessel
