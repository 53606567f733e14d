// Plays a scenario on one platform.
#pragma once

#include <string>
#include <vector>

namespace scenario {

struct Performance {
  std::vector<std::string> replies;   ///< one line for each command
  std::vector<std::string> failures;  ///< empty: everything came as expected
  std::string actual;                 ///< the scenario with what came; empty if it is the same
};

/// Runs the scenario in `directory`, which is made anew, with `program` on `platform`.
Performance Perform(const std::string& scenario, const std::string& program,
                    const std::string& platform, const std::string& directory);

}  // namespace scenario
