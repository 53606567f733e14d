// Sessions in text files: what a client has sent, and what it was answered.
//
// A line begins with "-->" (sent), "<--" (answered, in this order), "check" (the check that is due
// is made) or "#".
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessel::lsp::test {

struct Step {
  enum class Kind : std::uint8_t { kSent, kAnswered, kCheck, kComment };

  Kind kind = Kind::kComment;
  std::string message;  ///< or the comment
};

inline std::vector<std::string> SessionNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(TESSEL_LSP_SESSIONS)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem());
  }
  std::ranges::sort(names);
  return names;
}

inline std::vector<Step> ReadSession(const std::string& name) {
  std::ifstream file(std::string(TESSEL_LSP_SESSIONS) + "/" + name + ".txt");
  std::vector<Step> steps;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("--> ")) {
      steps.push_back({Step::Kind::kSent, line.substr(4)});
    } else if (line.starts_with("<-- ")) {
      steps.push_back({Step::Kind::kAnswered, line.substr(4)});
    } else if (line == "check") {
      steps.push_back({Step::Kind::kCheck, line});
    } else if (line.empty() || line.starts_with('#')) {
      steps.push_back({Step::Kind::kComment, line});
    } else {
      throw std::runtime_error("a line of " + name + " is none of a session: " + line);
    }
  }
  return steps;
}

}  // namespace tessel::lsp::test
