// Joining and splitting of paths.
#pragma once

#include <string>
#include <string_view>

namespace tessel {

class Files;

/// The separator to put behind a directory: empty when the path ends with one already.
std::string BackslashIfNeeded(std::string_view path, char separator = '\\');

/// The part after the last separator; the whole path when it has none.
std::string NameOfPath(std::string_view path, char separator = '\\');

/// True when a directory listing of the path yields a name. An empty path does not exist.
bool FileExists(Files& files, const std::string& path);

}  // namespace tessel
