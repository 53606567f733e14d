// The text of a scenario with what came instead of what was expected.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace scenario {

class Edits {
 public:
  /// Puts lines behind a line, counted from 1.
  void Insert(int behind, const std::vector<std::string>& lines);
  void Remove(int line);

  bool Empty() const { return edits_.empty(); }
  std::string Apply(const std::vector<std::string>& lines) const;

 private:
  struct Edit {
    bool removed = false;
    std::vector<std::string> behind;
  };
  std::map<int, Edit> edits_;
};

}  // namespace scenario
