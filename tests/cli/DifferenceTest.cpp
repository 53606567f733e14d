#include <gtest/gtest.h>

#include "cli/report/Difference.h"

namespace tessel::cli {
namespace {

TEST(Difference, IsNothingBetweenEqualTexts) {
  EXPECT_EQ(UnifiedDifference("a\n", "a\n", "x"), "");
}

TEST(Difference, ShowsThreeLinesAroundAChange) {
  EXPECT_EQ(UnifiedDifference("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n", "x"),
            "--- x\n+++ x\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(Difference, JoinsChangesThatAreNear) {
  EXPECT_EQ(UnifiedDifference("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n", "x"),
            "--- x\n+++ x\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
  EXPECT_EQ(UnifiedDifference("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n", "x"),
            "--- x\n+++ x\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n"
            "@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

TEST(Difference, NamesTheLineInFrontOfAnEmptyRange) {
  EXPECT_EQ(UnifiedDifference("", "a\n", "x"), "--- x\n+++ x\n@@ -0,0 +1,1 @@\n+a\n");
  EXPECT_EQ(UnifiedDifference("a\n", "", "x"), "--- x\n+++ x\n@@ -1,1 +0,0 @@\n-a\n");
}

TEST(Difference, RemarksOnALastLineWithoutABreak) {
  EXPECT_EQ(UnifiedDifference("a", "a\n", "x"),
            "--- x\n+++ x\n@@ -1,1 +1,1 @@\n-a\n\\ No newline at end of file\n+a\n");
}

TEST(Difference, HasItsColoursAndNoOtherControls) {
  EXPECT_EQ(InColours("--- x\n+++ x\n@@ -1,1 +1,1 @@\n-a\x1B\r\n+b\r\n c\r\n"),
            "\x1b[31m--- x\x1b[0m\n\x1b[32m+++ x\x1b[0m\n\x1b[36m@@ -1,1 +1,1 @@\x1b[0m\n"
            "\x1b[31m-a?\x1b[0m\n\x1b[32m+b\x1b[0m\n c\n");
}

}  // namespace
}  // namespace tessel::cli
