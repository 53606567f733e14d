// What was expected of a reply and what came, side by side.
#pragma once

#include <string>
#include <vector>

#include "ReplyLines.h"

namespace scenario {

struct Difference {
  std::string where;                ///< the first member that differs, and how; empty: none does
  std::vector<std::string> wanted;  ///< the lines of both
  std::vector<std::string> came;
};

/// A reply of which nothing is said about "ok" must be one of success.
Difference Compare(const Expectations& expected, const Json& reply);

/// The lines of both: those that were wanted after "-", those that came after "+".
std::string Shown(const Difference& difference);

}  // namespace scenario
