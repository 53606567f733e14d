// Where a text has become another one.
#pragma once

#include <algorithm>

#include "text/TextTypes.h"

namespace tessel {

/// `removed` bytes at `at` have become `inserted` bytes; what is around them is the same. Any
/// number of replacements is one such change, at worst of everything.
struct ChangedRange {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;

  /// The change that also has `next` in it, which came behind this one.
  ChangedRange Then(const ChangedRange& next) const {
    const Position begin = std::min(at, next.at);
    const Position end = std::max(at + inserted, next.at + next.removed);  // before `next`
    return {begin, end - begin + removed - inserted, end - begin + next.inserted - next.removed};
  }

  /// Where a place of the text before is now. A place in what was removed stays as far behind its
  /// begin as the new bytes allow.
  Position Moved(Position place) const {
    if (place < at) return place;
    if (place >= at + removed) return place + inserted - removed;
    return at + std::min(place - at, inserted);
  }

  friend bool operator==(const ChangedRange&, const ChangedRange&) = default;
};

}  // namespace tessel
