// Memory that ends at any one moment of a command: nothing is lost, and the command works once
// there is some again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <string>

#include "randomizer/frmRand.h"
#include "support/RealWorld.h"
#include "support/RefusedMemory.h"

namespace tessel::test {
namespace {

std::string UserFile() {
  std::ifstream file(TESSEL_TEST_DATA_DIR "/zmuser.dat", std::ios::binary);
  return (std::ostringstream() << file.rdbuf()).str();
}

std::string WithoutDigits(std::string text) {
  std::erase_if(text, [](unsigned char byte) { return std::isdigit(byte) != 0 || byte == '.'; });
  return text;
}

void AnswerTheRange(Program& program) {
  program.fakes.forms.scripts = {[](Form& form) {
    auto& range = dynamic_cast<frmRand&>(form);
    range.cmbChoose[0].Type("10");
    range.cmbChoose[1].Type("50");
    range.cmdOk.Press();
  }};
}

struct Command {
  const char* name;
  /// With memory; everything that the test needs itself.
  void (*Prepare)(Program& program, const std::string& path);
  void (*Run)(Program& program, const std::string& other);
  /// Its errors undo what it did; another one may have changed some values.
  bool wholeOrNot = true;
};

void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

void PrepareNothing(Program&, const std::string&) {}

const std::string kSaveAs = "mnuRtbPopupFileSaveAs";
const Command kCommands[] = {
    {"open", PrepareNothing,
     [](Program& program, const std::string& other) { program.control.OpenFile(other); }},
    {"colour",
     [](Program& program, const std::string&) { program.Controls().tbToolBar.Press("Colorize"); },
     [](Program& program, const std::string&) { program.Controls().tbToolBar.Press("Colorize"); }},
    {"convert", PrepareNothing,
     [](Program& program, const std::string&) { program.control.Convert(); }},
    {"randomize", [](Program& program, const std::string&) { AnswerTheRange(program); },
     [](Program& program, const std::string&) { program.Controls().tbToolBar.Press("RandSec"); },
     false},
    {"save",
     [](Program& program, const std::string& path) {
       program.fakes.fileDialogs.answers = {{{path}}};
     },
     [](Program& program, const std::string&) { program.Choose(kSaveAs); }},
};

class WithoutMemory : public testing::TestWithParam<Command> {
 protected:
  /// What a person has: the document in front, its marker and colours, the tabs, the file.
  struct State {
    std::string text;
    std::vector<ColourRun> colours;
    bool modified = false;
    int tabs = 0;
    std::string file;

    bool operator==(const State&) const = default;
  };

  State Of(Program& program) const {
    const RichTextBox& editor = program.Editor();
    return {editor.Text(), editor.Store().Runs(0, editor.Length()), program.Modified(),
            program.Controls().tbsRtb.Count(), BytesOf(path)};
  }
  /// Opens the file, changes it, and has everything ready for the command.
  void Prepare(Program& program) {
    directory.Put("user.con", old);
    program.Open(path);
    program.Editor().SelectByHand(0, 0);
    program.Editor().Type("// typed\r\n");
    GetParam().Prepare(program, path);
    ASSERT_EQ(program.ToldInALine(), "");
  }
  std::pair<State, State> BeforeAndAfter() {
    Program program(settings / "undisturbed.db");
    Prepare(program);
    const State before = Of(program);
    GetParam().Run(program, other);
    return {before, Of(program)};
  }

  const std::string old = UserFile();
  TempDirectory directory;
  TempDirectory settings;
  std::string path = directory / "user.con";
  std::string other = directory.Put("other.con", "define A 2\r\n");
};

TEST_P(WithoutMemory, ACommandLosesNothingAndWorksLater) {
  if (!kMemoryCanBeRefused) GTEST_SKIP() << "the sanitizers have a memory of their own";
  const auto [before, after] = BeforeAndAfter();
  int told = 0;
  for (long allocation = 1;; allocation += std::max(1L, allocation / 30)) {
    SCOPED_TRACE("allocation " + std::to_string(allocation));
    Program program(settings / "settings.db");
    Prepare(program);
    RefuseMemoryOnce(allocation);
    GetParam().Run(program, other);
    const bool refused = MemoryWasRefused();
    const std::vector<std::string> boxes = program.Told();
    const State state = Of(program);
    if (boxes.empty()) {
      EXPECT_TRUE(state == after) << "it does without, or says so";
      if (refused) continue;
      break;
    }
    ++told;
    EXPECT_THAT(boxes, testing::ElementsAre(testing::HasSubstr("memory")));
    EXPECT_TRUE(state.file == before.file || state.file == after.file);
    if (!GetParam().wholeOrNot) {
      EXPECT_EQ(WithoutDigits(state.text), WithoutDigits(before.text));
      continue;
    }
    EXPECT_TRUE(state.text == before.text || state.text == after.text);
    GetParam().Prepare(program, path);
    GetParam().Run(program, other);
    EXPECT_TRUE(Of(program).text == after.text) << "with memory again";
  }
  EXPECT_GE(told, 3);
}

std::string NameOf(const testing::TestParamInfo<Command>& command) { return command.param.name; }

INSTANTIATE_TEST_SUITE_P(Every, WithoutMemory, testing::ValuesIn(kCommands), NameOf);

}  // namespace
}  // namespace tessel::test
