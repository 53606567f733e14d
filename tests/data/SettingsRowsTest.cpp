// Every row of the settings panel finds its define in the user templates. The rows are written out
// here once more, so that a slip in the panel's own tables shows.
#include <gtest/gtest.h>

#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"

namespace tessel::test {
namespace {

enum class Since { kOlder, kNewer };

struct Row {
  const char* key;
  int options;
  Since since = Since::kOlder;
};

// clang-format off
constexpr Row kRows[] = {
    // Player items
    {"MAXPLAYERHEALTH", kFindWholeWord}, {"MAXPLAYERATOMICHEALTH", kFindWholeWord},
    {"STARTARMORHEALTH", kFindWholeWord}, {"STEROID_AMOUNT", kFindWholeWord},
    {"SHIELD_AMOUNT", kFindWholeWord}, {"SCUBA_AMOUNT", kFindWholeWord},
    {"HOLOZANTH_AMOUNT", kFindWholeWord}, {"JETPACK_AMOUNT", kFindWholeWord},
    {"FIRSTAID_AMOUNT", kFindWholeWord}, {"BOOT_AMOUNT", kFindWholeWord},
    // Weapons: the most ammunition
    {"define MAXPISTOLAMMO", 0}, {"define MAXSHOTGUNAMMO", 0}, {"define MAXCHAINGUNAMMO", 0},
    {"define MAXRPGAMMO", 0}, {"define MAXHANDBOMBAMMO", 0}, {"define MAXSHRINKERAMMO", 0},
    {"define MAXDEVISTATORAMMO", 0}, {"define MAXTRIPBOMBAMMO", 0}, {"define MAXFREEZEAMMO", 0},
    // Weapons: ammunition in a box
    {"define PISTOLAMMO", 0}, {"define SHOTGUNAMMO", 0}, {"define CHAINGUNAMMO", 0},
    {"define RPGAMMO", 0}, {"define HANDBOMBBOX", 0}, {"define SHRINKERAMMO", 0},
    {"define DEVISTATORAMMO", 0}, {"define FREEZEAMMO", 0},
    {"GROWCRYSTALAMMOAMOUNT", 0, Since::kNewer},
    // Weapons: strength
    {"KNEE_WEAPON_STRENGTH", 0}, {"PISTOL_WEAPON_STRENGTH", 0}, {"SHOTGUN_WEAPON_STRENGTH", 0},
    {"CHAINGUN_WEAPON_STRENGTH", 0}, {"RPG_WEAPON_STRENGTH", 0}, {"HANDBOMB_WEAPON_STRENGTH", 0},
    {"TRIPBOMB_STRENGTH", 0}, {"FREEZETHROWER_WEAPON_STRENGTH", 0},
    {"SHRINKER_WEAPON_STRENGTH", 0}, {"MORTER_WEAPON_STRENGTH", 0},
    {"FIRELASER_WEAPON_STRENGTH", 0}, {"BOUNCEMINE_WEAPON_STRENGTH", 0},
    {"SPIT_WEAPON_STRENGTH", 0}, {"BULLET_WEAPON_STRENGTH", 0},
    {"TRIPBOMBLASERMODE", 0, Since::kNewer}, {"MAXXSTRETCH", 0, Since::kNewer},
    {"MAXYSTRETCH", 0, Since::kNewer}, {"MINXSTRETCH", 0, Since::kNewer},
    {"MINYSTRETCH", 0, Since::kNewer},
    // Weapons: blast radius
    {"RPGBLASTRADIUS", 0}, {"PIPEBOMBRADIUS", 0}, {"SHRINKERBLASTRADIUS", 0},
    {"TRIPBOMBBLASTRADIUS", 0}, {"MORTERBLASTRADIUS", 0}, {"BOUNCEMINEBLASTRADIUS", 0},
    {"SEENINEBLASTRADIUS", 0},
    // Enemies
    {"TROOPSTRENGTH", kFindWholeWord}, {"PIGCOPSTRENGTH", kFindWholeWord},
    {"PIG_SHIELD_AMOUNT1", kFindWholeWord}, {"PIG_SHIELD_AMOUNT2", kFindWholeWord},
    {"LIZSTRENGTH", kFindWholeWord}, {"OCTASTRENGTH", kFindWholeWord},
    {"RECONSTRENGTH", kFindWholeWord}, {"TURRETSTRENGTH", kFindWholeWord},
    {"ROTTURRETSTRENGTH", kFindWholeWord}, {"DRONESTRENGTH", kFindWholeWord},
    {"COMMANDERSTRENGTH", kFindWholeWord}, {"SHARKSTRENGTH", kFindWholeWord},
    {"BOSS1STRENGTH", kFindWholeWord}, {"BOSS1PALSTRENGTH", kFindWholeWord},
    {"BOSS2STRENGTH", kFindWholeWord}, {"BOSS3STRENGTH", kFindWholeWord},
    {"BOSS4STRENGTH", kFindWholeWord, Since::kNewer},
    {"NEWBEASTSTRENGTH", kFindWholeWord, Since::kNewer},
    {"NEWBEASTSCRATCHAMOUNT", kFindWholeWord, Since::kNewer},
    {"DOLPHINSTRENGTH", kFindWholeWord, Since::kNewer},
    // Misc
    {"MAXWATERFOUNTAINHEALTH", 0}, {"RETRIEVEDISTANCE", 0}, {"SQUISHABLEDISTANCE", 0},
    {"DEFAULTVISIBILITY", 0}, {"FROZENQUICKKICKDIST", 0}, {"GENERICIMPACTDAMAGE", 0},
    {"SWEARFREQUENCY", 0}, {"RESPAWNACTORTIME", 0}, {"RESPAWNITEMTIME", 0},
    {"NUMFREEZEBOUNCES", 0}, {"FROZENDRIPTIME", 0}, {"THAWTIME", 0},
    {"QSIZE", 0, Since::kNewer},
};
// clang-format on

struct Editor {
  explicit Editor(const std::string& text) { box.SetText(text); }

