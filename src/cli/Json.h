// Results as JSON.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessel::cli {

/// Names and UTF-8 texts, in this order; no text is null.
using JsonObject = std::vector<std::pair<std::string, std::optional<std::string>>>;

/// An indented list of objects, harmless for a terminal.
std::string JsonText(const std::vector<JsonObject>& list);

/// A list of triples of numbers on one line.
std::string JsonText(const std::vector<std::array<std::int64_t, 3>>& list);

}  // namespace tessel::cli
