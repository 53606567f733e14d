#include "services/Paths.h"

#include "services/Services.h"

namespace tessel {

std::string BackslashIfNeeded(std::string_view path, char separator) {
  return path.ends_with(separator) ? std::string() : std::string(1, separator);
}

std::string NameOfPath(std::string_view path, char separator) {
  const std::size_t last = path.rfind(separator);
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

bool FileExists(Files& files, const std::string& path) {
  return !path.empty() && !files.Listing(path).empty();
}

}  // namespace tessel
