// Plays a scenario: run_scenario PROGRAM headless|qt|both FILE. With "both" each platform must do
// as the scenario expects, and their replies must be equal, line by line. What came instead of what
// was expected is written to FILE.new.
//
// run_scenario words FILE writes a scenario in words, run_scenario json FILE as lines of the
// protocol.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "Performance.h"
#include "Turning.h"

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

/// The new text stands beside the scenario until somebody takes it over; it goes when nothing
/// differs.
void KeepActual(const std::string& file, const Performance& performance) {
  const std::string fresh = file + ".new";
  std::error_code ignored;
  std::filesystem::remove(fresh, ignored);
  if (performance.actual.empty()) return;
  std::ofstream out(fresh, std::ios::binary);
  if (!(out << performance.actual)) return;
  std::cerr << fresh << ": what came; scripts/accept-scenarios.sh takes it over\n";
}

int Play(const std::string& program, const std::string& platform, const std::string& file) {
  const std::string directory = NewDirectory();
  if (platform != "both") {
    const auto performance = scenario::Perform(file, program, platform, directory);
    KeepActual(file, performance);
    return Report(platform, performance) ? 0 : 1;
  }
  const auto headless = scenario::Perform(file, program, "headless", directory);
  const auto qt = scenario::Perform(file, program, "qt", directory);
  KeepActual(file, headless.actual.empty() ? qt : headless);
  const std::array good = {Report("headless", headless), Report("qt", qt),
                           ReportDifferences(file, headless, qt)};
  return std::ranges::count(good, false) == 0 ? 0 : 1;
}

int Run(const std::vector<std::string>& arguments) {
  constexpr std::array kPlatforms = {"headless", "qt", "both"};
  if (arguments.size() == 2 && arguments[0] == "words") {
    std::cout << scenario::InWords(arguments[1]);
    return 0;
  }
  if (arguments.size() == 2 && arguments[0] == "json") {
    std::cout << scenario::InJson(arguments[1]);
    return 0;
  }
  if (arguments.size() == 3 && std::ranges::find(kPlatforms, arguments[1]) != kPlatforms.end()) {
    return Play(arguments[0], arguments[1], arguments[2]);
  }
  std::cerr << "usage: run_scenario PROGRAM headless|qt|both FILE\n"
               "       run_scenario words|json FILE\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
