#include "cli/CommandLineTest.h"
#include "settings/ItemTables.h"

namespace tessel::test {
namespace {

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
      outcome.err.starts_with("Max Regular Health                     100 ->      706\n"
                              "Max Atomic Health                        2 ->      534\n"))
      << outcome.err;
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), std::ssize(PlayerItemTable));
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

}  // namespace
}  // namespace tessel::test
