#include "posix/PathResolution.h"

#include <dirent.h>

#include <algorithm>
#include <memory>
#include <utility>

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

/// In byte order; the wanted one alone where it exists as written.
std::vector<std::string> NamesIn(const std::string& directory, const std::string& wanted,
                                 bool wantsDirectory) {
  if (Fits(directory + wanted, wantsDirectory)) return {wanted};
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(
      ::opendir(directory.empty() ? "." : directory.c_str()), ::closedir);
  std::vector<std::string> found;
  if (listing == nullptr) return found;
  const std::string folded = ToLowerText(wanted);
  while (const dirent* entry = ::readdir(listing.get())) {
    std::string name = entry->d_name;
    if (ToLowerText(name) == folded && Fits(directory + name, wantsDirectory) &&
        !IsPlanted(directory, name)) {
      found.push_back(std::move(name));
    }
  }
  std::ranges::sort(found);
  return found;
}

}  // namespace

std::string DirectoryPart(std::string_view path) {
  return std::string(path.substr(0, path.rfind('/') + 1));
}

std::vector<std::string> ChoiceIgnoringCase(const std::string& path) {
  if (StatusOfLink(path)) return {path};
  std::string resolved;
  for (std::size_t at = 0; at < path.size();) {
    if (path[at] == '/') {
      resolved += path[at++];
      continue;
    }
    const std::size_t end = std::min(path.find('/', at), path.size());
    std::vector<std::string> names =
        NamesIn(resolved, path.substr(at, end - at), end < path.size());
    if (names.empty()) return {resolved + path.substr(at)};
    if (names.size() > 1) {
      for (std::string& name : names) name.insert(0, resolved).append(path.substr(end));
      return names;
    }
    resolved += names.front();
    at = end;
  }
  return {resolved};
}

std::string ResolveIgnoringCase(const std::string& path) {
  std::vector<std::string> choice = ChoiceIgnoringCase(path);
  while (choice.size() > 1) choice = ChoiceIgnoringCase(choice.front());
  return choice.front();
}

}  // namespace tessel::posix
