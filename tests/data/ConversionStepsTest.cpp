// Every step of the version conversion finds, in the older user template, the line that it looks
// for, and in that line the value that it changes.
#include <gtest/gtest.h>

#include <algorithm>

#include "data/DataFiles.h"
#include "text/TextSearch.h"

namespace tessel::test {
namespace {

struct Sought {
  int step;
  const char* text;
  const char* value;  ///< what must stand from the match to the end of its line; null for anything
};

constexpr Sought kSought[] = {
    {1, "/*", nullptr},
    {2, "define YELLHURTSOUNDSTRENGTHMP   50", nullptr},
    {3, "define SWEARFREQUENCY", nullptr},
    {4, "// MISC GAME SETTINGS", nullptr},
    {5, "define MAXSHRINKERAMMO", nullptr},
    {6, "define MAXTRIPBOMBAMMO", nullptr},
    {7, "define RESPAWNITEMTIME", nullptr},
    {8, "define RUNNINGSPEED 53200", nullptr},
    {9, "define SHRINKERBLASTRADIUS", "650"},
    {10, "gamestartup", nullptr},
    {11, "// Adds rand()%5 (0 to 5)", nullptr},
    {12, "define SHRINKER_WEAPON_STRENGTH", nullptr},
    {13, "define FREEZETHROWER_WEAPON_STRENGTH", "16"},
    {14, "define SHARKBITESTRENGTH", nullptr},
    {15, "define CRYSTALAMMOAMOUNT", nullptr},
    {16, "define BOSS3STRENGTH", nullptr},
    {17, "define HBOMBTOUGH", "100"},
    {18, "define GOTTASMART", nullptr},
    {19, "define BOMBTOUGH", nullptr},
    {20, "// Maximum quote size is 64 characters.", nullptr},
    {21, "definequote 28", "< EMPTY >"},
    {22, "definequote 60", "SHRINKER!"},
    {23, "definequote 121", nullptr},
    {24, "// Level file names cannot excede 13 characters.", nullptr},
    {25, "definelevelname 0 7", "00:00 00:00"},
    {26, "definelevelname 0 8", "00:00 00:00 MULTIPLAYER 3"},
    {27, "definelevelname 0 9", "00:00 00:00 MULTIPLAYER 4"},
    {28, "definelevelname 0 10", "00:00 00:00 MULTIPLAYER 5"},
    {29, "definelevelname 2 10 E3L11.map 02:00 01:07 FREEWAY", nullptr},
    {30, "music 0", "ITSGREEN.MID"},
    {31, "music 1", nullptr},
    {33, "- The 5th number is volume adjustment.", nullptr},
    {34, "definesound LIZARD_BEG", nullptr},
    {35, "definesound LIZARD_SPIT", nullptr},
    {36, "definesound SLIM_HATCH", " 0   0 "},
    {36, "definesound SLIM_ROAM", " 0   0 "},
    {36, "definesound SLIM_RECOG", " 0   0 "},
    {36, "definesound SLIM_ATTACK", " 0   0 "},
    {36, "// definesound SLIM_PAIN", " 0   0 "},
    {36, "definesound SLIM_DYING", " 0   0 "},
    {37, "definesound BOS3_DYING", nullptr},
    {38, "definesound RPG_EXPLODE", " 254 "},
    {39, "definesound SHRINKER_FIRE", " 4 "},
    {40, "definesound ACTOR_SHRINKING", nullptr},
    {41, "definesound JIBBED_ACTOR13", nullptr},
    {42, "definesound ZANTH_LOOKINTOMIRROR", " 12 "},
    {43, "definesound SQUISHED", " 0   0 "},
    {44, "definesound WIND_REPEAT", " 3 "},
    {45, "definesound STEAM_HISSING", " 1   8192"},
    {46, "definesound BAR_MUSIC", " 3 "},
    {47, "definesound BAR_MUSIC", nullptr},
    {48, "definesound ZANTH_SCREAM", " 255 "},
    {49, "definesound GENERIC_AMBIENCE12", "blank.voc"},
    {50, "definesound GENERIC_AMBIENCE23", nullptr},
    {51, "definesound JIBBED_ACTOR12", nullptr},
    {52, "definesound ENDSEQVOL3SND1", nullptr},
};

class OlderUserTemplate : public testing::Test {
 protected:
  Position Word(std::string_view wanted, Position start = 0) const {
    return FindText(text_, wanted, start, std::ssize(text_), kFindWholeWord);
  }
  Position Anywhere(std::string_view wanted, Position start = 0) const {
    return FindText(text_, wanted, start, std::ssize(text_), kFindDefault);
  }
  /// From a position to the end of its line.
  std::string RestOfLine(Position at) const {
    const auto start = static_cast<std::size_t>(at);
    return text_.substr(start, text_.find('\r', start) - start);
  }

