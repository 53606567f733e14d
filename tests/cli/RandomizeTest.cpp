#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "cli/CommandLineTest.h"
#include "randomizer/frmRand.h"
#include "settings/ItemTables.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}
std::vector<std::string> LinesOf(const std::string& text) { return Split(text, '\n'); }
/// The cells of a line of a table; the last one may be empty.
std::vector<std::string> CellsOf(const std::string& line) { return Split(line + "\t.", '\t'); }

// The first numbers of the unseeded generator are 0.7055475, 0.5334240 and 0.5795186.
const std::string kHealthText =
    "define MAXPLAYERHEALTH 100\r\n"
    "define MAXPLAYERATOMICHEALTH 2\r\n"
    "define STARTARMORHEALTH 0\r\n"
    "define STEROID_AMOUNT 400\r\n"
    "define SHIELD_AMOUNT 100\r\n"
    "define SCUBA_AMOUNT 6400\r\n"
    "define HOLOZANTH_AMOUNT 2400\r\n"
    "define JETPACK_AMOUNT 1600\r\n"
    "define FIRSTAID_AMOUNT 100\r\n"
    "define BOOT_AMOUNT 200\r\n";

class CommandLineRandomize : public CommandLineTest {
 protected:
  CommandLineRandomize() { Put("User.con", kHealthText); }

  std::vector<std::string> Arguments(const std::string& lower, const std::string& upper,
                                     const std::vector<std::string>& more = {}) {
    std::vector<std::string> all = {"randomize", "User.con", "--section", "Player",
                                    "--lower",   lower,      "--upper",   upper};
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
};

TEST_F(CommandLineRandomize, DrawsTheUnseededSequence) {
  // floor(1000 * number + 1) of the first ten numbers
  const std::string text = OutputOf(Arguments("1", "1000"));
  EXPECT_TRUE(
      text.starts_with("define MAXPLAYERHEALTH 706\r\n"
                       "define MAXPLAYERATOMICHEALTH 534\r\n"
                       "define STARTARMORHEALTH 580\r\n"
                       "define STEROID_AMOUNT 290\r\n"
                       "define SHIELD_AMOUNT 302\r\n"))
      << text;
  EXPECT_EQ(Bytes("User.con"), kHealthText);
}

TEST_F(CommandLineRandomize, GivesTheSameForTheSameSeedAndOtherwiseAnother) {
  const std::string one = OutputOf(Arguments("1", "1000", {"--seed", "1"}));
  EXPECT_EQ(OutputOf(Arguments("1", "1000", {"--seed", "1"})), one);
  EXPECT_NE(OutputOf(Arguments("1", "1000", {"--seed", "2"})), one);
  EXPECT_NE(OutputOf(Arguments("1", "1000")), one);
  EXPECT_EQ(OutputOf(Arguments("1", "1000", {"--seed", "327680"})),
            OutputOf(Arguments("1", "1000")));
}

TEST_F(CommandLineRandomize, KeepsValuesOutsideTheRangeWhenAsked) {
  const std::string below = OutputOf(Arguments("50", "300", {"--keep-below"}));
  EXPECT_THAT(below, testing::HasSubstr("ATOMICHEALTH 2\r\ndefine STARTARMORHEALTH 0\r\n"));
  EXPECT_THAT(below, testing::Not(testing::HasSubstr("SCUBA_AMOUNT 6400")));
  const std::string above = OutputOf(Arguments("50", "300", {"--keep-above"}));
  EXPECT_THAT(above, testing::HasSubstr("SCUBA_AMOUNT 6400\r\ndefine HOLOZANTH_AMOUNT 2400\r\n"));
  EXPECT_THAT(above, testing::Not(testing::HasSubstr("ATOMICHEALTH 2\r\n")));
}

TEST_F(CommandLineRandomize, WritesInPlaceOrIntoAnotherFile) {
  const std::string drawn = OutputOf(Arguments("1", "9"));
  EXPECT_EQ(OutputOf(Arguments("1", "9", {"-o", "new.con"})), "");
  EXPECT_EQ(Bytes("new.con"), drawn);
  EXPECT_EQ(OutputOf(Arguments("1", "9", {"--in-place"})), "");
  EXPECT_EQ(Bytes("User.con"), drawn);
}

TEST_F(CommandLineRandomize, RandomizesEachSectionAndAll) {
  Put("User.con", TemplateText("zmuserp.dat"));
  for (const char* section : {"all", "Player", "WEAPON", "enemy", "Misc"}) {
    const std::string text =
        OutputOf({"randomize", "User.con", "--section", section, "--lower", "1", "--upper", "9"});
    EXPECT_NE(text, Bytes("User.con")) << section;
  }
}

TEST_F(CommandLineRandomize, ReportsOldAndNewValues) {
  const Outcome outcome = Tessel(Arguments("1", "1000", {"--report", "-o", "new.con"}));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(
      outcome.err.starts_with("User.con: seed 327680\n"
                              "Max Regular Health                     100 ->      706\n"
                              "Max Atomic Health                        2 ->      534\n"))
      << outcome.err;
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), std::ssize(PlayerItemTable) + 1);
}

