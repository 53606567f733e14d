// Which pieces of a text belong to a setting. "[" and "]" mark the piece.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "language/SettingLines.h"
#include "support/SelectionText.h"

namespace tessel::language {
namespace {

bool InDefine(std::string_view marked) {
  const auto read = test::ReadSelection(marked);
  return LiesInDefineValue(Script(read.text), {read.start, read.start + read.length});
}

bool InLevel(std::string_view marked) {
  const auto read = test::ReadSelection(marked);
  return LiesInLevel(Script(read.text), {read.start, read.start + read.length});
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
        "define A [5\r]\n", "define A[ ]", "/* x\r\ndefine A [5]\r\n*/", "[x]", "[define]",
        "define A [5 // x]"}) {
    EXPECT_FALSE(InDefine(text)) << text;
  }
  EXPECT_FALSE(InDefine("[]"));
  EXPECT_FALSE(InDefine("define A[]"));
}

TEST(SettingLines, WhatStandsInALevelsLine) {
  EXPECT_TRUE(InLevel("definelevelname 0 1 [E1L2.map] 01:00 02:00 TITLE"));
  EXPECT_TRUE(InLevel("x\nDefineLevelName 0 1 E1L2.map 01:00 02:00 [TITLE ONE]\r\n"));
  EXPECT_FALSE(InLevel("[definelevelname] 0 1 E1L2.map"));
  EXPECT_FALSE(InLevel("// definelevelname 0 1 [E1L2.map]"));
  EXPECT_FALSE(InLevel("define A [5]"));
  EXPECT_FALSE(InLevel("definelevelname 0 1 [E1L2.map\r\nx]"));
}

}  // namespace
}  // namespace tessel::language
