// New random values for what a file defines.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/Subcommands.h"

namespace tessel::cli {

/// An item to be drawn for.
struct Drawn {
  std::string define;
  std::optional<std::string> value;  ///< single-byte text; nothing where the item is skipped
};

/// The values that the control's randomizer gives to a text of these define lines alone, section by
/// section: nothing else is there that it could hit. A number is drawn for a skipped item, too, so
/// that the others get the same as in a whole file. RuntimeErrors in the control's words.
std::vector<std::string> DrawBetween(const std::vector<Drawn>& items,
                                     const RandomizeArguments& arguments);

/// Values at most so many per cent away from the present ones, which are numbers where they are not
/// skipped. A number is drawn for each item.
std::vector<std::string> DrawAround(const std::vector<Drawn>& items, int percent,
                                    std::uint32_t seed);

}  // namespace tessel::cli
