// The titles of levels, for a list that has only their numbers.
#pragma once

#include <string>
#include <vector>

#include "language/Script.h"

namespace tessel {

/// The title of each entry, which reads "EPISODE LEVEL": that of the first line
/// that declares this level, of the second where the entry is there twice, and
/// so on. Empty where the text has none.
std::vector<std::string> TitlesOfLevels(const language::Script& script,
                                        const std::vector<std::string>& entries);

}  // namespace tessel
