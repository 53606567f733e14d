// The words that open and close a block, each with its partner.
#pragma once

#include <optional>

#include "language/Script.h"

namespace tessel::language {

struct BlockEnd {
  Range word;                    ///< a brace, "state", "ends", "actor", "useractor" or "enda"
  std::optional<Range> partner;  ///< nothing where the block is not closed, or nothing is open
};

/// What a caret stands in, in front of or behind, if it opens or closes a block there. It costs
/// what reading the blocks from the actor before to the partner costs.
std::optional<BlockEnd> BlockEndAt(const Script& script, Position caret);

}  // namespace tessel::language
