#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>

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

/// Takes them out of the text one by one.
LineEnds TakenOneByOne(std::string_view text) {
  LineEnds ends;
  while (!text.empty()) {
    if (text.starts_with("\r\n")) {
      ++ends.crLf;
      text.remove_prefix(1);
    } else if (text.front() == '\n') {
      ++ends.lf;
    } else if (text.front() == '\r') {
      ++ends.cr;
    }
    text.remove_prefix(1);
  }
  return ends;
}

TEST(LineEnds, AreCountedAlikeInLongTexts) {
  std::mt19937 dice(1);
  for (int round = 0; round < 300; ++round) {
    std::string text(dice() % 600, 'a');
    for (char& c : text) c = "a\r\n"[dice() % 3];
    const LineEnds ends = LineEndsOf(text);
    const LineEnds wanted = TakenOneByOne(text);
    ASSERT_EQ(std::tuple(ends.crLf, ends.lf, ends.cr),
              std::tuple(wanted.crLf, wanted.lf, wanted.cr))
        << testing::PrintToString(text);
  }
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
