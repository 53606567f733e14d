// Long lines take two styles of the same looks by turns.
#include <gtest/gtest.h>

#include "qt/editor/LongLines.h"
// needs the one above
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "qt/ScintillaMirrorFixture.h"

namespace tessel {
namespace {

constexpr Colour kDarkRed = 0x0000C8;

std::string Words(std::size_t length) {
  std::string line;
  line.reserve(length + 16);
  while (line.size() < length) line += "sound 30 /* x */ ";
  line.resize(length);
  return line;
}

std::array<char, 256> NextStyles() {
  std::array<char, 256> twins{};
  for (int i = 0; i < 256; ++i) twins[static_cast<std::size_t>(i)] = static_cast<char>(i + 1);
  return twins;
}

std::string Parted(const std::string& text) {
  std::string styles(text.size(), '\0');
  PartLongLines(text, NextStyles(), styles);
  return styles;
}

std::size_t LongestRun(const std::string& styles) {
  std::size_t longest = 0;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= styles.size(); ++i) {
    if (i < styles.size() && styles[i] == styles[start]) continue;
    longest = std::max(longest, i - start);
    start = i;
  }
  return longest;
}

RC_GTEST_PROP(HasLongLine, SaysWhatTheLongestLineSays, (unsigned char most)) {
  const auto letters = rc::gen::element('a', 'b', 'c', 'd', 'e', 'f', '\r', '\n');
  const auto text = *rc::gen::container<std::string>(letters);
  const Position length = most % 9 + 1;
  RC_ASSERT(HasLongLine(text, length) == (LongestLine(text) >= length));
}

TEST(Utf8OfBytes, TakesEachByteOfAMixedText) {
  for (std::size_t length = 0; length < 40; ++length) {
    for (std::size_t other = 0; other <= length; ++other) {
      std::string bytes(length, 'a');
      std::string utf8 = bytes;
      if (other < length) {
        bytes[other] = '\xE9';
        utf8.replace(other, 1, "\u00E9");
      }
      EXPECT_EQ(Utf8OfBytes(bytes), utf8);
    }
  }
}

TEST(LongestLine, CountsBytesBetweenBreaksOfAnyKind) {
  EXPECT_EQ(LongestLine(""), 0);
  EXPECT_EQ(LongestLine("abc"), 3);
  EXPECT_EQ(LongestLine("a\r\nabcd\rab\nabc"), 4);
  EXPECT_EQ(LongestLine("ab\r\n"), 2);
}

TEST(PartLongLines, LeavesLinesBelowTheLimit) {
  const std::string text = Words(kLongLine - 1) + "\r\n" + Words(kLongLine - 1);
  EXPECT_EQ(Parted(text), std::string(text.size(), '\0'));
}

TEST(PartLongLines, MakesPiecesThatScintillaRemembers) {
  EXPECT_LT(LongestRun(Parted(Words(kLongLine))), 30U);
  EXPECT_LT(LongestRun(Parted(std::string(5 * kLongLine, 'x'))), 30U);
}

TEST(PartLongLines, ChangesAtTheStartOfAWord) {
  const std::string styles = Parted("ab  cd\te " + Words(kLongLine));
  EXPECT_EQ(styles.substr(0, 9), std::string("\0\0\0\0\1\1\1\0\0", 9));
}

TEST(PartLongLines, LeavesTheLinesAround) {
  const std::string styles = Parted("a b c\r\n" + Words(kLongLine) + "\na b c");
  EXPECT_EQ(styles.substr(0, 8), std::string(8, '\0'));
  EXPECT_EQ(styles.substr(styles.size() - 6), std::string(6, '\0'));
}

struct LongLineInMirror : MirroredModel, testing::Test {
  void Show(const std::string& text) {
    model.SetText(text);
    model.SetSelStart(500);
    model.SetSelLength(700);
    model.SetSelColor(kDarkRed);
    Draw();
  }
};

TEST_F(LongLineInMirror, ShowsTheColoursOfTheModel) {
  Show("a\r\n" + Words(2 * kLongLine) + "\xE4\x80" + Words(kLongLine));
  EXPECT_EQ(ShownColours(), Colours());
  EXPECT_LT(LongestRun(document.styles), 30U);
}

TEST_F(LongLineInMirror, UsesOneStyleAgainWhereItHasBecomeShort) {
  Show(Words(2 * kLongLine));
  model.SetText("sound 30 sound 30");
  Draw();
  EXPECT_EQ(document.styles, std::string(17, '\0'));
}

TEST_F(LongLineInMirror, GoesWithoutTwinsWhereNoStyleIsLeft) {
  model.SetText(Words(2 * kLongLine));
  for (Position i = 0; i < 240; ++i) {
    model.SetSelStart(2 * i);
    model.SetSelLength(1);
    model.SetSelColor(static_cast<Colour>(i));
  }
  Draw();
  EXPECT_EQ(ShownColours(), Colours());
}

TEST(HideLongTails, CountsFromTheStartOfEachLine) {
  std::string styles(14, 'a');
  HideLongTails("1234\r\n123456\n1", 2, 3, 'h', styles);
  EXPECT_EQ(styles, "ahhhaaaaahhhaa");
}

RC_GTEST_PROP(PartLongLines, ChangesEachStyleToItselfOrItsTwin, (const std::string& piece)) {
  std::string text;
  for (int i = 0; i < 60; ++i) text += piece;
  const std::string styles = Parted(text);
  RC_ASSERT(styles.size() == text.size());
  RC_ASSERT(std::ranges::all_of(styles, [](char style) { return style == 0 || style == 1; }));
}

}  // namespace
}  // namespace tessel
