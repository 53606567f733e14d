// What a level line says, and what is wrong with one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/Levels.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Each level as its fields with "|" between them.
std::vector<std::string> LevelFields(std::string_view text) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const Level& level : Levels(script)) {
    std::string line;
    for (const Range field :
         {level.episode, level.number, level.map, level.par, level.record, level.title}) {
      (line += script.Text(field)) += '|';
    }
    shown.push_back(line);
  }
  return shown;
}

Level OnlyLevel(std::string_view text) {
  const auto all = Levels(Script(text));
  EXPECT_EQ(all.size(), 1U) << text;
  return all.empty() ? Level{} : all.front();
}

TEST(Level, HasSixFields) {
  EXPECT_THAT(
      LevelFields("definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n"
                  "DefineLevelName 1 10 E2L11.map 00:00 00:00 X"),
      ElementsAre("0|7|E1L8.map|05:00|03:00|FIRST STEPS|", "1|10|E2L11.map|00:00|00:00|X|"));
}

TEST(Level, HasATitleUpToAComment) {
  EXPECT_THAT(LevelFields("definelevelname 0 7 a.map 05:00 03:00 T  { state } // note"),
              ElementsAre("0|7|a.map|05:00|03:00|T  { state }|"));
}

TEST(Level, HasAnyWordsForItsTimes) {
  EXPECT_THAT(LevelFields("definelevelname 0 9 a.map 0T:HX 11:38 T"),
              ElementsAre("0|9|a.map|0T:HX|11:38|T|"));
  EXPECT_TRUE(OnlyLevel("definelevelname 0 9 a.map 0T:HX 11:38 T").IsComplete());
}

TEST(Level, EndsWithItsLine) {
  EXPECT_THAT(LevelFields("definelevelname 0 7 a.map\n05:00 03:00 T"),
              ElementsAre("0|7|a.map||||"));
}

TEST(Level, IsNoneInAComment) {
  EXPECT_THAT(LevelFields("// definelevelname 0 7 a.map 05:00 03:00 T"), IsEmpty());
}

TEST(Level, IsIncompleteWhereAFieldIsMissingOrNoNumber) {
  EXPECT_TRUE(OnlyLevel("definelevelname 0 7 a.map 05:00 03:00 T").IsComplete());
  for (const char* rest :
       {"", " 0", " 0 7", " 0 7 a.map", " 0 7 a.map 05:00", " 0 7 a.map 05:00 03:00",
        " 0 7 a.map 05:00 03:00 // T", " x 7 a.map 05:00 03:00 T", " 0 -7 a.map 05:00 03:00 T",
        " 99999999999 7 a.map 05:00 03:00 T"}) {
    EXPECT_FALSE(OnlyLevel("definelevelname" + std::string(rest)).IsComplete()) << rest;
  }
}

TEST(Level, PlacesWhatIsMissingWhereItWouldStand) {
  const Level level = OnlyLevel("definelevelname 0 7 \r\n");
  EXPECT_EQ(level.number, (Range{18, 19}));
  EXPECT_EQ(level.map, (Range{19, 19}));
  EXPECT_EQ(level.title, (Range{19, 19}));
}

TEST(Level, KnowsTheEndOfItsLineBehindAComment) {
  EXPECT_EQ(OnlyLevel("definelevelname 0 7 a b c T // x\r\n").lineEnd, 32);
  EXPECT_EQ(OnlyLevel("definelevelname 0 7 a b c T\r\n").lineEnd, 27);
  EXPECT_EQ(OnlyLevel("definelevelname 0 7 a b c T ").lineEnd, 28);
}

TEST(Level, SaysWhetherSingleBlanksSeparateItsFields) {
  EXPECT_TRUE(OnlyLevel("  definelevelname 0 7 a b c T  U // x").singleBlanks);
  EXPECT_TRUE(OnlyLevel("definelevelname 0 7").singleBlanks);
  for (const char* line : {"definelevelname  0 7 a b c T", "definelevelname 0\t7 a b c T",
                           "definelevelname 0 7 a b c  T", "definelevelname 0 7 a/* */ b c T"}) {
    EXPECT_FALSE(OnlyLevel(line).singleBlanks) << line;
  }
}

TEST(Level, IsFoundByItsNumbersAlone) {
  const Script script(
      "definelevelname 0 10 a.map 0 0 T\ndefinelevelname 0 1 b.map 0 0 T\n"
      "definelevelname 0 01 c.map 0 0 T\ndefinelevelname x 1 d.map 0 0 T\n");
  EXPECT_EQ(LevelsOf(script, 0, 1).size(), 2U);
  EXPECT_EQ(LevelsOf(script, 0, 10).size(), 1U);
  EXPECT_THAT(LevelsOf(script, 1, 1), IsEmpty());
}

}  // namespace
}  // namespace tessel::language
