#include "cli/look/LevelName.h"

#include <algorithm>
#include <charconv>

#include "text/Text.h"

namespace tessel::cli {
namespace {

std::optional<std::int32_t> Count(std::string_view digits) {
  std::int32_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [at, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc{} || at != end || number < 0 || digits.front() == '-') return std::nullopt;
  return number;
}

std::optional<LevelName> FromCounts(std::string_view episode, std::string_view level,
                                    std::int32_t first) {
  const auto episodeNumber = Count(episode);
  const auto levelNumber = Count(level);
  if (!episodeNumber || !levelNumber || *episodeNumber < first || *levelNumber < first) {
    return std::nullopt;
  }
  return LevelName{*episodeNumber - first, *levelNumber - first};
}

}  // namespace

std::optional<LevelName> ParseLevelName(std::string_view text) {
  const std::string lower = AsciiLower(text);
  const std::string_view name = lower;
  if (name.starts_with('e')) {
    const std::size_t level = name.find('l');
    if (level == name.npos) return std::nullopt;
    return FromCounts(name.substr(1, level - 1), name.substr(level + 1), 1);
  }
  const std::size_t between = name.find_first_of(" /");
  if (between == name.npos) return std::nullopt;
  return FromCounts(name.substr(0, between), name.substr(between + 1), 0);
}

std::string TextOf(const LevelName& name) {
  return std::to_string(name.episode) + " " + std::to_string(name.level);
}

}  // namespace tessel::cli
