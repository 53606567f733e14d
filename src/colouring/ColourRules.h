// What an occurrence of a word of the pass colours, as functions over the text.
#pragma once

#include <string_view>

#include "colouring/ColorWords.h"
#include "text/TextTypes.h"

namespace tessel {

/// What one occurrence colours, and where the search for the next one starts.
struct Stretch {
  Position length = 0;        ///< from the begin of the occurrence; 0: nothing is coloured
  Position next = kNotFound;  ///< kNotFound: a block comment runs to the end of the text
};

/// What the occurrence of the entry's word at `at` colours.
Stretch StretchOf(const ColorWord& entry, std::string_view text, Position at);
/// What a block comment colours from `from` on, a place inside of it.
Stretch RestOfBlockComment(std::string_view text, Position from);

/// True when a stretch is coloured whatever it was; otherwise only where all of it is black.
constexpr bool ColoursAnything(const ColorWord& entry) {
  return entry.rule == ColourRule::kComment;
}

}  // namespace tessel
