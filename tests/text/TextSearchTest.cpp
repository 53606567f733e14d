#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "text/TextSearch.h"

namespace tessel::test {
namespace {

Position Find(std::string_view text, std::string_view wanted, int options = kFindDefault) {
  return FindText(text, wanted, 0, std::ssize(text), options);
}

TEST(FindText, IgnoresCaseUnlessToldToMatchIt) {
  EXPECT_EQ(Find("x Define y", "dEFINE"), 2);
  EXPECT_EQ(Find("x Define y", "dEFINE", kFindMatchCase), kNotFound);
  EXPECT_EQ(Find("define Define", "Define", kFindMatchCase), 7);
  EXPECT_EQ(Find("M\xC4RZ \x9A", "m\xE4rz \x8A"), 0);
  EXPECT_EQ(Find("M\xC4RZ", "M\xE4RZ", kFindMatchCase), kNotFound);
}

TEST(FindText, TellsBytesApartThatDifferByMoreThanCase) {
  EXPECT_EQ(Find("[", "{"), kNotFound);
  EXPECT_EQ(Find("@", "`"), kNotFound);
  EXPECT_EQ(Find("\xD7", "\xF7"), kNotFound);
  EXPECT_EQ(Find("\xDF", "\xFF"), kNotFound);
}

TEST(FindText, FindsWholeWordsOnly) {
  EXPECT_EQ(Find("MAXHEALTH MAX", "max", kFindWholeWord), 10);
  EXPECT_EQ(Find("MAX_ 1MAX \xE4MAX MAX\x80", "MAX", kFindWholeWord), kNotFound);
  EXPECT_EQ(Find("(MAX)", "MAX", kFindWholeWord), 1);
  EXPECT_EQ(Find("MAX", "MAX", kFindWholeWord), 0);
}

TEST(FindText, LetsAnEdgeThatIsNoWordCharacterAlwaysQualify) {
  EXPECT_EQ(Find("a/b", "/", kFindWholeWord), 1);
  EXPECT_EQ(Find("a*/b", "*/", kFindWholeWord), 1);
  EXPECT_EQ(Find("ab cd", " ", kFindWholeWord), 2);
  EXPECT_EQ(Find("xif y", "if ", kFindWholeWord), kNotFound);
  EXPECT_EQ(Find("if y", "if ", kFindWholeWord), 0);
}

TEST(FindText, LooksAtNeighboursOutsideTheRange) {
  const std::string_view text = "aMAXb MAX";
  EXPECT_EQ(FindText(text, "MAX", 1, 4, kFindWholeWord), kNotFound);
  EXPECT_EQ(FindText(text, "MAX", 1, 4, kFindDefault), 1);
}

TEST(FindText, StaysInsideTheRange) {
  EXPECT_EQ(FindText("abab", "ab", 1, 4, kFindDefault), 2);
  EXPECT_EQ(FindText("abab", "ab", 1, 3, kFindDefault), kNotFound);
  EXPECT_EQ(FindText("abab", "ab", 0, 99, kFindDefault), 0);
  EXPECT_EQ(FindText("abab", "ab", 99, 99, kFindDefault), kNotFound);
  EXPECT_EQ(FindText("abab", "ab", 3, 1, kFindDefault), kNotFound);
  EXPECT_EQ(FindText("abab", "ab", 0, -1, kFindDefault), kNotFound);
}

TEST(FindText, FindsNoEmptyTextAndNothingInAnEmptyOne) {
  EXPECT_EQ(Find("abc", ""), kNotFound);
  EXPECT_EQ(Find("", "a"), kNotFound);
  EXPECT_EQ(Find("", ""), kNotFound);
}

TEST(FindText, FindsNulAndBreaks) {
  const std::string text("a\0b\r\nc", 6);
  EXPECT_EQ(Find(text, std::string_view("\0b", 2)), 1);
  EXPECT_EQ(Find(text, "\n"), 4);
  EXPECT_EQ(Find(text, "\r\n"), 3);
}

// --- Against a search that is obviously right

char Lower(char c) {
  // Pairs of letters by the code page's table.
  static const std::string kUpper = "\x8A\x8C\x8E\x9F";
  static const std::string kLower = "\x9A\x9C\x9E\xFF";
  const auto byte = static_cast<unsigned char>(c);
  if ((byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7)) {
    return static_cast<char>(byte + 32);
  }
  const std::size_t odd = kUpper.find(c);
  return odd == kUpper.npos ? c : kLower[odd];
}

bool Word(const std::string& text, Position at) {
  if (at < 0 || at >= std::ssize(text)) return false;
  const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(at)]);
  return std::isalnum(byte) != 0 || byte == '_' || byte >= 0x80;
}

bool MatchesAt(const std::string& text, Position at, const std::string& wanted, int options) {
  const auto piece = text.substr(static_cast<std::size_t>(at), wanted.size());
  const bool equal = std::ranges::equal(piece, wanted, [&](char a, char b) {
    return a == b || ((options & kFindMatchCase) == 0 && Lower(a) == Lower(b));
  });
  const Position end = at + std::ssize(wanted);
  const bool joined =
      (Word(text, at - 1) && Word(text, at)) || (Word(text, end - 1) && Word(text, end));
  return equal && ((options & kFindWholeWord) == 0 || !joined);
}

// All bytes, all options, all ranges; the wanted text stands in the text but for its case.
RC_GTEST_PROP(FindTextProperties, AgreesWithANaiveSearch, (std::string text)) {
  text += *rc::gen::container<std::string>(
      rc::gen::map(rc::gen::inRange(0, 256), [](int c) { return static_cast<char>(c); }));
  const Position size = std::ssize(text);
  const auto place = *rc::gen::inRange<Position>(0, size + 1);
  std::string wanted =
      text.substr(static_cast<std::size_t>(place), *rc::gen::inRange<std::size_t>(0, 5));
  if (*rc::gen::arbitrary<bool>()) std::ranges::transform(wanted, wanted.begin(), Lower);
  const auto start = *rc::gen::inRange<Position>(0, size + 2);
  const auto end = *rc::gen::inRange<Position>(0, size + 2);
  for (const int options : {0, 2, 4, 6}) {
    Position expected = kNotFound;
    for (Position at = start; at + std::ssize(wanted) <= std::min(end, size); ++at) {
      if (wanted.empty() || !MatchesAt(text, at, wanted, options)) continue;
      expected = at;
      break;
    }
    RC_ASSERT(FindText(text, wanted, start, end, options) == expected);
  }
}

}  // namespace
}  // namespace tessel::test
