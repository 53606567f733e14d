// What a reply must hold, as lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "JsonText.h"

namespace scenario {

/// What the reply of one command must hold: one object, and a further one for what is said twice.
/// Match.h says what they match.
class Expectations {
 public:
  /// Adds what a line such as `tab 1 is "b.con" saved` says. Throws std::runtime_error if it cannot
  /// be read.
  void AddLine(std::string_view line);
  void Add(const Json& object);

  const std::vector<Json>& All() const { return all_; }

 private:
  std::vector<Json> all_;
};

/// The lines of such an object.
std::vector<std::string> LinesOf(const Json& expected);

}  // namespace scenario
