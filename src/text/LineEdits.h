// Which lines of a text gave way to which of another.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tessel {

/// The lines of a text, each with its LF; the last one may have none.
std::vector<std::string_view> LinesOf(std::string_view text);

/// `removed` lines from the line `before` of the one text on gave way to `added` lines from the
/// line `after` of the other one on. Lines count from 0.
struct LineEdit {
  std::size_t before = 0, removed = 0;
  std::size_t after = 0, added = 0;
};

/// The way from one text to another.
struct LineEdits {
  std::vector<LineEdit> edits;  ///< in order, with lines that stay between them
  bool fewest = true;           ///< false where finding the fewest would have taken too long
};

/// The edits from one text to another: the fewest, unless the texts differ so much that finding
/// those would take long. Then texts of as many lines are compared line by line, and between others
/// one edit has everything from the first to the last line that differs. Any pieces will do that
/// make up the texts, words as well as lines.
LineEdits LineEditsBetween(const std::vector<std::string_view>& before,
                           const std::vector<std::string_view>& after);

}  // namespace tessel
