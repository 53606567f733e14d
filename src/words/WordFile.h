// Word lists as text files: one word a line, a tab, its parameters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "words/ScriptWords.h"

namespace tessel {

/// Why a word list cannot keep a word with these parameters, as a sentence; null when it can. The
/// list tells words from parameter texts by "[" alone.
const char* RefusalOf(const ScriptWord& word);

/// Empty lines are skipped. A line without a tab, or with what RefusalOf refuses, is a RuntimeError
/// that names the line.
std::vector<ScriptWord> ParseWordFile(std::string_view text);

/// The text that ParseWordFile reads back. Line breaks in parameters become blanks.
std::string FormatWordFile(const std::vector<ScriptWord>& words);

}  // namespace tessel
