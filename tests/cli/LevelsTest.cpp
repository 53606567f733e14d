#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

const std::string kLevelsText =
    "definelevelname 0 0 E1L1.map 01:45 00:53 HOLLYWOOD HOLOCAUST\r\n"
    "definelevelname 0 7 E1L8.map 03:45 01:50 CAF\xC9 <b>\r\n"
    "define QSIZE 64\r\n";

class CommandLineLevels : public CommandLineTest {
 protected:
  CommandLineLevels() { Put("User.con", kLevelsText); }
};

TEST_F(CommandLineLevels, ListsLevelsMapsAndTitles) {
  EXPECT_EQ(OutputOf({"levels", "User.con"}),
            "0 0\tE1L1.map\tHOLLYWOOD HOLOCAUST\n0 7\tE1L8.map\tCAF\xC3\x89 <b>\n");
}

TEST_F(CommandLineLevels, ListsAsJson) {
  const json report = json::parse(OutputOf({"levels", "User.con", "--json"}));
  EXPECT_EQ(report["files"][0]["rows"], json::parse(R"(
      [{"level":"0 0","map":"E1L1.map","par":"01:45","record":"00:53",
        "title":"HOLLYWOOD HOLOCAUST","line":1,"problem":null},
       {"level":"0 7","map":"E1L8.map","par":"03:45","record":"01:50",
        "title":"CAF\u00C9 <b>","line":2,"problem":null}])"));
}

TEST_F(CommandLineLevels, ListsNothingForAFileWithoutLevels) {
  Put("empty.con", "");
  EXPECT_EQ(OutputOf({"levels", "empty.con"}), "");
  const json report = json::parse(OutputOf({"levels", "empty.con", "--json"}));
  EXPECT_EQ(report["files"][0]["rows"], json::array());
}

TEST_F(CommandLineLevels, JsonHoldsNoControlCharactersThatATerminalWouldObey) {
  Put("odd.con", "definelevelname 0 0 A.map 01:45 00:53 DEL \x7f AND \x90 AND \x9b\r\n");
  const std::string out = OutputOf({"levels", "odd.con", "--json"});
  EXPECT_THAT(out, testing::HasSubstr("DEL \\u007f AND \\u0090 AND \u203a"));
  EXPECT_EQ(json::parse(out)["files"][0]["rows"][0]["title"], "DEL \x7f AND \u0090 AND \u203a");
}

TEST_F(CommandLineLevels, ShowsOneLevel) {
  EXPECT_EQ(OutputOf({"level", "User.con", "0 7"}), "E1L8.map\tCAF\xC3\x89 <b>\n");
}

TEST_F(CommandLineLevels, ChangesMapAndTitle) {
  EXPECT_EQ(OutputOf({"level", "User.con", "0 7", "--map", "new.map"}),
            With(kLevelsText, "E1L8.map", "new.map"));
  EXPECT_EQ(OutputOf({"level", "User.con", "0 7", "--title", "IT'S: HERE"}),
            With(kLevelsText, "CAF\xC9 <b>", "IT'S: HERE"));
  EXPECT_EQ(OutputOf({"level", "User.con", "0 0", "--map", "a.map", "--title", "B", "--in-place"}),
            "");
  EXPECT_EQ(Bytes("User.con"),
            With(With(kLevelsText, "E1L1.map", "a.map"), "HOLLYWOOD HOLOCAUST", "B"));
}

TEST_F(CommandLineLevels, WritesLettersAsTheSingleBytesOfCONFiles) {
  EXPECT_EQ(OutputOf({"level", "User.con", "0 7", "--title", "\xC3\x84 \xE2\x82\xAC"}),
            With(kLevelsText, "CAF\xC9 <b>", "\xC4 \x80"));
}

TEST_F(CommandLineLevels, RefusesLettersThatCONFilesDoNotHave) {
  ExpectUsageError({"level", "User.con", "0 7", "--title", "\xE6\x97\xA5"},
                   "--title: \"\xE6\x97\xA5\" has a character that a CON file cannot hold",
                   "tessel level");
}

TEST_F(CommandLineLevels, RefusesAMapOrTitleThatWouldBreakTheLine) {
  ExpectRefusal({"level", "User.con", "0 7", "--map", "a b.map", "--in-place"},
                "\"a b.map\" cannot be the map of level 0 7.");
  ExpectUsageError({"level", "User.con", "0 7", "--map", "", "--in-place"},
                   "--map: the name of the file is empty", "tessel level");
  ExpectRefusal({"level", "User.con", "0 7", "--title", "a\nb", "--in-place"},
                "\"a?b\" cannot be the title of level 0 7.");
}

TEST_F(CommandLineLevels, RefusesALevelThatIsNotThere) {
  ExpectRefusal({"level", "User.con", "9 9", "--map", "x.map", "--in-place"},
                "User.con has no level \"9 9\".");
}

TEST_F(CommandLineLevels, HasNothingToWriteWithoutAChange) {
  ExpectUsageError({"level", "User.con", "0 7", "--in-place"},
                   "level: there is nothing to write without --map or --title", "tessel level");
}

TEST_F(CommandLineLevels, TellsLevelsApartWhoseNumbersBeginAlike) {
  const std::string text =
      "definelevelname 0 10 A.map 01:00 02:00 TEN\r\n"
      "definelevelname 0 1 B.map 01:00 02:00 ONE\r\n";
  Put("lv.con", text);
  EXPECT_EQ(OutputOf({"levels", "lv.con"}), "0 10\tA.map\tTEN\n0 1\tB.map\tONE\n");
  EXPECT_EQ(OutputOf({"level", "lv.con", "0 1"}), "B.map\tONE\n");
  EXPECT_EQ(OutputOf({"level", "lv.con", "0 1", "--title", "X"}), With(text, "ONE", "X"));
}

TEST_F(CommandLineLevels, ChangesItsOwnLineWhereverTheOldTextsOccurBefore) {
  const std::string text = "// TITLE of A.map: TITLE\r\ndefinequote 1 TITLE\r\n" +
                           std::string("definelevelname 0 1 A.map 01:00 02:00 TITLE\r\n");
  Put("lv.con", text);
  EXPECT_EQ(OutputOf({"level", "lv.con", "0 1", "--title", "NEW"}),
            With(text, "02:00 TITLE", "02:00 NEW"));
  EXPECT_EQ(OutputOf({"level", "lv.con", "0 1", "--map", "n.map"}),
            With(text, "0 1 A.map", "0 1 n.map"));
}

TEST_F(CommandLineLevels, LeavesCommentsAlone) {
  const std::string text =
      "// definelevelname 0 1 OLD.map 01:00 02:00 OLD\r\n"
      "definelevelname 0 1\tA.map 01:00 02:00 TITLE // note\r\n";
  Put("lv.con", text);
  EXPECT_EQ(OutputOf({"levels", "lv.con"}), "0 1\tA.map\tTITLE\n");
  EXPECT_EQ(OutputOf({"level", "lv.con", "0 1", "--title", "NEW"}), With(text, "TITLE", "NEW"));
}

TEST_F(CommandLineLevels, LetsNothingRunIntoTheCommentBehindIt) {
  Put("lv.con", "definelevelname 0 1 a.map/*x*/ 01:00 02:00 TITLE/*c\r\n*/\r\n");
  ExpectRefusal({"level", "lv.con", "0 1", "--title", "NEW/", "--in-place"},
                "\"NEW/\" cannot be the title of level 0 1.");
  ExpectRefusal({"level", "lv.con", "0 1", "--map", "b/", "--in-place"},
                "\"b/\" cannot be the map of level 0 1.");
  Put("lv.con", "definelevelname 0 1 a.map 01:00 02:00 TITLE//note\r\n");
  ExpectRefusal({"level", "lv.con", "0 1", "--title", "NEW/", "--in-place"},
                "\"NEW/\" cannot be the title of level 0 1.");
}

TEST_F(CommandLineLevels, TakesALevelAsPeopleWriteIt) {
  for (const char* level : {"0 7", "0/7", "E1L8", "e1l8"}) {
    EXPECT_EQ(OutputOf({"level", "User.con", level}), "E1L8.map\tCAF\xC3\x89 <b>\n") << level;
  }
  for (const char* level : {"E0L8", "E1", "7", "0 -7", "-0 7", "0  7", "x", "0/7/8", "E1L8x", ""}) {
    EXPECT_EQ(Tessel({"level", "User.con", level}).status, 2) << level;
  }
  ExpectUsageError({"level", "User.con", "0", "7"},
                   "LEVEL: \"7\" is no level: write \"0 7\", 0/7 or E1L8. Did you mean \"0/7\"?",
                   "tessel level");
}

TEST_F(CommandLineLevels, GuessesAMistypedLevel) {
  ExpectRefusal({"level", "User.con", "E1L9"},
                "User.con has no level \"0 8\". Did you mean \"0 0\" or \"0 7\"?");
}

TEST_F(CommandLineLevels, RefusesToChooseBetweenTwoLinesOfALevel) {
  const std::string text = kLevelsText + "definelevelname 0 7 B.map 03:45 01:50 SECOND\r\n";
  Put("User.con", text);
  ExpectRefusal({"level", "User.con", "0 7", "--title", "X", "--in-place"},
                "User.con has level 0 7 in the lines 2 and 4: choose one with --line.");
  EXPECT_EQ(OutputOf({"level", "User.con", "0 7", "--title", "X", "--line", "4"}),
            With(text, "SECOND", "X"));
  ExpectRefusal({"level", "User.con", "0 7", "--line", "3"},
                "Line 3 of User.con is no line of level 0 7.");
}

TEST_F(CommandLineLevels, SaysWhatALineLacks) {
  Put("lv.con", "definelevelname 0 1 A.map 01:00\r\n");
  ExpectRefusal({"level", "lv.con", "0 1", "--map", "b.map"},
                "Line 1 of lv.con is no whole level line: it has no record.");
  EXPECT_EQ(OutputOf({"levels", "lv.con", "--tsv"}),
            "file\tlevel\tmap\tpar\trecord\ttitle\tline\tproblem\n"
            "lv.con\t0 1\tA.map\t01:00\t\t\t1\tit has no record\n");
}

TEST_F(CommandLineLevels, CountsWhatItChanged) {
  const auto changed = [&](const std::string& map, const std::string& title) {
    const std::string out = OutputOf(
        {"level", "User.con", "0 0", "--map", map, "--title", title, "--dry-run", "--json"});
    return json::parse(out)["files"][0]["changed"].get<int>();
  };
  EXPECT_EQ(changed("E1L1.map", "HOLLYWOOD HOLOCAUST"), 0);
  EXPECT_EQ(changed("a.map", "HOLLYWOOD HOLOCAUST"), 1);
  EXPECT_EQ(changed("a.map", "B"), 2);
}

TEST_F(CommandLineLevels, ReportsWhatItChanged) {
  const Outcome outcome = Tessel(
      {"level", "User.con", "0 7", "--map", "n.map", "--title", "N", "--report", "-o", "new.con"});
  EXPECT_EQ(outcome.err, "map of 0 7: E1L8.map -> n.map\ntitle of 0 7: CAF\xC3\x89 <b> -> N\n");
  const json report =
      json::parse(OutputOf({"level", "User.con", "0 7", "--title", "N", "--in-place", "--json"}));
  EXPECT_EQ(report["files"][0]["rows"][0], (json{{"level", "0 7"},
                                                 {"field", "title"},
                                                 {"old", "CAF\u00C9 <b>"},
                                                 {"new", "N"},
                                                 {"line", 2}}));
}

}  // namespace
}  // namespace tessel::test
