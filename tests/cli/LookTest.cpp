// What the panel would take for a value, and is none.
#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

struct WrongHit {
  const char* what;
  const char* text;
  const char* problem;  ///< as "get", "set" and "settings" say it
  const char* line;     ///< where the define is all the same; null where there is none
};

void PrintTo(const WrongHit& hit, std::ostream* out) { *out << hit.what; }

class CommandLineLook : public CommandLineTest, public testing::WithParamInterface<WrongHit> {
 protected:
  CommandLineLook() { Put("User.con", GetParam().text); }
  std::string Refusal() const {
    return std::string("User.con: Max Regular Health: ") + GetParam().problem + ".";
  }
};

TEST_P(CommandLineLook, IsNotPrintedAsAValue) {
  ExpectRefusal({"get", "User.con", "MAXPLAYERHEALTH"}, Refusal());
}

TEST_P(CommandLineLook, IsNotChanged) {
  ExpectRefusal({"set", "User.con", "MAXPLAYERHEALTH=55", "--in-place"}, Refusal());
}

TEST_P(CommandLineLook, IsListedWithItsReason) {
  const std::string list = OutputOf({"settings", "User.con", "--section", "Player"});
  EXPECT_TRUE(list.starts_with("Player  Max Regular Health                -  (" +
                               std::string(GetParam().problem) + ")\n"))
      << list;
}

