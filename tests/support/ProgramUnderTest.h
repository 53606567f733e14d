// Which program a test starts.
#pragma once

#include <cstdlib>
#include <string>

namespace tessel::test {

/// The program that was built, unless that environment variable names another one in its place.
inline std::string ProgramUnderTest(const char* variable, const char* built) {
  const char* other = std::getenv(variable);
  return other == nullptr ? built : other;
}

}  // namespace tessel::test
