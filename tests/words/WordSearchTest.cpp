// The incremental search alone: cases by name, and any typing against a plain model of the rule.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "words/WordSearch.h"

namespace tessel {
namespace {

using Words = std::vector<std::string>;

/// Searches texts one after another; gives the index that each of them selects.
std::vector<int> Typed(const Words& words, const std::vector<std::string>& texts) {
  WordSearch search;
  std::vector<int> selected;
  for (const std::string& text : texts) {
    if (text.empty()) {
      search.Reset();
    } else {
      selected.push_back(search.Search(text, words));
    }
  }
  return selected;
}

using Indexes = std::vector<int>;

TEST(WordSearch, SelectsTheFirstWordWithTheBeginningInAnyCase) {
  const Words words = {"ifcount", "Move", "movie", "money"};
  EXPECT_EQ(Typed(words, {"M"}), Indexes{1});
  EXPECT_EQ(Typed(words, {"m", "mo", "mov", "movi"}), (Indexes{1, 1, 1, 2}));
  EXPECT_EQ(Typed(words, {"MON"}), Indexes{3});
}

TEST(WordSearch, PrefersAnEqualWordToAnEarlierOneWithTheSameBeginning) {
  const Words words = {"moveto", "mov", "move", "MOVE"};
  EXPECT_EQ(Typed(words, {"Move"}), Indexes{2});
  EXPECT_EQ(Typed(words, {"mov"}), Indexes{1});
}

TEST(WordSearch, StaysWithTheLongestSharedBeginningWhenNoWordGoesOn) {
  const Words words = {"ifcount", "move", "movie"};
  EXPECT_EQ(Typed(words, {"movix"}), Indexes{2});
  EXPECT_EQ(Typed(words, {"movi", "movix", "movixx"}), (Indexes{2, 2, 2}));
}

TEST(WordSearch, MakesNoSearchForALongerTextOnceABeginningWasMissed) {
  const Words words = {"aa", "bb"};
  // "bx" found only "b". The text that follows is longer, so its own beginning is not looked at.
  EXPECT_EQ(Typed(words, {"bx", "aay"}), (Indexes{1, 1}));
  EXPECT_EQ(Typed(words, {"bx", "ay"}), (Indexes{1, 0}));
}

TEST(WordSearch, FindsAnEqualWordAlsoWhereNoPrefixSearchIsMade) {
  const Words words = {"aaa", "bb"};
  EXPECT_EQ(Typed(words, {"bx", "aaa"}), (Indexes{1, 0}));
}

TEST(WordSearch, CountsAnEqualWordAsAFoundBeginning) {
  const Words words = {"aaa", "bb", "aaac"};
  EXPECT_EQ(Typed(words, {"bx", "aaa", "aaac"}), (Indexes{1, 0, 2}));
  EXPECT_EQ(Typed(words, {"bx", "aaa", "bbbb"}), (Indexes{1, 0, 1}));
}

TEST(WordSearch, StartsFromTheTopForAShorterText) {
  const Words words = {"aa", "bb"};
  EXPECT_EQ(Typed(words, {"bb", "z"}), (Indexes{1, 0}));
  EXPECT_EQ(Typed(words, {"bxx", "bx", "a"}), (Indexes{1, 1, 0}));
}

TEST(WordSearch, KeepsTheLastMatchForAnotherTextOfTheSameLengthThatNothingBeginsLike) {
  const Words words = {"aa", "bb"};
  EXPECT_EQ(Typed(words, {"bb", "zz"}), (Indexes{1, 1}));
}

TEST(WordSearch, StartsOverAfterAnEmptyText) {
  const Words words = {"aa", "bb"};
  EXPECT_EQ(Typed(words, {"bb", "", "zz"}), (Indexes{1, 0}));
}

TEST(WordSearch, StartsAsIfABeginningHadBeenFound) {
  EXPECT_TRUE(WordSearch().LastPrefixMatched);
  EXPECT_EQ(WordSearch().LastMatchIndex, 0);
  EXPECT_EQ(WordSearch().LastSearchText, "");
}

TEST(WordSearch, DoesNotTakeAShortWordForABeginningOfItsOwnLength) {
  EXPECT_EQ(Typed({"a", "abx"}, {"abc"}), Indexes{1});
}

TEST(WordSearch, AnswersAtOnceForATextOfAMegabyte) {
  const Words words(1000, "abcdefgh");
  EXPECT_EQ(Typed(words, {std::string(1 << 20, 'z')}), Indexes{0});
}

// --- The rule once more, step by step and without any short cut.

bool SameInAnyCase(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(a[i]) != std::tolower(b[i])) return false;
  }
  return true;
}

struct Model {
  std::string lastText;
  int lastIndex = 0;
  bool lastPrefixMatched = true;

  void Change(const std::string& text, const Words& words) {
    if (text.empty()) {
      lastIndex = 0;
      lastText = "";
      return;
    }
    const bool fresh = lastText.empty();
    if (fresh || text.size() < lastText.size()) lastIndex = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (SameInAnyCase(words[i], text)) {
        lastIndex = static_cast<int>(i);
        lastPrefixMatched = true;
        lastText = text;
        return;
      }
    }
    const bool grown = !fresh && text.size() > lastText.size();
    if (!(grown && !lastPrefixMatched)) {
      for (std::size_t k = 1; k <= text.size(); ++k) {
        lastPrefixMatched = false;
        for (std::size_t i = 0; i < words.size() && !lastPrefixMatched; ++i) {
          if (words[i].size() >= k && SameInAnyCase(words[i].substr(0, k), text.substr(0, k))) {
            lastIndex = static_cast<int>(i);
            lastPrefixMatched = true;
          }
        }
      }
    }
    lastText = text;
  }
};

rc::Gen<std::string> ShortText() {
  return rc::gen::resize(
      6, rc::gen::container<std::string>(rc::gen::element('a', 'A', 'b', 'B', 'c', '_')));
}

RC_GTEST_PROP(WordSearch, AgreesWithThePlainModelWhateverIsTyped, ()) {
  const Words words = *rc::gen::container<Words>(ShortText());
  const Words texts = *rc::gen::container<Words>(ShortText());
  WordSearch search;
  Model model;
  for (const std::string& text : texts) {
    model.Change(text, words);
    if (text.empty()) {
      search.Reset();
    } else {
      RC_ASSERT(search.Search(text, words) == model.lastIndex);
    }
    RC_ASSERT(search.LastMatchIndex == model.lastIndex);
    RC_ASSERT(search.LastPrefixMatched == model.lastPrefixMatched);
    RC_ASSERT(search.LastSearchText == model.lastText);
  }
}

RC_GTEST_PROP(WordSearch, SelectsAnEqualWordOrALongestBeginningOfAFreshText, ()) {
  const Words words = *rc::gen::nonEmpty(rc::gen::container<Words>(ShortText()));
  const std::string text = *rc::gen::nonEmpty(ShortText());
  const auto shared = [&](const std::string& word) {
    std::size_t n = 0;
    while (n < word.size() && n < text.size() && std::tolower(word[n]) == std::tolower(text[n]))
      ++n;
    return SameInAnyCase(word, text) ? text.size() + 1 : n;
  };
  WordSearch search;
  const int selected = search.Search(text, words);
  for (int i = 0; i < std::ssize(words); ++i) {
    RC_ASSERT(shared(words[i]) <= shared(words[selected]));
    if (i < selected) RC_ASSERT(shared(words[i]) < shared(words[selected]));
  }
}

}  // namespace
}  // namespace tessel
