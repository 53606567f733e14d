#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "text/ChangedWords.h"

namespace tessel {
namespace {

/// The line with what has changed in brackets.
std::string Marked(std::string_view line, const std::vector<LineStretch>& changed) {
  std::string text(line);
  for (auto stretch = changed.rbegin(); stretch != changed.rend(); ++stretch) {
    text.insert(stretch->at + stretch->length, "]");
    text.insert(stretch->at, "[");
  }
  return text;
}

std::string Before(std::string_view before, std::string_view after) {
  return Marked(before, ChangedWordsBetween(before, after).before);
}

std::string After(std::string_view before, std::string_view after) {
  return Marked(after, ChangedWordsBetween(before, after).after);
}

TEST(ChangedWords, AreWholeWords) {
  EXPECT_EQ(Before("define MAXAMMO 100 // x", "define MAXAMMO 150 // x"),
            "define MAXAMMO [100] // x");
  EXPECT_EQ(After("define MAXAMMO 100 // x", "define MAXAMMO 150 // x"),
            "define MAXAMMO [150] // x");
}

TEST(ChangedWords, MayStandInOneLineOnly) {
  EXPECT_EQ(Before("state walk", "// state walk"), "state walk");
  EXPECT_EQ(After("state walk", "// state walk"), "[// ]state walk");
}

TEST(ChangedWords, AreBlanksAndSignsToo) {
  EXPECT_EQ(After("a b", "a  b"), "a[  ]b");
  EXPECT_EQ(Before("{ a; }", "{ a, }"), "{ a[;] }");
  EXPECT_EQ(After("a\r\n", "a\n"), "a\n");
  EXPECT_EQ(Before("a\r\n", "a\n"), "a[\r]\n");
}

TEST(ChangedWords, AreAllBetweenTheFirstAndTheLastDifferenceOfALongLine) {
  const std::string blanks(5000, ' ');
  EXPECT_EQ(After("a b c d" + blanks, "a X c Y" + blanks), "a [X c Y]" + blanks);
  EXPECT_EQ(Before("same" + blanks, "same" + blanks), "same" + blanks);
}

std::string Without(std::string line, const std::vector<LineStretch>& changed) {
  for (auto stretch = changed.rbegin(); stretch != changed.rend(); ++stretch) {
    line.erase(stretch->at, stretch->length);
  }
  return line;
}

RC_GTEST_PROP(ChangedWords, LeaveTheSameOfBothLines, ()) {
  const auto line = rc::gen::container<std::string>(rc::gen::element('a', 'b', ' ', ';'));
  const std::string before = *line;
  const std::string after = *line;
  const ChangedWords changed = ChangedWordsBetween(before, after);
  RC_ASSERT(Without(before, changed.before) == Without(after, changed.after));
}

TEST(ALine, LooksChangedFromOneThatBeginsAndEndsAsItDoes) {
  EXPECT_TRUE(LooksChangedFrom("define A 100", "define A 5"));
  EXPECT_TRUE(LooksChangedFrom("define A 100", "DEFINE A 100"));
  EXPECT_TRUE(LooksChangedFrom("state x", "// state x"));
  EXPECT_FALSE(LooksChangedFrom("define A 100", "music 0 grabbag.mid"));
  EXPECT_FALSE(LooksChangedFrom("", "music 0 grabbag.mid"));
}

}  // namespace
}  // namespace tessel
