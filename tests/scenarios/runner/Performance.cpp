#include "Performance.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "Difference.h"
#include "DriveProcess.h"
#include "Edits.h"
#include "Scenario.h"

namespace scenario {
namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Readable(const std::string& bytes) {
  std::string utf8;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      utf8 += c;
    } else {
      utf8 += static_cast<char>(0xC0 | (byte >> 6));
      utf8 += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return TextOf(utf8);
}

constexpr std::string_view kIndent = "    ";

class Player {
 public:
  Player(std::string scenario, std::string directory)
      : scenario_(std::move(scenario)), directory_(std::move(directory)) {}

  Performance Play(const std::string& program, const std::string& platform) {
    const auto steps = ReadScenario(scenario_, directory_);
    std::vector<std::string> arguments = {"--platform", platform, "--host-dir", directory_.Path()};
    for (const Step& step : steps) {
      if (step.kind != Step::Kind::kOptions) continue;
      std::istringstream words(step.text);
      for (std::string word; words >> word;) arguments.push_back(word);
    }
    std::optional<DriveProcess> drive;
    for (const Step& step : steps) {
      // The program starts when the files that it finds at its start are there.
      if (step.kind == Step::Kind::kCommand && !drive) drive.emplace(program, arguments);
      if (!Take(step, drive)) return performance_;
    }
    if (drive && drive->Finish() != 0) Fail(steps.back(), "the program did not end with status 0");
    if (!edits_.Empty()) performance_.actual = edits_.Apply(ReadLines(scenario_));
    return performance_;
  }

 private:
  bool Take(const Step& step, std::optional<DriveProcess>& drive) {
    switch (step.kind) {
      case Step::Kind::kCommand:
        return Command(step, *drive);
      case Step::Kind::kWrite:
        WriteFile(PathOf(step), step.bytes);
        break;
      case Step::Kind::kHolds:
        if (const auto bytes = ReadFile(PathOf(step)); bytes != step.bytes) Holds(step, bytes);
        break;
      case Step::Kind::kMissing:
        if (fs::exists(PathOf(step))) Fail(step, "the file is there");
        break;
      case Step::Kind::kOptions:
        break;
    }
    return true;
  }

  bool Command(const Step& step, DriveProcess& drive) {
    const auto answer = drive.Ask(step.text);
    if (!answer) {
      Fail(step, "no reply");
      return false;
    }
    performance_.replies.push_back(*answer);
    const Difference difference = Compare(step.expected, Json::parse(*answer, nullptr, false));
    if (!difference.where.empty()) Differs(step, difference);
    return true;
  }

  void Differs(const Step& step, const Difference& difference) {
    Fail(step, step.words + "\n  " + difference.where + Shown(difference) + "\n  command  " +
                   step.text + "\n  reply    " + performance_.replies.back());
    std::vector<std::string> lines;
    for (const std::string& line : difference.came) {
      lines.push_back(std::string(kIndent) + directory_.TakeOutOf(line));
    }
    for (const int line : step.expectedLines) edits_.Remove(line);
    edits_.Insert(step.line, lines);
  }

  void Holds(const Step& step, const std::string& bytes) {
    Fail(step, step.file + "\n  - " + Readable(step.bytes) + "\n  + " + Readable(bytes));
    for (int line = step.line; line <= step.lastLine; ++line) edits_.Remove(line);
    edits_.Insert(step.line, {"holds " + step.file + " " + Readable(bytes)});
  }

  void Fail(const Step& step, const std::string& what) {
    performance_.failures.push_back(scenario_ + ":" + std::to_string(step.line) + ": " + what);
  }

  fs::path PathOf(const Step& step) const { return fs::path(directory_.Path()) / step.file; }

  std::string scenario_;
  Directory directory_;
  Performance performance_;
  Edits edits_;
};

}  // namespace

Performance Perform(const std::string& scenario, const std::string& program,
                    const std::string& platform, const std::string& directory) {
  fs::remove_all(directory);
  fs::create_directories(directory);
  Performance performance = Player(scenario, directory).Play(program, platform);
  fs::remove_all(directory);
  return performance;
}

}  // namespace scenario
