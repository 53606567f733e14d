// Word lists as text files: one word a line, a tab, its parameters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "words/ScriptWords.h"

namespace tessel {

/// Empty lines are skipped. A line without a tab, without a word, or with "[" in its word is a
/// RuntimeError that names the line.
std::vector<ScriptWord> ParseWordFile(std::string_view text);

/// The text that ParseWordFile reads back. Line breaks in parameters become blanks.
std::string FormatWordFile(const std::vector<ScriptWord>& words);

}  // namespace tessel
