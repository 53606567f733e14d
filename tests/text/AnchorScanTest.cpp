#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "text/AnchorScan.h"
#include "text/Text.h"
#include "text/TextSearch.h"

namespace tessel {
namespace {

Position Scan(const ScanVariant& variant, const std::string& text, const std::string& wanted,
              Position from, bool matchCase) {
  const Position last = std::ssize(text) - std::ssize(wanted);
  return variant.scan(text.data(), from, last, Anchors(wanted, matchCase));
}

TEST(AnchorScan, HasThePlainVariantOnEveryMachine) {
  ASSERT_FALSE(ScanVariants().empty());
  EXPECT_STREQ(ScanVariants().front().name, "plain");
}

// Blocks are 16 or 32 bytes long and taken four at a time: every place of a hit in texts of every
// length around those.
TEST(AnchorScan, FindsAHitAtEveryPlaceOfATextOfEveryLength) {
  const std::string wanted = "Qsize";
  for (const ScanVariant& variant : ScanVariants()) {
    for (Position length = 5; length < 300; ++length) {
      std::string text(static_cast<std::size_t>(length), ' ');
      for (Position place = 0; place + 5 <= length; place += 1 + length / 40) {
        text.replace(static_cast<std::size_t>(place), 5, "qSIZE");
        ASSERT_EQ(Scan(variant, text, wanted, 0, false), place) << variant.name << " " << length;
        ASSERT_EQ(Scan(variant, text, wanted, place, false), place) << variant.name;
        ASSERT_EQ(Scan(variant, text, wanted, place + 1, false), length - 5 + 1) << variant.name;
        ASSERT_EQ(Scan(variant, text, wanted, 0, true), length - 5 + 1) << variant.name;
        text.replace(static_cast<std::size_t>(place), 5, "     ");
      }
    }
  }
}

TEST(AnchorScan, ReadsNothingBeyondTheLastPlaceOfAMatch) {
  const std::string text = std::string(100, ' ') + "xq";
  for (const ScanVariant& variant : ScanVariants()) {
    for (Position last = 0; last < 100; ++last) {
      const std::string exact = text.substr(0, static_cast<std::size_t>(last) + 2);
      EXPECT_EQ(variant.scan(exact.data(), 0, last, Anchors("xq", true)), last + 1);
    }
  }
}

std::string TextOf(const std::string& alphabet, const std::vector<unsigned char>& letters) {
  std::string text;
  for (const unsigned char letter : letters) text += alphabet[letter % alphabet.size()];
  return text;
}

// Few letters, so that there are many near hits; letters of both cases, and the odd pairs.
const std::string kAlphabet = "aAbB /_\x8a\x9a\x9f\xff\xe4\xc4\xdf";

RC_GTEST_PROP(AnchorScan, VariantsAreTwins,
              (const std::vector<unsigned char>& letters,
               const std::vector<unsigned char>& wantedLetters)) {
  std::string text;
  const auto repeats = *rc::gen::inRange(1, 8);
  for (int i = 0; i < repeats; ++i) text += TextOf(kAlphabet, letters);
  const std::string wanted = TextOf(kAlphabet, wantedLetters).substr(0, 4);
  RC_PRE(!wanted.empty() && wanted.size() <= text.size());
  const auto from = *rc::gen::inRange<Position>(0, std::ssize(text) - std::ssize(wanted) + 1);
  const auto matchCase = *rc::gen::arbitrary<bool>();
  const Position plain = Scan(ScanVariants().front(), text, wanted, from, matchCase);
  for (const ScanVariant& variant : ScanVariants()) {
    RC_ASSERT(Scan(variant, text, wanted, from, matchCase) == plain);
  }
}

RC_GTEST_PROP(AnchorScan, NeverPassesOverAMatch, (const std::vector<unsigned char>& letters)) {
  const std::string text = TextOf(kAlphabet, letters);
  RC_PRE(!text.empty());
  const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
  const auto length = *rc::gen::inRange<std::size_t>(1, text.size() - at + 1);
  const std::string wanted = ToUpperText(text.substr(at, length));
  for (const ScanVariant& variant : ScanVariants()) {
    RC_ASSERT(Scan(variant, text, wanted, 0, false) <= static_cast<Position>(at));
  }
}

Position NaiveFind(const std::string& text, const std::string& wanted, int options) {
  const auto folded = [&](const std::string& s) {
    return (options & kFindMatchCase) != 0 ? s : ToLowerText(s);
  };
  const auto word = [&](std::size_t i) {
    return i < text.size() && IsWordByte(static_cast<unsigned char>(text[i]));
  };
  for (std::size_t at = 0; at + wanted.size() <= text.size(); ++at) {
    if (folded(text.substr(at, wanted.size())) != folded(wanted)) continue;
    const std::size_t end = at + wanted.size();
    const bool joins = (at > 0 && word(at - 1) && word(at)) || (word(end - 1) && word(end));
    if ((options & kFindWholeWord) == 0 || !joins) return static_cast<Position>(at);
  }
  return kNotFound;
}

RC_GTEST_PROP(TextSearch, AgreesWithASearchPlaceByPlace,
              (const std::vector<unsigned char>& letters,
               const std::vector<unsigned char>& wantedLetters)) {
  const std::string text = TextOf(kAlphabet, letters);
  const std::string wanted = TextOf(kAlphabet, wantedLetters).substr(0, 3);
  RC_PRE(!wanted.empty());
  const int options = *rc::gen::element(0, 2, 4, 6);
  RC_ASSERT(FindText(text, wanted, 0, std::ssize(text), options) ==
            NaiveFind(text, wanted, options));
}

}  // namespace
}  // namespace tessel