  /// Selects the last blank-delimited token before the comment or the end of the line.
  void SelectValue() {
    box.Span("/\n", true, true);
    const bool endsWithBlank = box.SelText().ends_with(' ');
    box.SetSelStart(box.SelEnd());
    if (endsWithBlank) {
      box.Span(" ", false, false);
      box.SetSelLength(0);
    }
    box.Span(" ", false, true);
  }

  std::string ValueOf(const char* key, int options) {
    if (box.Find(key, 0, std::nullopt, options) == kNotFound) return "(not found)";
    SelectValue();
    return box.SelText();
  }

  /// The line of the match, up to its value.
  std::string LineUpToValue() const {
    const std::string text = box.Text().substr(0, static_cast<std::size_t>(box.SelStart()));
    const auto end = text.rfind('\n');
    return end == std::string::npos ? text : text.substr(end + 1);
  }

  ControlSet set;
  RichTextBox box{set, "rtbCon"};
};

bool IsNumber(const std::string& value) {
  const auto digits = value.substr(value.starts_with('-') ? 1 : 0);
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
}

void ExpectRows(const char* file, Since newest) {
  Editor editor(ReadDataFile(file));
  for (const auto& row : kRows) {
    if (row.since > newest) continue;
    EXPECT_TRUE(IsNumber(editor.ValueOf(row.key, row.options)))
        << file << ": " << row.key << " = " << editor.box.SelText();
    EXPECT_TRUE(editor.LineUpToValue().starts_with("define ")) << file << ": " << row.key;
  }
}

TEST(SettingsRows, FindTheirDefineInTheOlderUserTemplate) {
  ExpectRows("zmuser.dat", Since::kOlder);
}

TEST(SettingsRows, FindTheirDefineInTheNewerUserTemplate) {
  ExpectRows("zmuserp.dat", Since::kNewer);
}

TEST(SettingsRows, OfTheNewerDialectAreNotInTheOlderUserTemplate) {
  Editor editor(ReadDataFile("zmuser.dat"));
  for (const auto& row : kRows) {
    if (row.since == Since::kNewer) {
      EXPECT_EQ(editor.ValueOf(row.key, row.options), "(not found)") << row.key;
    }
  }
}

class UserTemplate : public testing::TestWithParam<const char*> {
 protected:
  Editor editor_{ReadDataFile(GetParam())};
};

TEST_P(UserTemplate, HoldsYesOrNoInTheDefinesOfTheOptionPairs) {
  for (const char* key : {"CAMERASDESTRUCTABLE", "FREEZERHURTOWNER"}) {
    const auto value = editor_.ValueOf(key, kFindWholeWord);
    EXPECT_TRUE(value == "YES" || value == "NO") << key << " = " << value;
    EXPECT_TRUE(editor_.LineUpToValue().starts_with("define ")) << key;
  }
}

TEST_P(UserTemplate, HoldsTheFirstLineOfEveryWeaponSection) {
  for (const char* marker : {"define MAXPISTOLAMMO", "define PISTOLAMMOAMOUNT",
                             "// Weapon Strengths", "// Various blast radius distances"}) {
    EXPECT_NE(editor_.box.Find(marker, 0), kNotFound) << marker;
  }
  EXPECT_LT(editor_.box.Find("// Weapon Strengths", 0),
            editor_.box.Find("KNEE_WEAPON_STRENGTH", 0));
  EXPECT_LT(editor_.box.Find("// Various blast radius distances", 0),
            editor_.box.Find("RPGBLASTRADIUS", 0));
}

TEST_P(UserTemplate, DefinesEveryNameThatTheGameReadsAtItsStart) {
  const auto start = editor_.box.Find("gamestartup", 0, std::nullopt, kFindWholeWord);
  ASSERT_NE(start, kNotFound);
  auto list = editor_.box.Text().substr(static_cast<std::size_t>(start));
  list = list.substr(0, list.find("\r\n\r\n"));
  const auto names = Tokens(list);
  EXPECT_GE(names.size(), 26u);
  for (std::size_t i = 1; i < names.size(); ++i) {
    EXPECT_NE(editor_.box.Find("define " + names[i], 0, start, kFindWholeWord), kNotFound)
        << names[i];
  }
}

INSTANTIATE_TEST_SUITE_P(Both, UserTemplate, testing::Values("zmuser.dat", "zmuserp.dat"),
                         [](const auto& param) {
                           return std::string(param.param) == "zmuser.dat" ? "Older" : "Newer";
                         });

}  // namespace
}  // namespace tessel::test
