// JSON, in the one place that knows the library.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessel::cli {

/// A list of triples of numbers on one line.
std::string JsonText(const std::vector<std::array<std::int64_t, 3>>& list);

}  // namespace tessel::cli
