// A thin bar beside each changed line in sight.
#pragma once

#include <span>

#include "host/view/ChangedPlaces.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

/// In a margin of their own, which takes no place where they are not wanted.
void ShowChangeBars(ScintillaView& view, bool shown);
/// Puts bars beside the changed lines that are in sight, and takes others away.
void FollowChanges(ScintillaView& view, std::span<const ChangedPlace> changes);

}  // namespace tessel
