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
  EXPECT_EQ(json::parse(OutputOf({"levels", "User.con", "--json"})),
            json::parse(R"([{"level":"0 0","map":"E1L1.map","title":"HOLLYWOOD HOLOCAUST"},
                            {"level":"0 7","map":"E1L8.map","title":"CAF\u00C9 <b>"}])"));
}

TEST_F(CommandLineLevels, ListsNothingForAFileWithoutLevels) {
  Put("empty.con", "");
  EXPECT_EQ(OutputOf({"levels", "empty.con"}), "");
  EXPECT_EQ(OutputOf({"levels", "empty.con", "--json"}), "[]\n");
}

TEST_F(CommandLineLevels, JsonHoldsNoControlCharactersThatATerminalWouldObey) {
  Put("odd.con", "definelevelname 0 0 A.map 01:45 00:53 DEL \x7f AND \x90 AND \x9b\r\n");
  const std::string out = OutputOf({"levels", "odd.con", "--json"});
  EXPECT_THAT(out, testing::HasSubstr("DEL \\u007f AND \\u0090 AND \u203a"));
  EXPECT_EQ(json::parse(out)[0]["title"], "DEL \x7f AND \u0090 AND \u203a");
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

}  // namespace
}  // namespace tessel::test
