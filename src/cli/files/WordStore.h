// The user's list of script words.
#pragma once

#include <string>
#include <vector>

#include "words/ScriptWords.h"

namespace tessel::cli {

/// The settings file that has the list: that one, or the user's own where none is named.
std::string WordStore(const std::string& named);

/// Its words; none where there is no such file. One that cannot be read is a RuntimeError.
std::vector<ScriptWord> StoredWords(const std::string& named);

/// The same, or the starter words where the list is empty and they can be read.
std::vector<ScriptWord> StoredOrStarterWords(const std::string& named);

}  // namespace tessel::cli
