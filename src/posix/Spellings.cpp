#include "posix/Spellings.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "text/Text.h"

namespace tessel::posix {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMost = 16;

void AddMatches(const fs::path& folder, const std::string& name, std::vector<fs::path>& found) {
  const std::string folded = ToLowerText(name);
  std::error_code problem;  // a folder that cannot be listed has no spellings
  fs::directory_iterator entry(folder, problem);
  for (; !problem && entry != fs::directory_iterator(); entry.increment(problem)) {
    if (ToLowerText(entry->path().filename().string()) == folded) found.push_back(entry->path());
  }
}

}  // namespace

std::vector<std::string> SpellingsOf(const std::string& path) {
  const fs::path wanted(path);
  std::vector<fs::path> reached = {wanted.has_root_path() ? wanted.root_path() : fs::path(".")};
  for (const fs::path& part : wanted.relative_path()) {
    if (part.empty()) continue;
    std::vector<fs::path> next;
    for (const fs::path& folder : reached) {
      if (part == ".." || part == ".") {
        next.push_back(folder / part);
      } else {
        AddMatches(folder, part.string(), next);
      }
    }
    std::ranges::sort(next);
    if (next.size() > kMost) next.resize(kMost);
    reached = std::move(next);
  }
  std::vector<std::string> spellings;
  spellings.reserve(reached.size());
  for (const fs::path& found : reached) spellings.push_back(found.string());
  return spellings;
}

}  // namespace tessel::posix
