// What else a user file lists: quotes, titles, sounds, songs, start-up values.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "language/Script.h"

namespace tessel::language {

/// "definequote NUMBER TEXT", "definevolumename EPISODE TITLE", "defineskillname SKILL TITLE".
struct NumberedText {
  Keyword keyword = Keyword::kDefineQuote;
  Range range;                        ///< from the keyword to the last word
  Range number;                       ///< empty where it is missing, as is the text
  Range text;                         ///< from its first word to its last, up to a comment
  std::optional<std::int32_t> value;  ///< the number

  bool IsComplete() const { return value.value_or(-1) >= 0 && !text.IsEmpty(); }
};

/// "definesound NAME FILE LOWEST HIGHEST PRIORITY KIND VOLUME".
struct Sound {
  Range range;
  Range name;
  Range file;
  std::array<Range, 5> numbers;  ///< empty where they are missing; names may stand for numbers
  Range rest;                    ///< what follows although nothing should

  bool IsComplete() const { return !numbers.back().IsEmpty() && rest.IsEmpty(); }
};

/// "music NUMBER FILES" and "gamestartup NAMES", over any number of lines.
struct List {
  Keyword keyword = Keyword::kMusic;
  Range range;
  Range number;  ///< of music: 0 for the title, else the episode from 1 up; empty where missing
  std::vector<Range> entries;
};

/// Each in the order of the text; none that stands in a comment.
std::vector<NumberedText> NumberedTexts(const Script& script, Keyword keyword);
std::vector<Sound> Sounds(const Script& script);
std::vector<List> Lists(const Script& script, Keyword keyword);

}  // namespace tessel::language
