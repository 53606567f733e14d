#include "posix/PathResolution.h"

#include <dirent.h>

#include <memory>
#include <optional>

#include "posix/Posix.h"
#include "posix/SharedFolder.h"
#include "text/Text.h"

namespace tessel::posix {
namespace {

bool Fits(const std::string& path, bool wantsDirectory) {
  if (!wantsDirectory) return StatusOfLink(path).has_value();
  const auto status = StatusOf(path);
  return status && S_ISDIR(status->st_mode);
}

bool IsPlanted(const std::string& directory, const std::string& name) {
  const auto folder = StatusOf(directory.empty() ? "." : directory);
  const auto entry = StatusOfLink(directory + name);
  return folder && entry && MayBePlanted(*folder, *entry);
}

std::optional<std::string> NameIn(const std::string& directory, const std::string& wanted,
                                  bool wantsDirectory) {
  if (Fits(directory + wanted, wantsDirectory)) return wanted;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(
      ::opendir(directory.empty() ? "." : directory.c_str()), ::closedir);
  if (listing == nullptr) return std::nullopt;
  const std::string folded = ToLowerText(wanted);
  std::optional<std::string> found;
  while (const dirent* entry = ::readdir(listing.get())) {
    const std::string name = entry->d_name;
    if (ToLowerText(name) == folded && (!found || name < *found) &&
        Fits(directory + name, wantsDirectory) && !IsPlanted(directory, name)) {
      found = name;
    }
  }
  return found;
}

}  // namespace

std::string DirectoryPart(std::string_view path) {
  return std::string(path.substr(0, path.rfind('/') + 1));
}

std::string ResolveIgnoringCase(const std::string& path) {
  if (StatusOfLink(path)) return path;
  std::string resolved;
  for (std::size_t at = 0; at < path.size();) {
    if (path[at] == '/') {
      resolved += path[at++];
      continue;
    }
    const std::size_t end = std::min(path.find('/', at), path.size());
    const auto name = NameIn(resolved, path.substr(at, end - at), end < path.size());
    if (!name) return resolved + path.substr(at);
    resolved += *name;
    at = end;
  }
  return resolved;
}

}  // namespace tessel::posix