TEST_F(CommandLineRandomize, RefusesBadBoundsInTheWordsOfTheControl) {
  ExpectRefusal(Arguments("9", "1", {"--in-place"}),
                "Upper Bounds must be a number greater than Lower Bounds");
  ExpectRefusal(Arguments("", "1", {"--in-place"}), "Please select a value");
  ExpectRefusal(Arguments("1", "40000", {"--in-place"}),
                "The upper bound 40000 cannot be used: it must lie between -32768 and 32767.");
}

TEST_F(CommandLineRandomize, RefusesBoundsThatChangeNothing) {
  ExpectRefusal(Arguments("0", "9", {"--in-place"}),
                "\"0\" counts as 0, and nothing is randomized when a bound is 0.");
  ExpectRefusal(Arguments("few", "9", {"--in-place"}),
                "\"few\" counts as 0, and nothing is randomized when a bound is 0.");
}

TEST_F(CommandLineRandomize, LeavesTheFileAloneWhenAValueIsNoNumber) {
  Put("User.con", With(kHealthText, "STARTARMORHEALTH 0", "STARTARMORHEALTH much"));
  ExpectRefusal(Arguments("1", "9", {"--keep-below", "--in-place"}),
                "The value \"much\" of Armor is not a number.");
}

TEST_F(CommandLineRandomize, KnowsItsSectionsAndSeeds) {
  EXPECT_EQ(Tessel({"randomize", "User.con", "--section", "Level", "--lower", "1", "--upper", "2"})
                .status,
            2);
  for (const char* seed : {"-1", "x", "16777216", "99999999999", "1.5"}) {
    EXPECT_EQ(Tessel(Arguments("1", "9", {"--seed", seed})).status, 2) << seed;
  }
}

/// What the control makes of a text with these bounds.
class ControlWithDice : public TesselTest {
 public:
  std::string Randomizes(const std::string& text, const std::string& button) {
    Open("/User.con", text);
    world_.forms.scripts.emplace_back([](Form& form) {
      auto& bounds = dynamic_cast<frmRand&>(form);
      bounds.cmbChoose[0].Type("10");
      bounds.cmbChoose[1].Type("5000");
      bounds.cmdOk.Press();
    });
    C().tbToolBar.Press(button);
    return Current().Text();
  }
  void TestBody() override {}
};

TEST_F(CommandLineRandomize, GivesTheBytesThatTheControlGives) {
  const std::string text = TemplateText("zmuserp.dat");
  Put("User.con", text);
  EXPECT_EQ(
      OutputOf({"randomize", "User.con", "--section", "All", "--lower", "10", "--upper", "5000"}),
      ControlWithDice().Randomizes(text, "RandAll"));
}

TEST_F(CommandLineRandomize, RefusesAFileWithoutValues) {
  for (const std::string text : {"", "action ASTAND 0\r\n", "// define MAXPLAYERHEALTH 1\r\n"}) {
    Put("User.con", text);
    ExpectRefusal(Arguments("1", "9", {"--in-place"}),
                  "User.con has no value to randomize (section Player).");
  }
}

TEST_F(CommandLineRandomize, RecordsItsSeedAndGivesTheSameFileAgain) {
  OutputOf(Arguments("1", "1000", {"--seed", "77", "-o", "one.con"}));
  const json report =
      json::parse(OutputOf(Arguments("1", "1000", {"--seed", "77", "-o", "two.con", "--json"})));
  const auto seed = report["files"][0]["seed"].get<int>();
  EXPECT_EQ(seed, 77);
  OutputOf(Arguments("1", "1000", {"--seed", std::to_string(seed), "-o", "three.con"}));
  EXPECT_EQ(Bytes("three.con"), Bytes("one.con"));
  EXPECT_EQ(Bytes("two.con"), Bytes("one.con"));
}

TEST_F(CommandLineRandomize, ReportsForPrograms) {
  const json report = json::parse(OutputOf(Arguments("1", "1000", {"--dry-run", "--json"})));
  EXPECT_EQ(report["files"][0]["seed"], 327680);
  EXPECT_EQ(report["files"][0]["rows"][0], (json{{"section", "Player"},
                                                 {"item", "Max Regular Health"},
                                                 {"define", "MAXPLAYERHEALTH"},
                                                 {"line", 1},
                                                 {"old", "100"},
                                                 {"new", "706"},
                                                 {"problem", nullptr}}));
}

