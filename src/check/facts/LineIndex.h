// In which line a byte stands.
#pragma once

#include <string_view>
#include <vector>

#include "language/Script.h"

namespace tessel::check {

/// Made in one pass over the text, which outlives it; then a place costs a few thousand bytes.
class LineIndex {
 public:
  explicit LineIndex(std::string_view text);

  /// Line and column from 1, as language::Script counts them.
  language::LineColumn PlaceOf(Position offset) const;

 private:
  std::string_view text_;
  std::vector<Position> breaksBefore_;  // in front of each block of kBlock bytes
};

/// Where the line of that byte begins and ends, without its line break.
language::Range LineAround(std::string_view text, Position offset);
/// Behind the line break that ends the line of that byte, or the end of the text.
Position NextLine(std::string_view text, Position offset);

}  // namespace tessel::check
