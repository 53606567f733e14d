// Paths that differ from what is there only in case.
#pragma once

#include <string>
#include <vector>

namespace tessel::posix {

/// Everything that exists under that name without regard to case (by the letters of Windows-1252),
/// in byte order: the path itself when it exists as written, and all other spellings of any of its
/// components. At most 16.
std::vector<std::string> SpellingsOf(const std::string& path);

}  // namespace tessel::posix