TEST_F(CommandLineRandomize, DrawsAroundThePresentValues) {
  std::string text = "define MAXPLAYERHEALTH 1000\r\ndefine SHIELD_AMOUNT -50\r\n";
  Put("User.con", text + "define STARTARMORHEALTH 0\r\ndefine BOOT_AMOUNT many\r\n");
  const auto percent = [&](const char* seed) {
    return OutputOf({"randomize", "User.con", "--section", "Player", "--percent", "20", "--seed",
                     seed, "--dry-run", "--tsv"},
                    0,
                    "tessel: User.con: skipped Boot: \"many\" is no number.\n"
                    "tessel: User.con: skipped 6 settings that it does not define; --report lists "
                    "them.\n");
  };
  std::set<int> healths;
  std::set<int> shields;
  for (int seed = 1; seed <= 40; ++seed) {
    for (const std::string& line : LinesOf(percent(std::to_string(seed * 400009).c_str()))) {
      const auto cells = CellsOf(line);
      if (cells[3] == "MAXPLAYERHEALTH") healths.insert(std::stoi(cells[6]));
      if (cells[3] == "SHIELD_AMOUNT") shields.insert(std::stoi(cells[6]));
      if (cells[3] == "STARTARMORHEALTH") {
        EXPECT_EQ(cells[6], "0");
      }
      if (cells[3] == "BOOT_AMOUNT") {
        EXPECT_EQ(cells[6], "");
      }
    }
  }
  EXPECT_GE(*healths.begin(), 800);
  EXPECT_LE(*healths.rbegin(), 1200);
  EXPECT_LT(*healths.begin(), 900);
  EXPECT_GT(*healths.rbegin(), 1100);
  EXPECT_GE(*shields.begin(), -60);
  EXPECT_LE(*shields.rbegin(), -40);
}

TEST_F(CommandLineRandomize, TakesBoundsForEachSection) {
  Put("User.con", TemplateText("zmuserp.dat"));
  const std::string tsv = OutputOf({"randomize", "User.con", "--bounds", "Player=7..7", "--bounds",
                                    "Misc=-9..-8", "--dry-run", "--tsv"});
  int players = 0;
  int miscs = 0;
  for (const std::string& line : LinesOf(tsv)) {
    const auto cells = CellsOf(line);
    if (cells[1] == "section") continue;
    EXPECT_THAT(cells[1], testing::AnyOf("Player", "Misc"));
    if (cells[1] == "Player") {
      EXPECT_EQ(cells[6], "7");
    }
    if (cells[1] == "Misc") {
      EXPECT_THAT(cells[6], testing::AnyOf("-9", "-8"));
    }
    ++(cells[1] == "Player" ? players : miscs);
  }
  EXPECT_EQ(players, std::ssize(PlayerItemTable));
  EXPECT_EQ(miscs, std::ssize(MiscItemTable));
}

TEST_F(CommandLineRandomize, KnowsWhichOptionsGoTogether) {
  const std::string command = "tessel randomize";
  ExpectUsageError({"randomize", "User.con"}, "--section is required", command);
  ExpectUsageError({"randomize", "User.con", "--section", "All", "--upper", "9"},
                   "--lower is required", command);
  ExpectUsageError({"randomize", "User.con", "--bounds", "Player=1"},
                   "--bounds: \"Player=1\" is not written SECTION=LOWER..UPPER", command);
  ExpectUsageError({"randomize", "User.con", "--bounds", "Level=1..2"},
                   "--bounds: \"Level\" is none of Player, Weapon, Enemy, Misc", command);
  ExpectUsageError({"randomize", "User.con", "--bounds", "Player=1..2", "--percent", "5"},
                   "--bounds: it excludes --percent", command);
  EXPECT_EQ(Tessel(Arguments("1", "9", {"--percent", "5"})).status, 2);
  EXPECT_EQ(Tessel({"randomize", "User.con", "--section", "All", "--percent", "0"}).status, 2);
}

TEST_F(CommandLineRandomize, DrawsTheSameForEveryFile) {
  Put("Two.con", kHealthText);
  EXPECT_EQ(OutputOf({"randomize", "User.con", "Two.con", "--section", "Player", "--lower", "1",
                      "--upper", "1000", "--in-place"}),
            "User.con: 10 changes\nTwo.con: 10 changes\n");
  EXPECT_EQ(Bytes("User.con"), Bytes("Two.con"));
}

}  // namespace
}  // namespace tessel::test
