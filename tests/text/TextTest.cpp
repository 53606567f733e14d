#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "services/Paths.h"
#include "text/Text.h"
#include "text/Wildcards.h"

namespace tessel::test {
namespace {

// --- Windows-1252

TEST(CodePoints, AreOneToOneForAllBytes) {
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(ByteOfCodePoint(CodePointOfByte(static_cast<unsigned char>(byte))), byte);
  }
}

TEST(CodePoints, ShowWhatWindows1252Shows) {
  EXPECT_EQ(CodePointOfByte('A'), U'A');
  EXPECT_EQ(CodePointOfByte(0x80), U'\u20AC');
  EXPECT_EQ(CodePointOfByte(0x81), char32_t{0x81});
  EXPECT_EQ(CodePointOfByte(0x99), U'\u2122');
  EXPECT_EQ(CodePointOfByte(0x9F), U'\u0178');
  EXPECT_EQ(CodePointOfByte(0xE4), U'\u00E4');
}

TEST(CodePoints, HaveNoByteBeyondThose256) {
  for (const char32_t codePoint : {U'\u0080', U'\u0099', U'\u0100', U'\u4E00', U'\U0001F600'}) {
    EXPECT_EQ(ByteOfCodePoint(codePoint), -1);
  }
}

// --- Case

TEST(Case, FoldsTheLettersOfWindows1252) {
  EXPECT_EQ(ToLowerText("ABC\xC4\xD6\xDC\xDE\x8A\x8C\x8E\x9F"),
            "abc\xE4\xF6\xFC\xFE\x9A\x9C\x9E\xFF");
  EXPECT_EQ(ToUpperText("abc\xE4\xF6\xFC\xFE\x9A\x9C\x9E\xFF"),
            "ABC\xC4\xD6\xDC\xDE\x8A\x8C\x8E\x9F");
}

TEST(Case, LeavesWhatHasOneCaseOnly) {
  const std::string bytes("\0 0_[`{\xD7\xF7\xDF\x83\xAA\xB5\xBA", 14);
  EXPECT_EQ(ToLowerText(bytes), bytes);
  EXPECT_EQ(ToUpperText(bytes), bytes);
}

TEST(Case, IsUndoneByTheOtherDirectionForEveryByte) {
  for (int i = 0; i < 256; ++i) {
    const auto byte = static_cast<unsigned char>(i);
    EXPECT_EQ(ToLowerByte(ToUpperByte(byte)), ToLowerByte(byte)) << i;
    EXPECT_EQ(ToUpperByte(ToLowerByte(byte)), ToUpperByte(byte)) << i;
    EXPECT_EQ(LowerTable()[byte], ToLowerByte(byte));
  }
}

TEST(Case, OfAsciiTouchesNothingElse) {
  EXPECT_EQ(AsciiLower("ABC\xC4[@"), "abc\xC4[@");
  EXPECT_TRUE(EqualIgnoringAsciiCase("ConWords", "CONWORDS"));
  EXPECT_FALSE(EqualIgnoringAsciiCase("\xC4", "\xE4"));
  EXPECT_FALSE(EqualIgnoringAsciiCase("a", "ab"));
  EXPECT_TRUE(EqualIgnoringAsciiCase("", ""));
}

TEST(WordBytes, AreLettersDigitsUnderscoreAndEverythingHigh) {
  for (const unsigned char byte : {'a', 'Z', '0', '9', '_', '\x80', '\xD7', '\xFF'}) {
    EXPECT_TRUE(IsWordByte(byte)) << int{byte};
  }
  for (const unsigned char byte : {'\0', ' ', '-', '/', '*', ':', '@', '[', '`', '{', '\x7F'}) {
    EXPECT_FALSE(IsWordByte(byte)) << int{byte};
  }
}

// --- Numbers

TEST(NumericPrefix, IsTheLongestDecimalNumberAfterBlanks) {
  EXPECT_EQ(NumericPrefix("100"), "100");
  EXPECT_EQ(NumericPrefix("  -12.5e3 x"), "-12.5e3");
  EXPECT_EQ(NumericPrefix("+7 8"), "+7");
  EXPECT_EQ(NumericPrefix(".5"), ".5");
  EXPECT_EQ(NumericPrefix("5."), "5.");
  EXPECT_EQ(NumericPrefix("1e"), "1");
  EXPECT_EQ(NumericPrefix("1e+"), "1");
  EXPECT_EQ(NumericPrefix("1.2.3"), "1.2");
}

TEST(NumericPrefix, IsNothingWhereNoNumberStands) {
  for (const char* text : {"", " ", "x1", "-", "+-1", ".", "e5", "\t1", "\r\n1"}) {
    EXPECT_EQ(NumericPrefix(text), "") << text;
  }
}

TEST(NumericValue, IsTheValueOfThePrefix) {
  EXPECT_EQ(NumericValue(" 42 apples"), 42);
  EXPECT_EQ(NumericValue("-1.5e2"), -150);
  EXPECT_EQ(NumericValue("+3"), 3);
  EXPECT_EQ(NumericValue("apples"), 0);
  EXPECT_EQ(NumericValue(""), 0);
  EXPECT_EQ(NumericValue("1e999"), HUGE_VAL);
  EXPECT_EQ(NumericValue("-1e999"), -HUGE_VAL);
  EXPECT_EQ(NumericValue("1e-999"), 0);
}

TEST(NumericValue, IsNothingOrEndlessBeyondWhatDoublesHold) {
  const std::string zeros(400, '0');
  EXPECT_EQ(NumericValue("0." + zeros + "1"), 0);
  EXPECT_EQ(NumericValue("-." + zeros + "1"), 0);
  EXPECT_EQ(NumericValue("1" + zeros), HUGE_VAL);
  EXPECT_EQ(NumericValue("1" + zeros + "e-1"), HUGE_VAL);
  EXPECT_EQ(NumericValue("-1" + zeros + ".5E-1"), -HUGE_VAL);
  EXPECT_EQ(NumericValue("0." + zeros + "1e+1"), 0);
  EXPECT_EQ(NumericValue("1e99999999999999999999"), HUGE_VAL);
  EXPECT_EQ(NumericValue("1e-99999999999999999999"), 0);
  EXPECT_EQ(NumericValue("0." + zeros + "1e401"), 1) << "it is no such number";
}

// --- Paths

TEST(Paths, NeedASeparatorUnlessOneEndsThem) {
  EXPECT_EQ(BackslashIfNeeded("C:\\games"), "\\");
  EXPECT_EQ(BackslashIfNeeded("C:\\games\\"), "");
  EXPECT_EQ(BackslashIfNeeded(""), "\\");
  EXPECT_EQ(BackslashIfNeeded("/games", '/'), "/");
  EXPECT_EQ(BackslashIfNeeded("/games/", '/'), "");
}

TEST(Paths, EndWithAName) {
  EXPECT_EQ(NameOfPath("C:\\games\\User.con"), "User.con");
  EXPECT_EQ(NameOfPath("User.con"), "User.con");
  EXPECT_EQ(NameOfPath("C:\\games\\"), "");
  EXPECT_EQ(NameOfPath("/games/a\\b.con", '/'), "a\\b.con");
}

// --- Wildcards

TEST(LineBreaks, OfEveryKindBecomeCrLf) {
  EXPECT_EQ(WithCrLf("a\nb\rc\r\nd"), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(WithCrLf("\n\r\n\r"), "\r\n\r\n\r\n");
  EXPECT_EQ(WithCrLf("plain"), "plain");
}

TEST(Wildcards, StandForBytes) {
  EXPECT_TRUE(MatchesWildcards("user.con", "*"));
  EXPECT_TRUE(MatchesWildcards("", "*"));
  EXPECT_TRUE(MatchesWildcards("user.con", "*.con"));
  EXPECT_TRUE(MatchesWildcards("a.b.con", "*.con"));
  EXPECT_TRUE(MatchesWildcards("aXbXc", "a*b*c"));
  EXPECT_TRUE(MatchesWildcards("user1.con", "user?.con"));
  EXPECT_TRUE(MatchesWildcards("USER.CON", "u*.con"));
  EXPECT_TRUE(MatchesWildcards("\xC4.con", "\xE4.con"));
}

TEST(Wildcards, DoNotMatchMoreThanThat) {
  EXPECT_FALSE(MatchesWildcards("user.con", "user"));
  EXPECT_FALSE(MatchesWildcards("user", "user?"));
  EXPECT_FALSE(MatchesWildcards("user.con", "*.map"));
  EXPECT_FALSE(MatchesWildcards("user.cons", "*.con"));
  EXPECT_FALSE(MatchesWildcards("a", ""));
  EXPECT_TRUE(MatchesWildcards("", ""));
}

TEST(Wildcards, AreRecognised) {
  EXPECT_TRUE(HasWildcards("*.con"));
  EXPECT_TRUE(HasWildcards("user?.con"));
  EXPECT_FALSE(HasWildcards("user[1].con"));
}

}  // namespace
}  // namespace tessel::test
