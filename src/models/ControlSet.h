// The controls of one surface (ucTessel or a form), to be found by name.
#pragma once

#include <string_view>
#include <vector>

namespace tessel {

class Control;

/// The controls that stand on one surface, in the order in which they were made. Control arrays
/// have several entries of one name.
class ControlSet {
 public:
  ControlSet() = default;
  ControlSet(const ControlSet&) = delete;
  ControlSet& operator=(const ControlSet&) = delete;

  /// The control of that name (compared exactly) and 0-based array index, or null.
  Control* Find(std::string_view name, int index = 0) const;

  const std::vector<Control*>& All() const { return controls_; }

 private:
  friend class Control;  // adds and removes itself

  std::vector<Control*> controls_;
};

}  // namespace tessel
