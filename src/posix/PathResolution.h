// Paths on a file system that tells case apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessel::posix {

/// The directory part of a path with its separator; empty when the path has none.
std::string DirectoryPart(std::string_view path);

/// The path of what exists under that name, without regard to case (by the letters of
/// Windows-1252, in which recent names are upper-cased) from the first component on that does not
/// exist as written. An exact match always wins; of several others the first in byte order; what
/// somebody else may have planted in a shared folder (see SharedFolder.h) is none. The components
/// behind one that nothing matches stay as they are.
std::string ResolveIgnoringCase(const std::string& path);

/// What it chooses from at the first component that is there in several other spellings: the whole
/// path with each of them, in byte order. The resolved path alone where there is no choice.
std::vector<std::string> ChoiceIgnoringCase(const std::string& path);

}  // namespace tessel::posix
