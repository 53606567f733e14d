// Which lines of a script fold away.
#pragma once

#include <cstdint>
#include <vector>

#include "language/Blocks.h"

namespace tessel::language {

struct FoldLine {
  std::uint16_t depth = 0;  ///< of how many blocks it is a part that folds away, at most kDeepest
  bool opens = false;       ///< the lines behind it that are deeper fold away under it

  friend bool operator==(const FoldLine&, const FoldLine&) = default;
};

inline constexpr std::uint16_t kDeepestFold = 2000;

/// One for each line of the script. A block stands under the line that opens it, up to the line
/// that closes it; a line that closes one and opens another belongs to neither.
std::vector<FoldLine> FoldLines(const Script& script, const std::vector<Block>& blocks);

}  // namespace tessel::language
