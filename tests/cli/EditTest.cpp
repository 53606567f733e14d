// What every command that changes files offers.
#include <sys/resource.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

const std::string kEditText = "define A 1\r\ndefine B 2\r\n\r\n\r\n\r\ndefine QSIZE 64\r\n";

class CommandLineEdit : public CommandLineTest {
 protected:
  CommandLineEdit() {
    Put("a.con", kEditText);
    Put("b.con", kEditText);
  }
};

TEST_F(CommandLineEdit, SetsSeveralValuesAtOnce) {
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=9", "A=-7", "b=55555"}),
            With(With(With(kEditText, "64", "9"), "A 1", "A -7"), "B 2", "B 55555"));
}

TEST_F(CommandLineEdit, SetsAllValuesOrNone) {
  ExpectRefusal({"set", "a.con", "A=5", "NONE=6", "--in-place"},
                "There is no setting \"NONE\", and a.con defines no such name.");
  ExpectRefusal({"set", "a.con", "A=5", "a=6", "--in-place"}, "A is set twice.");
}

TEST_F(CommandLineEdit, TellsFilesFromValues) {
  EXPECT_EQ(OutputOf({"set", "a.con", "b.con", "QSIZE", "9", "--in-place"}),
            "a.con: 1 change\nb.con: 1 change\n");
  EXPECT_EQ(Bytes("b.con"), With(kEditText, "64", "9"));
  Put("c=d.con", kEditText);
  EXPECT_EQ(OutputOf({"set", "c=d.con", "QSIZE=9"}), With(kEditText, "64", "9"));
  EXPECT_EQ(OutputOf({"set", "a.con", "./c=d.con", "QSIZE=9", "--dry-run", "--tsv"}),
            "file\tsection\titem\tdefine\tline\told\tnew\tproblem\n"
            "a.con\tMisc\tBullet Holes, Blood, Money\tQSIZE\t6\t9\t9\t\n"
            "./c=d.con\tMisc\tBullet Holes, Blood, Money\tQSIZE\t6\t64\t9\t\n");
  ExpectUsageError({"set", "a.con", "A=1", "b.con"},
                   "set: \"b.con\" has no \"=\": files come first, then ITEM=VALUE", "tessel set");
}

TEST_F(CommandLineEdit, ReadsManyFilesALineEach) {
  Put("b.con", With(kEditText, "64", "9"));
  EXPECT_EQ(OutputOf({"get", "a.con", "b.con", "QSIZE"}), "a.con: 64\nb.con: 9\n");
  EXPECT_EQ(OutputOf({"get", "a.con", "b.con", "A", "--tsv"}),
            "file\tsection\titem\tdefine\tvalue\tline\tproblem\n"
            "a.con\t\tA\tA\t1\t1\t\nb.con\t\tA\tA\t1\t1\t\n");
  const std::string list = OutputOf({"settings", "a.con", "b.con", "--section", "Misc"});
  EXPECT_THAT(list, testing::HasSubstr("a.con: Misc    Bullet Holes, Blood, Money        64\n"));
  EXPECT_THAT(list, testing::HasSubstr("b.con: Misc    Bullet Holes, Blood, Money        9\n"));
}

