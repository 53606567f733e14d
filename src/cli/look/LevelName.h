// How people write a level.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessel::cli {

/// Episode and level, both counted from 0, as level lines do.
struct LevelName {
  std::int32_t episode = 0;
  std::int32_t level = 0;
};

/// "0 7", "0/7" (counted from 0), or "E1L8" (counted from 1, in any case). Nothing for other texts.
std::optional<LevelName> ParseLevelName(std::string_view text);

/// "0 7", as level lines have it.
std::string TextOf(const LevelName& name);

}  // namespace tessel::cli
