// Which pieces of a text belong to a setting. "[" and "]" mark the piece.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "language/SettingLines.h"
#include "support/SelectionText.h"

namespace tessel::test {
namespace {

bool InDefine(std::string_view marked) {
  const SelectionText read = ReadSelection(marked);
  return LiesInDefineValue(read.text, {read.start, read.length});
}

bool InLevel(std::string_view marked) {
  const SelectionText read = ReadSelection(marked);
  return LiesInLevel(read.text, {read.start, read.length});
}

TEST(SettingLines, AValueOfADefine) {
  for (const char* text : {"define A [5]", "define A [5] // x", "x\r\nDEFINE\tA  [5]\r\ny",
                           "  define A [-5] /* x */", "define A 1[2]3", "define A [1]/2",
                           "define A 1 [2]", "define A [1 2]\n", "\rdefine A [YES]\r"}) {
    EXPECT_TRUE(InDefine(text)) << text;
  }
}

TEST(SettingLines, NoValueOfADefine) {
  for (const char* text :
       {"[// Weapon Strengths]", "define [A] 5", "[define] A 5", "define [A 5]", "define A []5",
        "define A 5 // [x]", "define A 5 /* [x] */", "// define A [5]", "defined A [5]",
        "undefine A [5]", "define A [5\r\ndefine B 6]", "define A\r\n[5]", "definelevelname 0 [0]",
        "define A [5\r]\n", "define A[ ]", "[x]", "[define]", "define A [5 // x]"}) {
    EXPECT_FALSE(InDefine(text)) << text;
  }
  EXPECT_FALSE(LiesInDefineValue("", {0, 0}));
  EXPECT_FALSE(LiesInDefineValue("define A", {8, 0}));
}

TEST(SettingLines, WhatStandsInALevelsLine) {
  EXPECT_TRUE(InLevel("definelevelname 0 1 [E1L2.map] 01:00 02:00 TITLE"));
  EXPECT_TRUE(InLevel("x\nDefineLevelName 0 1 E1L2.map 01:00 02:00 [TITLE ONE]\r\n"));
  EXPECT_FALSE(InLevel("[definelevelname] 0 1 E1L2.map"));
  EXPECT_FALSE(InLevel("// definelevelname 0 1 [E1L2.map]"));
  EXPECT_FALSE(InLevel("define A [5]"));
  EXPECT_FALSE(InLevel("definelevelname 0 1 [E1L2.map\r\nx]"));
}

TEST(SettingLines, LinesEndAtEachKindOfBreak) {
  const std::string text = "a\r\nbc\rd\n\ne";
  const TextRange lines[] = {{0, 1}, {0, 1}, {3, 2}, {3, 2}, {3, 2},
                             {6, 1}, {6, 1}, {8, 0}, {9, 1}};
  const Position places[] = {0, 1, 3, 4, 5, 6, 7, 8, 9};
  const int numbers[] = {1, 1, 2, 2, 2, 3, 3, 4, 5};
  for (std::size_t i = 0; i < std::size(places); ++i) {
    EXPECT_EQ(LineAt(text, places[i]), lines[i]) << places[i];
    EXPECT_EQ(LineNumberAt(text, places[i]), numbers[i]) << places[i];
  }
  EXPECT_EQ(LineAt(text, 10), (TextRange{9, 1}));
}

}  // namespace
}  // namespace tessel::test
