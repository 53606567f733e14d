// "diff" and "apply": what differs is what is written.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <random>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

const std::string kBefore =
    "define TROOPSTRENGTH 30 // TROOPSTRENGTH\r\ndefine CAMERASDESTRUCTABLE NO\r\n"
    "definequote 5 RUN MODE ON\r\ndefineskillname 0 EASY\r\n"
    "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n"
    "definesound FIST_HIT fhit01.voc -64 64 0 0 0\r\n";
const std::string kAfter =
    "// moved and tuned\n"
    "definesound FIST_HIT   other.voc -64 128 0 0 0\n"
    "define CAMERASDESTRUCTABLE YES\ndefine TROOPSTRENGTH 40\n"
    "definelevelname 0 7 MINE.map 05:00 03:00 LAST | STEPS\n"
    "defineskillname 0 EASY\ndefinequote 5 RUN\n";

class CommandLineDiff : public CommandLineTest {
 protected:
  CommandLineDiff() {
    Put("A.con", kBefore);
    Put("B.con", kAfter);
  }
};

TEST_F(CommandLineDiff, TellsWhatDiffersInValuesAndNotInLines) {
  EXPECT_EQ(OutputOf({"diff", "A.con", "B.con"}),
            "TROOPSTRENGTH: 30 -> 40\n"
            "CAMERASDESTRUCTABLE: NO -> YES\n"
            "quote 5: RUN MODE ON -> RUN\n"
            "map of level 0 7: E1L8.map -> MINE.map\n"
            "title of level 0 7: FIRST STEPS -> LAST | STEPS\n"
            "file of sound FIST_HIT: fhit01.voc -> other.voc\n"
            "highest of sound FIST_HIT: 64 -> 128\n");
  EXPECT_EQ(OutputOf({"diff", "A.con", "A.con"}), "");
}

TEST_F(CommandLineDiff, ShowsADashForWhatAFileLacks) {
  Put("C.con", "define OTHER 1\n");
  Put("D.con", "define MORE 2\n");
  EXPECT_EQ(OutputOf({"diff", "C.con", "D.con"}), "OTHER: 1 -> -\nMORE: - -> 2\n");
}

TEST_F(CommandLineDiff, PrintsAMarkdownTable) {
  const std::string table = OutputOf({"diff", "A.con", "B.con", "--markdown"});
  EXPECT_THAT(table, testing::StartsWith("| value | A.con | B.con |\n|---|---|---|\n"
                                         "| TROOPSTRENGTH | 30 | 40 |\n"));
  EXPECT_THAT(table, testing::HasSubstr("| LAST \\| STEPS |\n"));
}

TEST_F(CommandLineDiff, IsAppliedAsJsonAndAsToml) {
  for (const char* form : {"--json", "--toml"}) {
    Put("page", OutputOf({"diff", "A.con", "B.con", form}));
    OutputOf({"apply", "page", "A.con", "-o", "C.con", "--force"});
    EXPECT_EQ(OutputOf({"diff", "C.con", "B.con"}), "") << form;
  }
  EXPECT_EQ(Bytes("C.con"),
            "define TROOPSTRENGTH 40 // TROOPSTRENGTH\r\ndefine CAMERASDESTRUCTABLE YES\r\n"
            "definequote 5 RUN\r\ndefineskillname 0 EASY\r\n"
            "definelevelname 0 7 MINE.map 05:00 03:00 LAST | STEPS\r\n"
            "definesound FIST_HIT other.voc -64 128 0 0 0\r\n");
}

TEST_F(CommandLineDiff, TellsWhatStandsTwice) {
  Put("C.con", "define X 1\ndefine X 2\n");
  const Outcome outcome = Tessel({"diff", "C.con", "A.con"});
  EXPECT_THAT(outcome.err, testing::HasSubstr("X occurs twice in one file; the first counts."));
}

class CommandLineApply : public CommandLineDiff {};

TEST_F(CommandLineApply, TakesAPageThatAPersonWrites) {
  Put("page.toml",
      "[values]\nTrooper = 77\nCAMERASDESTRUCTABLE = \"yes\"\n"
      "[levels.E1L8]\ntitle = \"ANEW\"\n[quotes]\n5 = \"OH\"\n"
      "[sounds.fist_hit]\npriority = 5\n");
  EXPECT_EQ(OutputOf({"apply", "page.toml", "A.con"}),
            "define TROOPSTRENGTH 77 // TROOPSTRENGTH\r\ndefine CAMERASDESTRUCTABLE YES\r\n"
            "definequote 5 OH\r\ndefineskillname 0 EASY\r\n"
            "definelevelname 0 7 E1L8.map 05:00 03:00 ANEW\r\n"
            "definesound FIST_HIT fhit01.voc -64 64 5 0 0\r\n");
}

TEST_F(CommandLineApply, TakesTheJsonOfSettings) {
  Put("page.json", OutputOf({"settings", "B.con", "--json"}));
  OutputOf({"apply", "page.json", "A.con", "--in-place"});
  EXPECT_EQ(OutputOf({"get", "A.con", "Trooper"}), "40\n");
}

