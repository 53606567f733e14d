// The levels that a text declares: "definelevelname EPISODE LEVEL MAP PAR RECORD TITLE".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "language/Script.h"

namespace tessel::language {

/// One level line. What is missing is empty and stands where it would.
struct Level {
  Range keyword;
  Range episode;
  Range number;
  Range map;
  Range par;     ///< minutes and seconds, "mm:ss"; any word is taken, as the game has odd ones
  Range record;  ///< the same
  Range title;   ///< from its first word to its last, up to a comment
  Position lineEnd =
      0;  ///< where the line ends, behind a comment too: as far as the control's title
  std::optional<std::int32_t> episodeNumber;
  std::optional<std::int32_t> levelNumber;
  /// One blank, and nothing else, stands between all that is there: only then does the control read
  /// the same from the line.
  bool singleBlanks = false;

  /// All six are there, and the first two are numbers from 0 up.
  bool IsComplete() const {
    return !title.IsEmpty() && episodeNumber.value_or(-1) >= 0 && levelNumber.value_or(-1) >= 0;
  }
};

/// `mark` is one of Keyword::kDefineLevelName.
Level ReadLevel(const Script& script, Mark mark);

/// All level lines, also the incomplete, in the order of the text; none that stands in a comment.
std::vector<Level> Levels(const Script& script);
/// Those of one episode and level, both counted from 0.
std::vector<Level> LevelsOf(const Script& script, std::int32_t episode, std::int32_t number);

}  // namespace tessel::language
