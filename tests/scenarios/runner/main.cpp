// Runs a scenario: run_scenario PROGRAM headless|qt|both FILE. With "both" each platform must do as
// the scenario expects, and their replies must be equal, line by line.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "Performance.h"

namespace {

using scenario::Performance;

std::string NewDirectory() {
  std::string name = (std::filesystem::temp_directory_path() / "scenario-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
  return name;
}

bool Report(const std::string& platform, const Performance& performance) {
  for (const std::string& failure : performance.failures) {
    std::cerr << platform << ": " << failure << '\n';
  }
  return performance.failures.empty();
}

bool ReportDifferences(const std::string& file, const Performance& headless,
                       const Performance& qt) {
  const std::size_t count = std::max(headless.replies.size(), qt.replies.size());
  bool equal = true;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string a = i < headless.replies.size() ? headless.replies[i] : "(none)";
    const std::string b = i < qt.replies.size() ? qt.replies[i] : "(none)";
    if (a == b) continue;
    std::cerr << file << ": reply " << i + 1 << " differs\n  headless " << a << "\n  qt       " << b
              << '\n';
    equal = false;
  }
  return equal;
}

int Run(const std::string& program, const std::string& platform, const std::string& file) {
  const std::string directory = NewDirectory();
  if (platform != "both") {
    return Report(platform, scenario::Perform(file, program, platform, directory)) ? 0 : 1;
  }
  const auto headless = scenario::Perform(file, program, "headless", directory);
  const auto qt = scenario::Perform(file, program, "qt", directory);
  const std::array good = {Report("headless", headless), Report("qt", qt),
                           ReportDifferences(file, headless, qt)};
  return std::ranges::count(good, false) == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  constexpr std::array kPlatforms = {"headless", "qt", "both"};
  if (argc != 4 || std::ranges::find(kPlatforms, std::string_view(argv[2])) == kPlatforms.end()) {
    std::cerr << "usage: run_scenario PROGRAM headless|qt|both FILE\n";
    return 2;
  }
  try {
    return Run(argv[1], argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
