#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"
#include "settings/ItemTables.h"

namespace tessel::test {
namespace {

using nlohmann::json;
using namespace std::string_literals;

const std::string kValuesText =
    "define MAXPLAYERHEALTH   100  // health\r\n"
    "define CAMERASDESTRUCTABLE NO // cameras\r\n"
    "define PISTOL_WEAPON_STRENGTH 6\r\n"
    "\xE9\0 define QSIZE 64"s;

/// The rows of all tables, and the two YES/NO settings.
const std::ptrdiff_t kSettings = [] {
  std::ptrdiff_t count =
      2 + std::ssize(PlayerItemTable) + std::ssize(EnemyItemTable) + std::ssize(MiscItemTable);
  for (const WeaponCategory& category : WeaponCategoryTable) count += std::ssize(category.weapons);
  return count;
}();

class CommandLineValues : public CommandLineTest {
 protected:
  CommandLineValues() { Put("User.con", kValuesText); }
};

TEST_F(CommandLineValues, PrintsAValueByDisplayName) {
  EXPECT_EQ(OutputOf({"get", "User.con", "Max Regular Health"}), "100\n");
}

TEST_F(CommandLineValues, PrintsAValueByDefineNameInAnyCase) {
  EXPECT_EQ(OutputOf({"get", "User.con", "maxplayerhealth"}), "100\n");
}

TEST_F(CommandLineValues, NamesAWeaponAfterItsCategory) {
  EXPECT_EQ(OutputOf({"get", "User.con", "Weapon Strength/Pistol"}), "6\n");
}

TEST_F(CommandLineValues, PrintsAYesNoSetting) {
  EXPECT_EQ(OutputOf({"get", "User.con", "Cameras Destructable"}), "NO\n");
}

TEST_F(CommandLineValues, FindsAFileWithoutRegardToCase) {
  EXPECT_EQ(OutputOf({"get", "USER.CON", "QSIZE"}), "64\n");
}

TEST_F(CommandLineValues, RefusesAnItemThatDoesNotExist) {
  ExpectRefusal({"get", "User.con", "Max Happiness"},
                "There is no setting \"Max Happiness\", and User.con defines no such name.");
}

TEST_F(CommandLineValues, RefusesADefineThatTheFileLacks) {
  ExpectRefusal({"get", "User.con", "Armor"}, "User.con does not define STARTARMORHEALTH.");
  ExpectRefusal({"set", "User.con", "Armor", "5", "--in-place"},
                "User.con does not define STARTARMORHEALTH.");
}

TEST_F(CommandLineValues, SetsAValueOnStandardOutputAndLeavesTheFileAlone) {
  EXPECT_EQ(OutputOf({"set", "User.con", "Max Regular Health", "250"}),
            With(kValuesText, "100", "250"));
  EXPECT_EQ(Bytes("User.con"), kValuesText);
}

TEST_F(CommandLineValues, SetsAValueInPlace) {
  EXPECT_EQ(OutputOf({"set", "User.con", "Max Regular Health", "7", "--in-place"}), "");
  EXPECT_EQ(Bytes("User.con"), With(kValuesText, "100", "7"));
}

TEST_F(CommandLineValues, SetsAValueIntoAnotherFile) {
  EXPECT_EQ(OutputOf({"set", "User.con", "QSIZE", "-1", "-o", "new.con"}), "");
  EXPECT_EQ(Bytes("new.con"), With(kValuesText, "64", "-1"));
  EXPECT_EQ(Bytes("User.con"), kValuesText);
  EXPECT_EQ(OutputOf({"set", "User.con", "QSIZE", "9", "--output=new.con", "--force"}), "");
  EXPECT_EQ(Bytes("new.con"), With(kValuesText, "64", "9"));
}

TEST_F(CommandLineValues, ReplacesAnotherFileOnlyWhenForced) {
  Put("new.con", "mine");
  ExpectRefusal({"set", "User.con", "QSIZE", "9", "-o", "new.con"},
                "Cannot save new.con: it exists already; --force replaces it.");
  EXPECT_EQ(OutputOf({"set", "User.con", "QSIZE", "9", "-o", "new.con", "--force"}), "");
  EXPECT_EQ(Bytes("new.con"), With(kValuesText, "64", "9"));
}

TEST_F(CommandLineValues, NamesTheOptionThatWritesOverTheFileItself) {
  const std::string sentence =
      "Cannot save User.con: it is the file that was read; --in-place writes over it.";
  ExpectRefusal({"set", "User.con", "QSIZE", "9", "-o", "User.con"}, sentence);
  std::filesystem::create_symlink("User.con", PathOf("link.con"));
  ExpectRefusal({"set", "link.con", "QSIZE", "9", "-o", "User.con"}, sentence);
  EXPECT_EQ(OutputOf({"set", "User.con", "QSIZE", "9", "-o", "User.con", "--force"}), "");
  EXPECT_EQ(Bytes("User.con"), With(kValuesText, "64", "9"));
}

TEST_F(CommandLineValues, SetsAYesNoSettingInAnyCase) {
  const std::string yes = With(kValuesText, "NO", "YES");
  EXPECT_EQ(OutputOf({"set", "User.con", "CAMERASDESTRUCTABLE", "yes"}), yes);
  EXPECT_EQ(OutputOf({"set", "User.con", "CAMERASDESTRUCTABLE", "YES"}), yes);
  EXPECT_EQ(OutputOf({"set", "User.con", "CAMERASDESTRUCTABLE", "no"}), kValuesText);
}

TEST_F(CommandLineValues, RefusesWhatCannotBeAValue) {
  for (const char* item : {"Max Regular Health", "QSIZE"}) {
    for (const std::string value : {"", " ", "1 2", "a\nb", "5 // five"}) {
      const Outcome outcome = Tessel({"set", "User.con", item, value, "--in-place"});
      EXPECT_EQ(outcome.status, 1) << item << value;
      EXPECT_THAT(outcome.err, testing::HasSubstr("cannot be the value of"));
      EXPECT_EQ(Bytes("User.con"), kValuesText);
    }
  }
  ExpectRefusal({"set", "User.con", "Cameras Destructable", "maybe", "--in-place"},
                "\"maybe\" cannot be the value of Cameras Destructable: it takes YES or NO.");
}

TEST_F(CommandLineValues, LetsNoValueRunIntoTheCommentBehindIt) {
  const std::string block = "define WORD b/* old\r\ndefine X 2\r\n*/\r\ndefine Y 3\r\n";
  Put("odd.con", block);
  ExpectRefusal({"set", "odd.con", "WORD=c/", "--in-place"},
                "\"c/\" cannot be the value of WORD: it would run into the comment behind it.");
  EXPECT_EQ(OutputOf({"set", "odd.con", "WORD=c/d"}), With(block, "b/*", "c/d/*"));
  Put("odd.con", "define WORD b//note");
  ExpectRefusal({"set", "odd.con", "WORD=/", "--in-place"},
                "\"/\" cannot be the value of WORD: it would run into the comment behind it.");
  Put("odd.con", "define WORD b //note\r\ndefine LAST b");
  EXPECT_EQ(OutputOf({"set", "odd.con", "WORD=c/", "LAST=d/"}),
            "define WORD c/ //note\r\ndefine LAST d/");
}

TEST_F(CommandLineValues, TakesNoWordsOfAListForADefine) {
  for (const std::string list : {"music", "gamestartup"}) {
    Put("odd.con", list + " 0 define FOO 2\r\n");
    ExpectRefusal({"set", "odd.con", "FOO=5", "--in-place"},
                  "odd.con: FOO: line 1 is part of \"" + list + "\".");
    ExpectRefusal({"set", "odd.con", "FOO=5", "--line", "1", "--in-place"},
                  "odd.con: FOO: line 1 is part of \"" + list + "\".");
    Put("odd.con", list + " 0 1\r\ndefine FOO 2\r\n");
    EXPECT_EQ(OutputOf({"get", "odd.con", "FOO"}), "2\n");
  }
  Put("odd.con", "gamestartup 0 1\r\n 2 define FOO 2\r\n");
  ExpectRefusal({"get", "odd.con", "FOO"}, "odd.con: FOO: line 2 is part of \"gamestartup\".");
}

TEST_F(CommandLineValues, TakesNoBraceForAValue) {
  Put("odd.con", "define FOO {\r\ndefine BAR x\r\n}\r\n");
  ExpectRefusal({"set", "odd.con", "FOO=5", "--in-place"},
                "odd.con: FOO: line 1 defines FOO without a value.");
  ExpectRefusal({"set", "odd.con", "BAR={", "--in-place"},
                "\"{\" cannot be the value of BAR: it takes one word.");
}

TEST_F(CommandLineValues, ListsEverySettingAndADashForWhatIsMissing) {
  const std::string list = OutputOf({"settings", "User.con"});
  EXPECT_THAT(list, testing::HasSubstr("Player  Max Regular Health                100\n"));
  EXPECT_THAT(list, testing::HasSubstr("Weapon  Weapon Strength/Pistol            6\n"));
  EXPECT_THAT(list, testing::HasSubstr("Enemy   Trooper                           -\n"));
  EXPECT_THAT(list, testing::HasSubstr("Misc    Cameras Destructable              NO\n"));
  EXPECT_EQ(std::ranges::count(list, '\n'), kSettings);
}

TEST_F(CommandLineValues, ListsOneSection) {
  const std::string list = OutputOf({"settings", "User.con", "--section", "player"});
  EXPECT_EQ(std::ranges::count(list, '\n'), std::ssize(PlayerItemTable));
  EXPECT_TRUE(list.starts_with("Player  Max Regular Health                100\n")) << list;
}

TEST_F(CommandLineValues, ListsAsJson) {
  const json report = json::parse(OutputOf({"settings", "User.con", "--json"}));
  EXPECT_EQ(report["schema"], "tessel-report");
  EXPECT_EQ(report["version"], 1);
  EXPECT_EQ(report["command"], "settings");
  ASSERT_EQ(std::ssize(report["files"]), 1);
  EXPECT_EQ(report["files"][0]["file"], "User.con");
  EXPECT_EQ(report["files"][0]["error"], nullptr);
  const json list = report["files"][0]["rows"];
  ASSERT_EQ(std::ssize(list), kSettings);
  EXPECT_EQ(list[0], (json{{"section", "Player"},
                           {"item", "Max Regular Health"},
                           {"define", "MAXPLAYERHEALTH"},
                           {"value", "100"},
                           {"line", 1},
                           {"problem", nullptr}}));
  EXPECT_EQ(list[1]["value"], nullptr);
}

TEST_F(CommandLineValues, KeepsJsonValidWhateverTheValue) {
  Put("odd.con", "define MAXPLAYERHEALTH \xE9\"\\\x1B[31m<b>&' // odd\r\n");
  const json list = json::parse(
      OutputOf({"settings", "odd.con", "--json", "--section", "Player"}))["files"][0]["rows"];
  EXPECT_EQ(list[0]["value"], "\xC3\xA9\"\\\x1B[31m<b>&'");
}

TEST_F(CommandLineValues, PrintsNoEscapeSequences) {
  Put("odd.con", "define MAXPLAYERHEALTH \x1B[31m9\x9B // odd\r\n");
  EXPECT_EQ(OutputOf({"get", "odd.con", "MAXPLAYERHEALTH"}), "?[31m9\xE2\x80\xBA\n");
  EXPECT_EQ(OutputOf({"settings", "odd.con"}).find('\x1B'), std::string::npos);
}

TEST_F(CommandLineValues, ReadsAndWritesEverySettingOfTheTemplate) {
  Put("whole.con", TemplateText("zmuserp.dat"));
  const json report = json::parse(OutputOf({"settings", "whole.con", "--json"}));
  for (const json& row : report["files"][0]["rows"]) {
    const std::string item = row["item"];
    ASSERT_TRUE(row["value"].is_string()) << item;
    EXPECT_EQ(OutputOf({"get", "whole.con", item}), row["value"].get<std::string>() + "\n");
    const std::string value = row["value"] == "YES" ? "NO" : row["value"] == "NO" ? "YES" : "4321";
    OutputOf({"set", "whole.con", item, value, "-o", "changed.con", "--force"});
    EXPECT_EQ(OutputOf({"get", "changed.con", item}), value + "\n");
    OutputOf({"set", "changed.con", item, row["value"], "--in-place"});
    EXPECT_EQ(Bytes("changed.con"), Bytes("whole.con")) << item;
  }
}

}  // namespace
}  // namespace tessel::test