TEST_F(CommandLineApply, WritesAllOrNothing) {
  Put("page.toml", "[values]\nTROOPSTRENGTH = 1\nNOSUCH = 5\n");
  const Outcome outcome = Tessel({"apply", "page.toml", "A.con", "--in-place"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::HasSubstr("There is no setting \"NOSUCH\""));
  EXPECT_EQ(Bytes("A.con"), kBefore);
  EXPECT_EQ(Tessel({"apply", "page.toml", "A.con", "--in-place", "--skip-missing"}).err,
            "tessel: A.con: it does not have 1 of the values.\n");
  EXPECT_THAT(Bytes("A.con"), testing::StartsWith("define TROOPSTRENGTH 1 "));
}

TEST_F(CommandLineApply, LooksAsSetDoes) {
  Put("odd.con", "// TROOPSTRENGTH is much\r\ndefine TROOPSTRENGTH 30\r\n");
  Put("page.toml", "[values]\nTROOPSTRENGTH = 1\n");
  EXPECT_THAT(Tessel({"apply", "page.toml", "odd.con"}).err, testing::HasSubstr("is a comment"));
  Put("page.toml", "[values]\nTROOPSTRENGTH = \"lots\"\n");
  EXPECT_THAT(Tessel({"apply", "page.toml", "A.con"}).err,
              testing::HasSubstr("cannot be the value of Trooper"));
}

TEST_F(CommandLineApply, RefusesWhatAPlaceCannotHold) {
  for (const std::string value :
       {"[levels.\"0 7\"]\nmap = \"two words\"", "[levels.\"0 7\"]\ntitle = \"a // b\"",
        "[quotes]\n5 = \"\"", "[sounds.FIST_HIT]\nfile = \"\"",
        "[sounds.FIST_HIT]\nvolume = \"0 0\"", "[levels.\"0 8\"]\nmap = \"x\"",
        "[levels.\"0 7\"]\nnothing = \"x\"", "[quotes]\n5 = \"a\\nb\""}) {
    Put("page.toml", value + "\n");
    EXPECT_EQ(Tessel({"apply", "page.toml", "A.con", "--in-place"}).status, 1) << value;
    EXPECT_EQ(Bytes("A.con"), kBefore);
  }
}

TEST_F(CommandLineApply, RefusesAPageThatIsNone) {
  for (const std::string page : {"[values", "[other]\na = 1", "[values]\na = 1.5", "{}",
                                 "{\"a\":", "[quotes]\nx = \"y\"", "[levels]\n\"0 7\" = 5"}) {
    Put("page", page);
    const Outcome outcome = Tessel({"apply", "page", "A.con"});
    EXPECT_EQ(outcome.status, 1) << page;
    EXPECT_THAT(outcome.err, testing::StartsWith("tessel: page: ")) << page;
  }
}

TEST_F(CommandLineApply, ShowsTheDifferenceAndKeepsTheOldFile) {
  Put("page.toml", "[values]\nTROOPSTRENGTH = 1\n");
  EXPECT_THAT(OutputOf({"apply", "page.toml", "A.con", "--dry-run"}),
              testing::HasSubstr("+define TROOPSTRENGTH 1 "));
  EXPECT_EQ(Bytes("A.con"), kBefore);
  OutputOf({"apply", "page.toml", "A.con", "--in-place", "--backup"});
  EXPECT_EQ(Bytes("A.con~"), kBefore);
}

/// A user template in which some numbers and texts are others.
std::string Tuned(std::string text, unsigned seed) {
  std::mt19937 numbers(seed);
  for (const std::string begin : {"\r\ndefine ", "\r\ndefinequote ", "\r\ndefinesound "}) {
    for (auto at = text.find(begin); at != text.npos; at = text.find(begin, at + 1)) {
      if (numbers() % 3 != 0) continue;
      const auto end = text.find("\r\n", at + 2);
      const auto digit = text.find_first_of("0123456789", at + begin.size() + 12);
      if (digit < end && text[digit - 1] == ' ')
        text[digit] = static_cast<char>('1' + numbers() % 9);
    }
  }
  return text;
}

TEST_F(CommandLineApply, GivesTheValuesThatDiffHasSeen) {
  const std::string once = TemplateText("zmuserp.dat");
  for (unsigned i = 0; i < 12; ++i) {
    Put("old.con", Tuned(once, 2 * i));
    Put("new.con", Tuned(once, 2 * i + 1));
    const char* form = i % 2 == 0 ? "--json" : "--toml";
    Put("page", OutputOf({"diff", "old.con", "new.con", form}));
    EXPECT_NE(OutputOf({"diff", "old.con", "new.con"}), "");
    OutputOf({"apply", "page", "old.con", "--in-place"});
    EXPECT_EQ(OutputOf({"diff", "old.con", "new.con"}), "") << i;
    EXPECT_EQ(Bytes("old.con"), Bytes("new.con")) << i;
  }
}

}  // namespace
}  // namespace tessel::test
