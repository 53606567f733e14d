#include "Edits.h"

namespace scenario {

void Edits::Insert(int behind, const std::vector<std::string>& lines) {
  auto& own = edits_[behind].behind;
  own.insert(own.end(), lines.begin(), lines.end());
}

void Edits::Remove(int line) { edits_[line].removed = true; }

std::string Edits::Apply(const std::vector<std::string>& lines) const {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto it = edits_.find(static_cast<int>(i) + 1);
    if (it == edits_.end() || !it->second.removed) text += lines[i] + "\n";
    if (it == edits_.end()) continue;
    for (const std::string& line : it->second.behind) text += line + "\n";
  }
  return text;
}

}  // namespace scenario
