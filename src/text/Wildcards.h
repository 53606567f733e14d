// Names that match a pattern, as in a directory listing.
#pragma once

#include <string_view>

namespace tessel {

/// True when the name has "*" or "?" in it.
bool HasWildcards(std::string_view name);

/// True when `name` matches `pattern`: "*" stands for any bytes, also none, and "?" for exactly
/// one. Letters of Windows-1252 match without regard to case.
bool MatchesWildcards(std::string_view name, std::string_view pattern);

}  // namespace tessel
