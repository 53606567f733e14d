#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "RedText.h"
#include "base/RuntimeError.h"
#include "converter/VersionEdits.h"
#include "converter/modConVersion.h"

namespace tessel {
namespace {

using test::RedMarked;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Red(std::string_view text) { return "{" + std::string(text) + "}"; }
/// What follows a found line: a break and `text`, both red.
std::string NewLines(std::string_view text) { return Red("\r\n" + std::string(text)); }

// What every text needs, so that the start-up parameters and the music have their place.
const std::string kFoot = "gamestartup A\r\nFREEZERHURTOWNER\r\nmusic 1 a.mid\r\n";
const std::string kConvertedFoot =
    Red(kGamestartupBlock) + "\r\n" + Red(kMusic4Block) + " a.mid\r\n";

struct Conversion {
  std::string text;
  std::vector<StepResult> results;

  /// The steps that changed the text, other than those of the foot.
  std::set<int> Changed() const {
    std::set<int> steps;
    for (const StepResult& result : results) {
      if (result.changed) steps.insert(result.step);
    }
    steps.erase(10);
    steps.erase(31);
    return steps;
  }
};

Conversion Convert(const std::string& text) {
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  editor.SetText(text);
  Conversion conversion;
  conversion.results = ApplyVersionEdits(editor);
  conversion.text = RedMarked(editor);
  return conversion;
}

struct StepCase {
  std::set<int> steps;
  std::string before;
  std::string after;
};

void PrintTo(const StepCase& step, std::ostream* out) {
  *out << "step " << *step.steps.begin() << " on \"" << step.before << "\"";
}

class ConversionStep : public testing::TestWithParam<StepCase> {};

TEST_P(ConversionStep, ChangesItsLineAndNothingElse) {
  const StepCase& step = GetParam();
  const Conversion conversion = Convert(step.before + "\r\nlast\r\n" + kFoot);
  EXPECT_EQ(conversion.text, step.after + "\r\nlast\r\n" + kConvertedFoot);
  EXPECT_EQ(conversion.Changed(), step.steps);
}

// Case is ignored throughout.
TEST_P(ConversionStep, FindsItsLineInLowerCase) {
  std::string before = GetParam().before;
  for (char& c : before) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  EXPECT_EQ(Convert(before + "\r\nlast\r\n" + kFoot).Changed(), GetParam().steps);
}

// A letter in front of a word makes it another word. The first step seeks no word at all.
TEST_P(ConversionStep, LeavesALongerWordAlone) {
  std::string text;
  bool lengthened = false;
  for (const char c : GetParam().before) {
    const bool startsWord = std::isalpha(static_cast<unsigned char>(c)) != 0 &&
                            (text.empty() || std::isspace(static_cast<unsigned char>(text.back())));
    lengthened |= startsWord;
    if (startsWord) text += 'x';
    text += c;
  }
  if (lengthened && !GetParam().before.starts_with("/*")) {
    EXPECT_THAT(Convert(text + "\r\n" + kFoot).Changed(), IsEmpty());
  }
}

const StepCase kStepCases[] = {
    {{1}, "/* a\r\n*/", "/* a" + NewLines("Converted to 1.4/1.5 by Zanth Manager") + "\r\n*/"},
    {{2}, "define YELLHURTSOUNDSTRENGTHMP   50 // x", Red(kStretchBlock)},
    {{3}, "define SWEARFREQUENCY 100 // x", ""},
    {{3}, "define SWEARFREQUENCY 1\r\ndefine SWEARFREQUENCY 2", "\r\n"},
    {{3},
     "define SWEARFREQUENCY 1\r\ndefine SWEARFREQUENCY 2\r\ndefine SWEARFREQUENCY 3",
     "\r\n\r\ndefine SWEARFREQUENCY 3"},
    {{4},
     "// ******************\r\n// MISC GAME SETTINGS x\r\n// ********************\r\ny",
     "// ******************\r\n// MISC GAME SETTINGS x\r\n// ********************" +
         NewLines("\r\ndefine SWEARFREQUENCY          100      // The lower, the less.") + "\r\ny"},
    {{5},
     "define MAXSHRINKERAMMO 50",
     "define MAXSHRINKERAMMO 50" + NewLines("define MAXGROWAMMO              50")},
    {{6},
     "define MAXTRIPBOMBAMMO 10",
     "define MAXTRIPBOMBAMMO 10" + NewLines(kTripbombLaserModeBlock)},
    {{7}, "define RESPAWNITEMTIME 768", "define RESPAWNITEMTIME 768" + NewLines(kQsizeBlock)},
    {{8},
     "define RUNNINGSPEED 53200 // x",
     "define RUNNINGSPEED 53200 // x" + NewLines("define GRAVITATIONALCONSTANT 176")},
    {{9}, "define SHRINKERBLASTRADIUS 650 // x", Red("define SHRINKERBLASTRADIUS 680 // x")},
    {{11}, "x // Adds rand()%5 (0 to 5) y", "x "},
    {{12},
     "define SHRINKER_WEAPON_STRENGTH 0",
     "define SHRINKER_WEAPON_STRENGTH 0" + NewLines("define GROWSPARK_WEAPON_STRENGTH        15")},
    {{13},
     "define FREEZETHROWER_WEAPON_STRENGTH 16",
     Red("define FREEZETHROWER_WEAPON_STRENGTH 20")},
    {{14},
     "define SHARKBITESTRENGTH 12",
     "define SHARKBITESTRENGTH 12" + NewLines(kNewbeastDefinesBlock)},
    {{15},
     "define CRYSTALAMMOAMOUNT 5",
     "define CRYSTALAMMOAMOUNT 5" + NewLines("define GROWCRYSTALAMMOAMOUNT    20")},
    {{16},
     "define BOSS3STRENGTH 1",
     "define BOSS3STRENGTH 1" + NewLines("define BOSS4STRENGTH            6000")},
    {{17}, "define HBOMBTOUGH 100", Red("define ROBOTMOUSESTRENGTH 45")},
    {{18}, "define GOTTASMART 1", "define GOTTASMART 1" + NewLines("define PIRATEGALSTRENGTH 200")},
    {{19}, "define BOMBTOUGH 50 // x", Red("define MANWOMANSTRENGTH") + " 50 // x"},
    {{20},
     "// Maximum quote size is 64 characters.",
     "// Maximum quote size is 64 characters." + NewLines("// Maximum quotes is 192 slots.")},
    {{21}, "definequote 28 < EMPTY >", Red("definequote 28 WILL ALWAYS HAVE NO FUTURE")},
    {{22}, "definequote 60 SHRINKER!", Red("definequote 60 GOT SHRINKER/EXPANDER!")},
    {{23}, "definequote 121 x", "definequote 121 x" + NewLines(kNamesAndQuotesBlock)},
    {{24},
     "// Level file names cannot excede 13 characters. x",
     Red("// Level file names cannot excede 128 characters.") + " x"},
    {{25},
     "definelevelname 0 7 A.map 00:00 00:00 B",
     Red("definelevelname 0 7 A.map 99:99 99:99 B")},
    {{26},
     "definelevelname 0 8 A.map 00:00 00:00 MULTIPLAYER 3",
     Red("definelevelname 0 8 A.map 12:48 16:32 VOID ZONE")},
    {{27},
     "definelevelname 0 9 A.map 00:00 00:00 MULTIPLAYER 4",
     Red("definelevelname 0 9 A.map 0T:HX 11:38 ROACH CONDO")},
    {{28},
     "definelevelname 0 10 A.map 00:00 00:00 MULTIPLAYER 5",
     Red("definelevelname 0 10 A.map 08:67 53:09 ANTIPROFIT")},
    {{29},
     "definelevelname 2 10 E3L11.map 02:00 01:07 FREEWAY",
     "definelevelname 2 10 E3L11.map 02:00 01:07 FREEWAY" +
         NewLines("\r\n" + std::string(kEpisode4LevelsBlock))},
    {{30}, "music 0 ITSGREEN.MID b.mid", Red("music 0 BRIEFING.MID b.mid")},
    {{32},
     "x Zanth may have up to 348 different sounds, currently thereare aprox. 254 slots used. y",
     "x  y"},
    {{33},
     "- The 5th number is volume adjustment.",
     "- The 5th number is volume adjustment." +
         NewLines("5. Zanth may have up to 400 total sound definitions.")},
    {{34}, "definesound LIZARD_BEG a.voc 0 0", ""},
    {{35},
     "definesound LIZARD_SPIT a",
     "definesound LIZARD_SPIT a" + NewLines(kNewbeastSoundsBlock)},
    {{36},
     "definesound SLIM_HATCH a.voc 0   0 1",
     "definesound SLIM_HATCH a.voc " + Red("-256  256") + " 1"},
    {{36},
     "definesound SLIM_ROAM a.voc 0   0 1",
     "definesound SLIM_ROAM a.voc " + Red("-256  256") + " 1"},
    {{36},
     "definesound SLIM_RECOG a.voc 0   0 1",
     "definesound SLIM_RECOG a.voc " + Red("-256  256") + " 1"},
    {{36},
     "definesound SLIM_ATTACK a.voc 0   0 1",
     "definesound SLIM_ATTACK a.voc " + Red("-256  256") + " 1"},
    {{36},
     "// definesound SLIM_PAIN a.voc 0   0 1",
     "// definesound SLIM_PAIN a.voc " + Red("-256  256") + " 1"},
    {{36},
     "definesound SLIM_DYING a.voc 0   0 1",
     "definesound SLIM_DYING a.voc " + Red("-256  256") + " 1"},
    {{36},
     "definesound SLIM_ROAM 10   0 0   04\r\nx 0   0",
     "definesound SLIM_ROAM 10   0 0   04\r\nx " + Red("-256  256")},
    {{37}, "definesound BOS3_DYING a", "definesound BOS3_DYING a" + NewLines(kBoss4SoundsBlock)},
    {{38}, "definesound RPG_EXPLODE a.voc 254 0", Red("definesound RPG_EXPLODE a.voc 128 0")},
    {{39},
     "definesound SHRINKER_FIRE a4.voc 1024 4",
     Red("definesound SHRINKER_FIRE a5.voc 1025 5")},
    {{40},
     "definesound ACTOR_SHRINKING a",
     "definesound ACTOR_SHRINKING a" +
         NewLines("definesound ACTOR_GROWING       enlarge.voc    1024     0     2   0   0")},
    {{41}, "definesound JIBBED_ACTOR13 a", ""},
    {{42}, "definesound ZANTH_LOOKINTOMIRROR a 12", Red("definesound ZANTH_LOOKINTOMIRROR a 4")},
    {{43}, "definesound SQUISHED a 0   0 1", "definesound SQUISHED a " + Red("-128  0") + " 1"},
    {{44}, "definesound WIND_REPEAT a 3", Red("definesound WIND_REPEAT a 2")},
    {{45},
     "definesound STEAM_HISSING a 1   8192 0 8192",
     "definesound STEAM_HISSING a " + Red("0 10240") + " 0 8192"},
    {{46, 47},
     "definesound BAR_MUSIC a 3",
     Red("definesound BAR_MUSIC a 2\r\n" + std::string(kStoreMusicBlock))},
    {{48}, "definesound ZANTH_SCREAM a 255", Red("definesound ZANTH_SCREAM a 0")},
    {{49},
     "definesound GENERIC_AMBIENCE12 blank.voc 0",
     Red("definesound GENERIC_AMBIENCE12 drip3.voc 0")},
    {{50},
     "definesound GENERIC_AMBIENCE23 a",
     "definesound GENERIC_AMBIENCE23 a" +
         NewLines("definesound SUPERMARKET            aisle402.voc    0   0   0   4   0")},
    {{51},
     "definesound JIBBED_ACTOR12 a",
     "definesound JIBBED_ACTOR12 a" + NewLines(kJibbedSoundsBlock)},
    {{52}, "definesound ENDSEQVOL3SND1 a", Red("// definesound ENDSEQVOL3SND1") + " a"},
};

INSTANTIATE_TEST_SUITE_P(EachStep, ConversionStep, testing::ValuesIn(kStepCases));

TEST(VersionEdits, AreTestedStepByStep) {
  std::set<int> untested;
  for (const VersionEdit& edit : VersionEdits()) untested.insert(edit.step);
  for (const StepCase& step : kStepCases) {
    for (const int number : step.steps) untested.erase(number);
  }
  EXPECT_EQ(untested, (std::set{10, 31}));  // those of the foot, which every text here has
}

TEST(VersionEdits, SkipEveryStepWhoseTextIsMissing) {
  const Conversion conversion = Convert(kFoot);
  EXPECT_EQ(conversion.text, kConvertedFoot);
  EXPECT_THAT(conversion.Changed(), IsEmpty());
  for (const StepResult& result : conversion.results) {
    EXPECT_EQ(result.found, result.step == 10 || result.step == 31) << result.step;
  }
}

TEST(VersionEdits, ReportAllStepsInTheirOrder) {
  const Conversion conversion = Convert(kFoot);
  ASSERT_EQ(std::ssize(conversion.results), VersionEdits().back().step);
  for (std::size_t i = 0; i < conversion.results.size(); ++i) {
    EXPECT_EQ(conversion.results[i].step, static_cast<int>(i) + 1);
  }
  EXPECT_EQ(conversion.results[8].sought, "define SHRINKERBLASTRADIUS");
}

TEST(VersionEdits, PaintAFoundLineWithoutTheValueSought) {
  const Conversion conversion = Convert("define SHRINKERBLASTRADIUS 700\r\n" + kFoot);
  EXPECT_EQ(conversion.text, "{define SHRINKERBLASTRADIUS 700}\r\n" + kConvertedFoot);
  EXPECT_TRUE(conversion.results[8].found);
  EXPECT_FALSE(conversion.results[8].changed);
}

TEST(VersionEdits, LeaveASoundWithoutTheValueSoughtAlone) {
  for (const std::string line :
       {"definesound SLIM_HATCH a.voc 1 2 3", "definesound SLIM_ROAM a.voc",
        "definesound SQUISHED a 5 5", "definesound STEAM_HISSING a 1 1"}) {
    const Conversion conversion = Convert(line + "\r\n" + kFoot);
    EXPECT_EQ(conversion.text, line + "\r\n" + kConvertedFoot);
    EXPECT_THAT(conversion.Changed(), IsEmpty()) << line;
    EXPECT_EQ(std::ranges::count_if(conversion.results, &StepResult::found), 3)
        << line << " is found, as the start-up list and the music are";
  }
}

TEST(VersionEdits, GiveTheFrequencyOfSwearingItsNewPlaceOnlyUnderTheHeading) {
  EXPECT_THAT(Convert("// ******************\r\n" + kFoot).Changed(), IsEmpty());
  EXPECT_THAT(Convert("// MISC GAME SETTINGS\r\n" + kFoot).Changed(), IsEmpty());
  EXPECT_EQ(
      Convert("define SWEARFREQUENCY 1\r\n// MISC GAME SETTINGS\r\n// ******************\r\n" +
              kFoot)
          .text,
      "\r\n// MISC GAME SETTINGS\r\n// ******************" +
          NewLines("\r\ndefine SWEARFREQUENCY          100      // The lower, the less.") + "\r\n" +
          kConvertedFoot);
}

TEST(VersionEdits, ReplaceTheStartUpListThroughTheFirstEndBehindIt) {
  EXPECT_EQ(Convert("FREEZERHURTOWNER\r\n" + kFoot + "FREEZERHURTOWNER").text,
            "FREEZERHURTOWNER\r\n" + kConvertedFoot + "FREEZERHURTOWNER");
}

TEST(VersionEdits, KeepWhatFollowsTheStartUpList) {
  EXPECT_EQ(Convert("gamestartup FREEZERHURTOWNER tail\r\nmusic 1").text,
            Red(kGamestartupBlock) + " tail\r\n" + Red(kMusic4Block));
}

std::string ErrorOf(const std::string& text) {
  try {
    Convert(text);
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "no error";
}

TEST(VersionEdits, FailWithoutTheStartUpListAndNameWhatIsMissing) {
  EXPECT_THAT(ErrorOf("music 1 and more of a text"), HasSubstr("\"gamestartup\""));
  EXPECT_THAT(ErrorOf(std::string(16, ' ') + "gamestartup A\r\nmusic 1"),
              HasSubstr("\"FREEZERHURTOWNER\""));
}

// Without its end the list counts as 15 characters less its position.
TEST(VersionEdits, ReplaceAListWithoutEndThatStandsAtTheStartOfTheText) {
  EXPECT_EQ(Convert("gamestartup 123456\r\nmusic 1").text,
            Red(kGamestartupBlock) + "456\r\n" + Red(kMusic4Block));
  EXPECT_EQ(
      Convert(std::string(15, ' ') + "gamestartup A\r\nmusic 1").text,
      std::string(15, ' ') + Red(kGamestartupBlock) + "gamestartup A\r\n" + Red(kMusic4Block));
}

const std::string kListOnly = "gamestartup FREEZERHURTOWNER";

TEST(VersionEdits, PutTheMusicWhereTheSelectionStandsWhenItsWordsAreMissing) {
  // Behind the line of episode 0, which the step before has written.
  EXPECT_EQ(
      Convert(kListOnly + "\r\nmusic 0 a.mid\r\n").text,
      Red(kGamestartupBlock) + "\r\n" + Red("music 0 a.mid" + std::string(kMusic4Block)) + "\r\n");
  // Over the rest of the list's line: each search that missed has extended the selection to its
  // end.
  EXPECT_EQ(Convert(kListOnly + " tail\r\nend").text,
            Red(std::string(kGamestartupBlock) + std::string(kMusic4Block)) + "\r\nend");
}

TEST(VersionEdits, LeaveTheSoundCountAloneWhereItStandsOnTwoLines) {
  const std::string twoLines =
      "Zanth may have up to 348 different sounds, currently there\r\nare aprox. 254 slots "
      "used.\r\n";
  EXPECT_EQ(Convert(twoLines + kFoot).text, twoLines + kConvertedFoot);
}

TEST(VersionEdits, MoveTheLizardsBegToTheNewBeast) {
  EXPECT_EQ(
      Convert("definesound LIZARD_BEG a\r\ndefinesound LIZARD_SPIT b\r\n" + kFoot).text,
      "\r\ndefinesound LIZARD_SPIT b" + NewLines(kNewbeastSoundsBlock) + "\r\n" + kConvertedFoot);
}

TEST(VersionEdits, RaiseTheRobotMouseOnlyWhereTheBombWasTough) {
  EXPECT_THAT(Convert("define ROBOTMOUSESTRENGTH 100\r\n" + kFoot).Changed(), IsEmpty());
}

TEST(VersionEdits, RenameLevelsThatHaveTimesToo) {
  EXPECT_EQ(Convert("definelevelname 0 8 A.map 01:00 02:00 Multiplayer 3\r\n" + kFoot).text,
            Red("definelevelname 0 8 A.map 01:00 02:00 VOID ZONE") + "\r\n" + kConvertedFoot);
}

TEST(VersionEdits, InsertBehindTheFoundLineInATextOfLineFeeds) {
  EXPECT_EQ(Convert("define GOTTASMART 1\nnext\n" + kFoot).text,
            "define GOTTASMART 1" + NewLines("define PIRATEGALSTRENGTH 200") + "\nnext\n" +
                kConvertedFoot);
}

}  // namespace
}  // namespace tessel