TEST_F(CommandLineEdit, GoesOnBehindAFileThatFails) {
  const Outcome outcome = Tessel({"get", "a.con", "none.con", "b.con", "QSIZE"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "a.con: 64\nb.con: 64\n");
  EXPECT_EQ(outcome.err, "tessel: Cannot open none.con: No such file or directory.\n");
}

TEST_F(CommandLineEdit, ShowsTheDifferenceAndWritesNothing) {
  const std::string expected =
      "--- a.con\n+++ a.con\n@@ -3,4 +3,4 @@\n \r\n \r\n \r\n-define QSIZE 64\r\n"
      "+define QSIZE 9\r\n";
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=9", "--dry-run"}), expected);
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=9", "--dry-run", "--in-place"}), expected);
  EXPECT_EQ(Bytes("a.con"), kEditText);
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=64", "--dry-run"}), "");
}

TEST_F(CommandLineEdit, ShowsDifferencesThatPatchApplies) {
  if (Shell("command -v patch").status != 0) GTEST_SKIP() << "there is no patch";
  Put("User.con", TemplateText("zmuser.dat"));
  const std::string converted = OutputOf({"convert", "User.con"});
  Shell("tessel convert User.con --dry-run | patch --binary User.con");
  EXPECT_EQ(Bytes("User.con"), converted);
}

TEST_F(CommandLineEdit, KeepsABackup) {
  ::chmod(PathOf("a.con").c_str(), 0600);
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=9", "--in-place", "--backup"}), "");
  EXPECT_EQ(Bytes("a.con"), With(kEditText, "64", "9"));
  EXPECT_EQ(Bytes("a.con~"), kEditText);
  EXPECT_EQ(ModeOf(PathOf("a.con~")), 0600U);
  EXPECT_EQ(OutputOf({"set", "a.con", "QSIZE=8", "--in-place", "--backup=.bak"}), "");
  EXPECT_EQ(Bytes("a.con.bak"), With(kEditText, "64", "9"));
}

TEST_F(CommandLineEdit, ReplacesABackupOnlyWhenForced) {
  Put("a.con~", "mine");
  ExpectRefusal({"set", "a.con", "QSIZE=9", "--in-place", "--backup"},
                "Cannot back up a.con as a.con~: it exists already; --force replaces it.");
  OutputOf({"set", "a.con", "QSIZE=9", "--in-place", "--backup", "--force"});
  EXPECT_EQ(Bytes("a.con~"), kEditText);
}

TEST_F(CommandLineEdit, KeepsTheOldBackupUntilTheNewOneIsWhole) {
  const std::string text = kEditText + std::string(20000, '\n');
  Put("a.con", text);
  Put("a.con~", "mine");
  const Outcome outcome =
      Tessel({"set", "a.con", "QSIZE=9", "--in-place", "--backup", "--force"}, [] {
        const rlimit limit = {8192, 8192};
        ::setrlimit(RLIMIT_FSIZE, &limit);
      });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tessel: Cannot back up a.con as a.con~: File too large.\n");
  EXPECT_EQ(Bytes("a.con"), text);
  EXPECT_EQ(Bytes("a.con~"), "mine");
}

TEST_F(CommandLineEdit, ReplacesByABackupNoFileOfTheSameCall) {
  Put("a.con~", kEditText);
  ExpectRefusal({"set", "a.con", "./a.con~", "QSIZE=9", "--in-place", "--backup", "--force"},
                "Cannot back up a.con as a.con~: ./a.con~ is one of the files to change.");
}

TEST_F(CommandLineEdit, KnowsWhatABackupNeeds) {
  EXPECT_EQ(Tessel({"set", "a.con", "QSIZE=9", "--backup"}).status, 2);
  EXPECT_EQ(Tessel({"set", "a.con", "QSIZE=9", "--in-place", "--backup=/x"}).status, 2);
  EXPECT_EQ(Bytes("a.con"), kEditText);
}

TEST_F(CommandLineEdit, ChoosesNotBetweenTwoSpellings) {
  Put("User.con", kEditText);
  Put("uSER.con", kEditText);
  ExpectRefusal(
      {"set", "user.con", "QSIZE=9", "--in-place"},
      "Cannot open user.con: it may be User.con or uSER.con; name the one that you mean.");
  ExpectRefusal(
      {"get", "USER.CON", "QSIZE"},
      "Cannot open USER.CON: it may be User.con or uSER.con; name the one that you mean.");
  EXPECT_EQ(OutputOf({"set", "uSER.con", "QSIZE=9", "--in-place"}), "");
  EXPECT_EQ(Bytes("User.con"), kEditText);
  EXPECT_EQ(OutputOf({"get", "A.CON", "QSIZE"}), "64\n");
}

TEST_F(CommandLineEdit, IsQuietWhenAsked) {
  EXPECT_EQ(OutputOf({"set", "a.con", "b.con", "QSIZE=9", "--in-place", "--quiet"}), "");
  Put("lf.con", With(TemplateText("zmuser.dat"), "\r\n", "\n"));
  EXPECT_EQ(OutputOf({"randomize", "a.con", "--section", "Misc", "--lower", "7", "--upper", "7",
                      "--quiet"}),
            With(kEditText, "64", "7"));
}

TEST_F(CommandLineEdit, ReportsChangesForPrograms) {
  const json report =
      json::parse(OutputOf({"set", "a.con", "none.con", "A=5", "QSIZE=64", "--dry-run", "--json"},
                           1, "tessel: Cannot open none.con: No such file or directory.\n"));
  EXPECT_EQ(report["command"], "set");
  const json& file = report["files"][0];
  EXPECT_EQ(file["file"], "a.con");
  EXPECT_EQ(file["error"], nullptr);
  EXPECT_EQ(file["changed"], 1);
  EXPECT_EQ(file["rows"][0], (json{{"section", nullptr},
                                   {"item", "A"},
                                   {"define", "A"},
                                   {"line", 1},
                                   {"old", "1"},
                                   {"new", "5"},
                                   {"problem", nullptr}}));
  EXPECT_THAT(file["difference"].get<std::string>(), testing::HasSubstr("\n+define A 5\r\n"));
  EXPECT_EQ(report["files"][1]["error"], "Cannot open none.con: No such file or directory.");
}

TEST_F(CommandLineEdit, PrintsNoReportWhereTheResultIs) {
  ExpectUsageError({"set", "a.con", "QSIZE=9", "--json"},
                   "set: standard output has the result: --json and --tsv need --in-place, -o FILE "
                   "or --dry-run",
                   "tessel set");
  EXPECT_EQ(Tessel({"set", "a.con", "QSIZE=9", "--tsv", "-o", "-"}).status, 2);
  EXPECT_EQ(Tessel({"set", "a.con", "QSIZE=9", "--tsv", "--json", "--dry-run"}).status, 2);
}

TEST_F(CommandLineEdit, ReportsForPeople) {
  const Outcome outcome = Tessel({"set", "a.con", "QSIZE=9", "--report"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "Bullet Holes, Blood, Money              64 ->        9\n");
}

}  // namespace
}  // namespace tessel::test