TEST_P(CommandLineLook, IsSkippedByTheRandomizer) {
  const std::string text = std::string(GetParam().text) + "define SHIELD_AMOUNT 100\r\n";
  Put("User.con", text);
  const Outcome outcome =
      Tessel({"randomize", "User.con", "--section", "Player", "--lower", "7", "--upper", "7"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, With(text, "SHIELD_AMOUNT 100", "SHIELD_AMOUNT 7"));
  EXPECT_EQ(outcome.err,
            "tessel: User.con: skipped Max Regular Health: " + std::string(GetParam().problem) +
                ".\ntessel: User.con: skipped 8 settings that it does not define; "
                "--report lists them.\n");
}

TEST_P(CommandLineLook, IsReachedByItsLine) {
  if (GetParam().line == nullptr) {
    EXPECT_EQ(Tessel({"set", "User.con", "MAXPLAYERHEALTH=5", "--line", "1"}).status, 1);
    return;
  }
  EXPECT_EQ(OutputOf({"get", "User.con", "MAXPLAYERHEALTH", "--line", GetParam().line}), "100\n");
  EXPECT_EQ(OutputOf({"set", "User.con", "MAXPLAYERHEALTH=55", "--line", GetParam().line}),
            With(GetParam().text, "100", "55"));
}

INSTANTIATE_TEST_SUITE_P(
    WrongHits, CommandLineLook,
    testing::Values(
        WrongHit{"comment", "// define MAXPLAYERHEALTH 1\r\n\r\ndefine MAXPLAYERHEALTH 100\r\n",
                 "line 1 is a comment; the define is in line 3: use --line 3", "3"},
        WrongHit{"comment in a block",
                 "/* old:\r\ndefine MAXPLAYERHEALTH 1\r\n*/\r\ndefine MAXPLAYERHEALTH 100\r\n",
                 "line 2 is a comment; the define is in line 4: use --line 4", "4"},
        WrongHit{"comment alone", "// define MAXPLAYERHEALTH 1\r\n",
                 "line 1 is a comment; there is no define line", nullptr},
        WrongHit{"define without a value", "define MAXPLAYERHEALTH\r\n",
                 "line 1 defines MAXPLAYERHEALTH without a value", nullptr},
        WrongHit{"two values", "define MAXPLAYERHEALTH 1 2\r\n",
                 "line 1 has more than one value for MAXPLAYERHEALTH", nullptr},
        WrongHit{"tab", "define MAXPLAYERHEALTH\t100\t// x\r\n",
                 "line 1 has a tab, which the panel takes for part of the value: use --line 1",
                 "1"},
        WrongHit{"start-up list",
                 "gamestartup 1 2 MAXPLAYERHEALTH\r\ndefine MAXPLAYERHEALTH 100\r\n",
                 "line 1 is part of \"gamestartup\"; the define is in line 2: use --line 2", "2"},
        WrongHit{"two defines", "define MAXPLAYERHEALTH 1\r\ndefine MAXPLAYERHEALTH 100\r\n",
                 "it is defined in line 1 and again in line 2: choose one with --line", "2"}),
    [](const auto& hit) {
      std::string name = hit.param.what;
      std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
      return name;
    });

class CommandLineAnyDefine : public CommandLineTest {};

TEST_F(CommandLineAnyDefine, IsReadAndWrittenByItsName) {
  const std::string text = "// RUNNINGSPEED\r\n\tdefine RUNNINGSPEED\t53200 // fast\r\n";
  Put("User.con", text);
  EXPECT_EQ(OutputOf({"get", "User.con", "runningspeed"}), "53200\n");
  EXPECT_EQ(OutputOf({"set", "User.con", "RUNNINGSPEED=-4"}), With(text, "53200", "-4"));
}

TEST_F(CommandLineAnyDefine, StaysANumberWhereItIsOne) {
  Put("User.con", "define A 1\r\ndefine B A\r\n");
  ExpectRefusal({"set", "User.con", "A=B", "--in-place"},
                "\"B\" cannot be the value of A: it takes a whole number from -2147483648 to "
                "2147483647.");
  EXPECT_EQ(OutputOf({"set", "User.con", "B=OTHER"}), "define A 1\r\ndefine B OTHER\r\n");
  for (const std::string value : {"", "a b", "a//b", "/*", "a\nb", "a\tb"}) {
    ExpectRefusal({"set", "User.con", "B=" + value, "--in-place"},
                  "\"" +
                      With("@", "@",
                           value == "a\nb"   ? "a?b"
                           : value == "a\tb" ? "a?b"
                                             : value) +
                      "\" cannot be the value of B: it takes one word.");
  }
}

TEST_F(CommandLineAnyDefine, IsGuessedFromAMistypedName) {
  Put("User.con", "define GRAVITATIONALCONSTANT 176\r\n");
  ExpectRefusal({"get", "User.con", "GRAVITATIONALCONSTAN"},
                "There is no setting \"GRAVITATIONALCONSTAN\", and User.con defines no such name. "
                "Did you mean \"GRAVITATIONALCONSTANT\"?");
  ExpectRefusal({"get", "User.con", "Max Regular Healt"},
                "There is no setting \"Max Regular Healt\", and User.con defines no such name. "
                "Did you mean \"Max Regular Health\"?");
  ExpectRefusal({"get", "User.con", "Pistol"},
                "There is no setting \"Pistol\", and User.con defines no such name. Did you mean "
                "\"Box Ammo Amount/Pistol\", \"Max Weapon Ammo/Pistol\" or "
                "\"Weapon Strength/Pistol\"?");
}

TEST_F(CommandLineAnyDefine, IsNotTakenFromALineThatHasAnother) {
  Put("User.con", "define A 1\r\ndefine B 2\r\n");
  ExpectRefusal({"get", "User.con", "A", "--line", "2"}, "User.con: A: line 2 does not define A.");
  ExpectRefusal({"get", "User.con", "A", "--line", "9"}, "User.con: A: line 9 does not define A.");
}

TEST_F(CommandLineAnyDefine, IsNotTakenForAnItemWhoseNameItOnlyContains) {
  Put("User.con", "define MYQSIZE 5\r\ndefine QSIZES 6\r\n");
  ExpectRefusal({"get", "User.con", "QSIZE"}, "User.con does not define QSIZE.");
}

TEST_F(CommandLineAnyDefine, IsFoundBehindMuchText) {
  std::string text = "define MAXPLAYERHEALTH 1\r\n";
  for (int i = 0; i < 5000; ++i) text += "define FILLER" + std::to_string(i) + " 0 // define\r\n";
  text += "define QSIZE 64\r\ndefine THAWTIME 5";
  Put("User.con", text);
  EXPECT_EQ(OutputOf({"get", "User.con", "QSIZE"}), "64\n");
  EXPECT_EQ(
      OutputOf({"set", "User.con", "THAWTIME=6", "MAXPLAYERHEALTH=2", "QSIZE=7"}),
      With(With(With(text, "HEALTH 1", "HEALTH 2"), "QSIZE 64", "QSIZE 7"), "TIME 5", "TIME 6"));
}

class CommandLineNumbers : public CommandLineTest {};

TEST_F(CommandLineNumbers, AreAllThatAnItemTakes) {
  const std::string text = "define MAXPLAYERHEALTH 100\r\n";
  Put("User.con", text);
  for (const std::string value : {"abc", "1.5", "99999999999", "2147483648", "-2147483649", "YES",
                                  "0x10", "+5", "5 ", "--5", "-"}) {
    ExpectRefusal({"set", "User.con", "MAXPLAYERHEALTH=" + value, "--in-place"},
                  "\"" + value +
                      "\" cannot be the value of Max Regular Health: it takes a whole "
                      "number from -2147483648 to 2147483647.");
  }
  ExpectRefusal({"set", "User.con", "MAXPLAYERHEALTH", "\xE2\x82\xAC"},
                "\"\xE2\x82\xAC\" cannot be the value of Max Regular Health: it takes a whole "
                "number from -2147483648 to 2147483647.");
  for (const std::string value : {"0", "-1", "2147483647", "-2147483648", "007"}) {
    EXPECT_EQ(OutputOf({"set", "User.con", "MAXPLAYERHEALTH", value}), With(text, "100", value));
  }
}

}  // namespace
}  // namespace tessel::test
