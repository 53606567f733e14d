// What differs between the values of two files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/values/FileValues.h"

namespace tessel::cli {

/// A value that is not the same in both files. The texts are single-byte.
struct ValueChange {
  ValueName name;
  std::optional<std::string> before, after;  ///< nothing where that file does not have it
};

struct ValueDifference {
  std::vector<ValueChange> changes;  ///< in the order of the first file, then of the second
  std::vector<std::string> doubled;  ///< shown names that stand twice in one of them
};

/// Of what stands twice the first counts.
ValueDifference DifferenceOf(std::string_view before, std::string_view after);

}  // namespace tessel::cli