  const std::string text_ = ReadDataFile("zmuser.dat");
};

TEST_F(OlderUserTemplate, HoldsWhatEveryStepOfTheConversionLooksFor) {
  for (const auto& sought : kSought) {
    const auto at = Word(sought.text);
    ASSERT_NE(at, kNotFound) << "step " << sought.step << ": " << sought.text;
    if (sought.value == nullptr) continue;
    EXPECT_NE(RestOfLine(at).find(sought.value), std::string::npos)
        << "step " << sought.step << ": " << RestOfLine(at);
  }
}

TEST_F(OlderUserTemplate, IsAUserFileThatIsNotConvertedYet) {
  EXPECT_EQ(Anywhere("QSIZE"), kNotFound);
  EXPECT_NE(Anywhere("definelevelname"), kNotFound);
}

TEST_F(OlderUserTemplate, OpensItsHeadingInABlockCommentOfSeveralLines) {
  const auto at = Word("/*");
  EXPECT_EQ(at, 0);
  EXPECT_EQ(RestOfLine(at), "/*");
  EXPECT_EQ(RestOfLine(Word("*/")), "*/");
}

TEST_F(OlderUserTemplate, HoldsASecondSwearFrequencyLineBehindTheFirst) {
  const auto first = Word("define SWEARFREQUENCY");
  EXPECT_EQ(first, Anywhere("SWEARFREQUENCY") - std::ssize(std::string("define ")));
  EXPECT_NE(Word("define SWEARFREQUENCY", first + 1), kNotFound);
}

TEST_F(OlderUserTemplate, PutsALineOfAsterisksRightBelowTheMiscHeading) {
  const auto heading = Word("// MISC GAME SETTINGS");
  const auto below = Word("// ******************", heading + 1);
  EXPECT_EQ(below, heading + std::ssize(RestOfLine(heading)) + 2);
}

TEST_F(OlderUserTemplate, EndsTheStartUpListWithFreezerHurtOwner) {
  const auto list = Word("gamestartup");
  const auto end = Word("FREEZERHURTOWNER", list);
  ASSERT_NE(end, kNotFound);
  EXPECT_EQ(RestOfLine(end), "FREEZERHURTOWNER");
  EXPECT_EQ(RestOfLine(end + std::ssize(RestOfLine(end)) + 2), "");
  EXPECT_LT(Word("define FREEZERHURTOWNER"), list);
}

TEST_F(OlderUserTemplate, ChangesPitchesOnTheLinesOfTheSoundsThemselves) {
  for (const auto& sought : kSought) {
    if (sought.step != 36 && sought.step != 43 && sought.step != 45) continue;
    const auto name = Word(sought.text);
    const auto numbers = Word(sought.step == 45 ? "1   8192" : "0   0", name + 1);
    EXPECT_LT(numbers, name + std::ssize(RestOfLine(name))) << sought.text;
  }
}

TEST_F(OlderUserTemplate, ChangesOneNumberOnlyWhereEveryOneOfItsKindIsReplaced) {
  struct {
    const char* line;
    const char* digits;
  } const replaced[] = {{"define SHRINKERBLASTRADIUS", "650"},
                        {"define FREEZETHROWER_WEAPON_STRENGTH", "16"},
                        {"definesound RPG_EXPLODE", "254"},
                        {"definesound SHRINKER_FIRE", "4"},
                        {"definesound ZANTH_LOOKINTOMIRROR", "12"},
                        {"definesound WIND_REPEAT", "3"},
                        {"definesound BAR_MUSIC", "3"},
                        {"definesound ZANTH_SCREAM", "255"}};
  for (const auto& [line, digits] : replaced) {
    const auto rest = RestOfLine(Word(line));
    EXPECT_EQ(rest.find(digits), rest.rfind(digits)) << rest;
  }
}

TEST_F(OlderUserTemplate, TellsTheNumberOfSoundsOnTwoLinesAndHoldsThatMany) {
  const auto first = Word("Zanth may have up to 348 different sounds, currently there");
  ASSERT_NE(first, kNotFound);
  EXPECT_EQ(RestOfLine(first), "Zanth may have up to 348 different sounds, currently there");
  const auto second = Word("are aprox. 254 slots used.");
  EXPECT_GT(second, first);

  const auto tokens = Tokens(WithoutComments(text_));
  EXPECT_EQ(std::count(tokens.begin(), tokens.end(), "definesound"), 254);
}

TEST_F(OlderUserTemplate, ListsTheNumbersOfASoundInABlockComment) {
  const auto note = Word("- The 5th number is volume adjustment.");
  const auto open = text_.rfind("/*", static_cast<std::size_t>(note));
  EXPECT_GT(text_.find("*/", open), static_cast<std::size_t>(note));
}

}  // namespace
}  // namespace tessel::test
