#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"
#include "converter/VersionEdits.h"
#include "safekeeping/BackupStore.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

class CommandLineConvert : public CommandLineTest {
 protected:
  CommandLineConvert() { Put("User.con", old_); }

  const std::string old_ = TemplateText("zmuser.dat");
};

/// What the control makes of a text.
class TheControl : public TesselTest {
 public:
  std::string Converts(const std::string& text) {
    Open("/User.con", text);
    Control().Convert();
    return Current().Text();
  }
  void TestBody() override {}
};

TEST_F(CommandLineConvert, GivesTheBytesThatTheControlGives) {
  const std::string converted = OutputOf({"convert", "User.con"});
  EXPECT_NE(converted, old_);
  EXPECT_EQ(converted, TheControl().Converts(old_));
  EXPECT_EQ(Bytes("User.con"), old_);
}

TEST_F(CommandLineConvert, WritesAnotherFile) {
  EXPECT_EQ(OutputOf({"convert", "User.con", "-o", "new.con"}), "");
  EXPECT_EQ(Bytes("new.con"), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, TakesTheNameOfTheResultAsItStands) {
  EXPECT_EQ(OutputOf({"convert", "User.con", "-o", "user.con"}), "");
  EXPECT_EQ(Bytes("User.con"), old_);
  EXPECT_EQ(Bytes("user.con"), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, ConvertsTheFileItselfThatAnotherSpellingNames) {
  EXPECT_EQ(OutputOf({"convert", "USER.CON", "--in-place"}), "");
  EXPECT_EQ(Bytes("User.con"), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, KeepsTheOldBytesOfAFileWithASecondNameAmongTheBackups) {
  std::filesystem::create_hard_link(PathOf("User.con"), PathOf("second.con"));
  EXPECT_EQ(OutputOf({"convert", "User.con", "--in-place"}), "");
  EXPECT_EQ(Bytes("second.con"), TheControl().Converts(old_));
  const BackupStore backups(state_ + "/ZanthMan/backups");
  ASSERT_EQ(backups.List().size(), 1U);
  EXPECT_EQ(backups.List()[0].path, PathOf("User.con"));
  EXPECT_EQ(backups.Read(backups.List()[0]).bytes, old_);
}

TEST_F(CommandLineConvert, RefusesAFileWithASecondNameWhenItsOldBytesCannotBeKept) {
  std::filesystem::create_hard_link(PathOf("User.con"), PathOf("second.con"));
  std::ofstream(state_) << "no folder";
  ExpectRefusal({"convert", "User.con", "--in-place"},
                "Cannot save User.con: it can only be written in place, and its old bytes cannot "
                "be kept first (Not a directory).");
}

TEST_F(CommandLineConvert, ConvertsSeveralFilesInPlace) {
  Put("Two.con", old_ + "// two");
  EXPECT_EQ(OutputOf({"convert", "User.con", "Two.con", "--in-place"}),
            "User.con: 51 changes\nTwo.con: 51 changes\n");
  EXPECT_EQ(Bytes("User.con"), TheControl().Converts(old_));
  EXPECT_EQ(Bytes("Two.con"), TheControl().Converts(old_ + "// two"));
}

TEST_F(CommandLineConvert, ConvertsTheOthersWhenOneIsRefused) {
  Put("new.con", TemplateText("zmuserp.dat"));
  const Outcome outcome = Tessel({"convert", "--in-place", "new.con", "none.con", "User.con"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "tessel: new.con: This con appears to already be version 1.4/1.5 compatible.\n"
            "tessel: Cannot open none.con: No such file or directory.\n");
  EXPECT_EQ(Bytes("new.con"), TemplateText("zmuserp.dat"));
  EXPECT_EQ(Bytes("User.con"), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, NeedsInPlaceForSeveralFiles) {
  const std::string sentence = "convert: several files need --in-place or --dry-run";
  ExpectUsageError({"convert", "User.con", "User.con"}, sentence, "tessel convert");
  ExpectUsageError({"convert", "User.con", "User.con", "-o", "x"}, sentence, "tessel convert");
  EXPECT_EQ(Bytes("User.con"), old_);
}

TEST_F(CommandLineConvert, RefusesWhatIsNoOldUserFile) {
  Put("new.con", "define QSIZE 64");
  Put("other.con", "action ASTAND 0\r\n");
  ExpectRefusal({"convert", "new.con", "--in-place"},
                "new.con: This con appears to already be version 1.4/1.5 compatible.");
  ExpectRefusal({"convert", "other.con", "--in-place"},
                "other.con: This does not appear to be a user.con file.");
}

TEST_F(CommandLineConvert, LeavesTheFileAloneWhenAStepFails) {
  Put("short.con", "definelevelname 0 0 a.map 1:1 1:1 A\r\n");
  ExpectRefusal({"convert", "short.con", "--in-place"},
                "short.con: The file cannot be converted: its start-up parameters lack "
                "\"gamestartup\".");
}

TEST_F(CommandLineConvert, ReportsEveryStep) {
  Put("User.con", With(old_, "define GOTTASMART", "// gone"));
  const Outcome outcome = Tessel({"convert", "User.con", "--report", "--in-place"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.err.starts_with("User.con:\n  step 1  changed  \"/*\"\n")) << outcome.err;
  EXPECT_THAT(outcome.err, testing::HasSubstr("\n  step 18  not found  \"define GOTTASMART\"\n"));
  const int last = VersionEdits().back().step;
  EXPECT_THAT(outcome.err, testing::HasSubstr("\n  step " + std::to_string(last) + "  "));
}

/// A text with LF in the place of each CR LF.
std::string WithLf(std::string text) {
  std::erase(text, '\r');
  return text;
}

TEST_F(CommandLineConvert, SaysThatAFileGetsMixedLineEnds) {
  Put("lf.con", WithLf(old_));
  const Outcome outcome = Tessel({"convert", "lf.con"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, TheControl().Converts(WithLf(old_)));
  EXPECT_EQ(outcome.err,
            "tessel: lf.con: its lines end with LF, and those that the conversion inserted with "
            "CR LF; \"--line-ends keep\" writes LF everywhere.\n");
  EXPECT_EQ(OutputOf({"convert", "lf.con", "--quiet"}), outcome.out);
  EXPECT_EQ(OutputOf({"convert", "User.con"}), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, KeepsTheLineEndsOfTheFileWhenAsked) {
  Put("lf.con", WithLf(old_));
  EXPECT_EQ(OutputOf({"convert", "lf.con", "--line-ends", "keep"}),
            WithLf(TheControl().Converts(WithLf(old_))));
  EXPECT_EQ(OutputOf({"convert", "User.con", "--line-ends", "keep"}), TheControl().Converts(old_));
}

TEST_F(CommandLineConvert, KeepsNoLineEndsThatAreMixed) {
  Put("mixed.con", With(old_, "\r\n", "\n"));
  ExpectRefusal({"convert", "mixed.con", "--line-ends", "keep"},
                "mixed.con: its own line ends are mixed, so there are none to keep.");
  ExpectUsageError({"convert", "User.con", "--line-ends", "lf"},
                   "--line-ends: \"lf\" is none of control, keep", "tessel convert");
}

TEST_F(CommandLineConvert, ReportsForPrograms) {
  const auto report =
      nlohmann::json::parse(OutputOf({"convert", "User.con", "--dry-run", "--json"}));
  EXPECT_EQ(report["files"][0]["rows"][0],
            (nlohmann::json{{"step", 1}, {"sought", "/*"}, {"found", true}, {"changed", true}}));
  EXPECT_EQ(report["files"][0]["changed"], 51);
}

}  // namespace
}  // namespace tessel::test
