#include <gtest/gtest.h>

#include "host/edit/CommentLines.h"

namespace tessel::test {
namespace {

/// The whole text after the command on a selection.
std::string Toggled(std::string text, Position start, Position length) {
  const LinesReplaced lines = ToggleComments(text, start, length);
  return text.replace(lines.start, lines.length, lines.text);
}

TEST(CommentLines, MarkTheLineOfTheCaret) {
  EXPECT_EQ(Toggled("a\r\nb\r\nc", 3, 0), "a\r\n// b\r\nc");
  EXPECT_EQ(Toggled("a\r\nb\r\nc", 4, 0), "a\r\n// b\r\nc");
  EXPECT_EQ(Toggled("a", 0, 0), "// a");
  EXPECT_EQ(Toggled("a\nb", 3, 0), "a\n// b");
}

TEST(CommentLines, TakeTheMarkAwayWhereAllLinesHaveIt) {
  EXPECT_EQ(Toggled("// a\n//b\n  // c", 0, 14), "a\nb\n  c");
  EXPECT_EQ(Toggled("// a\nb", 0, 6), "// // a\n// b");
}

TEST(CommentLines, KeepIndentationAndBlankLines) {
  EXPECT_EQ(Toggled("  a\n\n\t b\n", 0, 8), "  // a\n\n\t // b\n");
  EXPECT_EQ(Toggled("  // a\n\n", 0, 6), "  a\n\n");
  EXPECT_EQ(Toggled("   ", 0, 0), "   ");
  EXPECT_EQ(Toggled("", 0, 0), "");
}

TEST(CommentLines, LeaveTheLineOutThatASelectionOnlyTouches) {
  EXPECT_EQ(Toggled("a\r\nb", 0, 3), "// a\r\nb");
  EXPECT_EQ(Toggled("a\nb", 0, 2), "// a\nb");
  EXPECT_EQ(Toggled("a\rb", 0, 2), "// a\rb");
  EXPECT_EQ(Toggled("a\n\nb", 0, 2), "// a\n\nb");
}

TEST(CommentLines, KnowEveryLineBreak) {
  EXPECT_EQ(Toggled("a\rb\nc\r\nd", 0, 8), "// a\r// b\n// c\r\n// d");
}

}  // namespace
}  // namespace tessel::test
