// How much a command has changed.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tessel {

/// Lines that were removed, added, or became another one, which counts once.
std::size_t ChangedLines(std::string_view before, std::string_view after);

/// Defines that have another value. Nothing where the texts define other names, or in another
/// order.
std::optional<std::size_t> ChangedValues(std::string_view before, std::string_view after);

}  // namespace tessel
