#include <gtest/gtest.h>

#include "text/LineEnds.h"

namespace tessel::cli {
namespace {

TEST(LineEnds, AreCountedByKind) {
  const LineEnds ends = LineEndsOf("a\r\nb\nc\r\rd\r\n\n");
  EXPECT_EQ(ends.crLf, 2U);
  EXPECT_EQ(ends.lf, 2U);
  EXPECT_EQ(ends.cr, 2U);
  EXPECT_TRUE(ends.Mixed());
  EXPECT_EQ(ends.Only(), std::nullopt);
}

TEST(LineEnds, AreOfOneKindOrOfNone) {
  EXPECT_EQ(LineEndsOf("a\r\nb\r\n").Only(), LineEnd::kCrLf);
  EXPECT_EQ(LineEndsOf("\n").Only(), LineEnd::kLf);
  EXPECT_EQ(LineEndsOf("a\rb").Only(), LineEnd::kCr);
  EXPECT_EQ(LineEndsOf("abc").Only(), std::nullopt);
  EXPECT_FALSE(LineEndsOf("abc").Mixed());
}

TEST(LineEnds, EndTheLinesOfATextWhateverTheirKind) {
  using Lines = std::vector<std::string_view>;
  EXPECT_EQ(LinesWithBreaks("a\r\nb\n\rc"), (Lines{"a\r\n", "b\n", "\r", "c"}));
  EXPECT_EQ(LinesWithBreaks("a\n"), Lines{"a\n"});
  EXPECT_EQ(LinesWithBreaks(""), Lines{});
  EXPECT_EQ(WithoutBreak("a \r\n"), "a ");
  EXPECT_EQ(WithoutBreak("\r"), "");
  EXPECT_EQ(WithoutBreak("a"), "a");
}

TEST(LineEnds, AreWrittenAsOneKind) {
  const std::string text = "a\r\nb\nc\r\rd\r\n\n";
  EXPECT_EQ(WithLineEnds(text, LineEnd::kLf), "a\nb\nc\n\nd\n\n");
  EXPECT_EQ(WithLineEnds(text, LineEnd::kCr), "a\rb\rc\r\rd\r\r");
  EXPECT_EQ(WithLineEnds(text, LineEnd::kCrLf), "a\r\nb\r\nc\r\n\r\nd\r\n\r\n");
  EXPECT_EQ(WithLineEnds("", LineEnd::kLf), "");
}

}  // namespace
}  // namespace tessel::cli
