#include "Performance.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include "DriveProcess.h"
#include "Match.h"
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
  return Json(utf8).dump();
}

class Player {
 public:
  Player(std::string scenario, std::string directory)
      : scenario_(std::move(scenario)), directory_(std::move(directory)) {}

  Performance Play(const std::string& program, const std::string& platform) {
    const auto steps = ReadScenario(scenario_, directory_);
    std::vector<std::string> arguments = {"--platform", platform, "--host-dir", directory_};
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
    EndCommand();
    if (drive && drive->Finish() != 0) Fail(steps.back(), "the program did not end with status 0");
    return performance_;
  }

 private:
  bool Take(const Step& step, std::optional<DriveProcess>& drive) {
    if (step.kind != Step::Kind::kExpect) EndCommand();
    switch (step.kind) {
      case Step::Kind::kCommand:
        return Command(step, *drive);
      case Step::Kind::kExpect:
        Expect(step);
        break;
      case Step::Kind::kWrite:
        WriteFile(fs::path(directory_) / step.file, step.bytes);
        break;
      case Step::Kind::kHolds:
        if (const auto bytes = ReadFile(fs::path(directory_) / step.file); bytes != step.bytes) {
          Fail(step, "expected " + Readable(step.bytes) + "\n  got      " + Readable(bytes));
        }
        break;
      case Step::Kind::kMissing:
        if (fs::exists(fs::path(directory_) / step.file)) Fail(step, "the file is there");
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
    command_ = step;
    reply_ = Json::parse(*answer, nullptr, false);
    mayFail_ = false;
    return true;
  }

  void Expect(const Step& step) {
    const Json expected = Json::parse(step.text, nullptr, false);
    if (!expected.is_object()) {
      Fail(step, "the expectation is no JSON object");
      return;
    }
    if (expected.contains("ok")) mayFail_ = true;
    if (const auto difference = Mismatch(expected, reply_); !difference.empty()) {
      Fail(step, difference + "\n  command  " + command_->text + "\n  expected " + step.text +
                     "\n  reply    " + performance_.replies.back());
    }
  }

  /// A command whose scenario does not say "ok" must have succeeded.
  void EndCommand() {
    if (!command_) return;
    const bool ok = reply_.is_object() && reply_.value("ok", false);
    if (!mayFail_ && !ok) {
      Fail(*command_,
           "refused\n  command  " + command_->text + "\n  reply    " + performance_.replies.back());
    }
    command_.reset();
  }

  void Fail(const Step& step, const std::string& what) {
    performance_.failures.push_back(scenario_ + ":" + std::to_string(step.line) + ": " + what);
  }

  std::string scenario_;
  std::string directory_;
  Performance performance_;
  std::optional<Step> command_;
  Json reply_;
  bool mayFail_ = false;
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
