// What has changed within a line.
#pragma once

#include <string_view>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {

/// A stretch of a line, in bytes.
struct LineStretch {
  Position at = 0;
  Position length = 0;

  friend bool operator==(const LineStretch&, const LineStretch&) = default;
};

/// The words of two lines that are not in the other one.
struct ChangedWords {
  std::vector<LineStretch> before;
  std::vector<LineStretch> after;
};

/// Whole words, runs of blanks, and single characters of any other kind. In lines of very
/// many words all between the first and the last byte that differ.
ChangedWords ChangedWordsBetween(std::string_view before, std::string_view after);

/// True for lines that begin and end so much alike, whatever their case, that one may have become
/// the other.
bool LooksChangedFrom(std::string_view before, std::string_view after);

}  // namespace tessel
