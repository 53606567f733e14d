// The lines that fold away under the line that opens their block.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/FoldLines.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;

/// Each line's depth, and "+" where it opens.
std::vector<std::string> FoldsOf(std::string_view text) {
  const Script script(text);
  std::vector<std::string> folds;
  for (const FoldLine& line : FoldLines(script, Blocks(script).blocks)) {
    folds.push_back(std::to_string(line.depth) + (line.opens ? "+" : ""));
  }
  return folds;
}

TEST(FoldLines, ReachFromBehindTheOpenerToTheCloser) {
  EXPECT_THAT(FoldsOf("x\nstate a\n  x\nends\nx"), ElementsAre("0", "0+", "1", "1", "0"));
}

TEST(FoldLines, AreTheSameForEachKindOfLineBreak) {
  EXPECT_THAT(FoldsOf("state a\r\n\rends\n"), ElementsAre("0+", "1", "1", "0"));
}

TEST(FoldLines, StandInEachOther) {
  EXPECT_THAT(FoldsOf("actor a\n{\nx\n}\nenda"), ElementsAre("0+", "1+", "2", "2", "1"));
}

TEST(FoldLines, OfABlockOnOneLineAreNone) {
  EXPECT_THAT(FoldsOf("state a { } ends\nx"), ElementsAre("0", "0"));
}

TEST(FoldLines, OfTwoBlocksFromOneLineStandUnderIt) {
  EXPECT_THAT(FoldsOf("actor a {\n}\nenda"), ElementsAre("0+", "2", "1"));
}

TEST(FoldLines, LeaveOutALineThatClosesOneBlockAndOpensAnother) {
  EXPECT_THAT(FoldsOf("{\nx\n} else {\ny\n}"), ElementsAre("0+", "1", "0+", "1", "1"));
  EXPECT_THAT(FoldsOf("{\n} else {\n}"), ElementsAre("0", "0+", "1"));
}

TEST(FoldLines, OfABlockThatIsNotClosedReachToWhatShowsIt) {
  EXPECT_THAT(FoldsOf("actor a\nx\nactor b\nenda"), ElementsAre("0+", "1", "0+", "1"));
  EXPECT_THAT(FoldsOf("state a\nx"), ElementsAre("0+", "1"));
}

TEST(FoldLines, HaveAGreatestDepth) {
  std::string text;
  for (int i = 0; i < kDeepestFold + 5; ++i) text += "{\n";
  text += "x";
  EXPECT_EQ(FoldsOf(text).back(), std::to_string(kDeepestFold));
}

TEST(FoldLines, OfAnEmptyTextAreOne) { EXPECT_THAT(FoldsOf(""), ElementsAre("0")); }

}  // namespace
}  // namespace tessel::language
