#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "text/LineEdits.h"

namespace tessel {
namespace {

std::vector<std::string_view> Applied(const std::vector<std::string_view>& before,
                                      const std::vector<std::string_view>& after,
                                      const std::vector<LineEdit>& edits) {
  std::vector<std::string_view> result;
  std::size_t at = 0;
  for (const LineEdit& edit : edits) {
    for (; at < edit.before; ++at) result.push_back(before[at]);
    for (std::size_t i = 0; i < edit.added; ++i) result.push_back(after[edit.after + i]);
    at += edit.removed;
  }
  for (; at < before.size(); ++at) result.push_back(before[at]);
  return result;
}

/// The length of the longest common subsequence, by the table that everybody knows.
std::size_t CommonLines(const std::vector<std::string_view>& a,
                        const std::vector<std::string_view>& b) {
  std::vector<std::vector<std::size_t>> most(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 1; i <= a.size(); ++i) {
    for (std::size_t j = 1; j <= b.size(); ++j) {
      most[i][j] =
          a[i - 1] == b[j - 1] ? most[i - 1][j - 1] + 1 : std::max(most[i - 1][j], most[i][j - 1]);
    }
  }
  return most[a.size()][b.size()];
}

RC_GTEST_PROP(LineEdits, LeadFromOneTextToTheOtherWithTheFewestLines, ()) {
  const auto text = rc::gen::container<std::string>(rc::gen::element('a', 'b', '\n'));
  const std::string one = *text;
  const std::string other = *text;
  const auto before = LinesOf(one);
  const auto after = LinesOf(other);
  const auto edits = LineEditsBetween(before, after).edits;
  RC_ASSERT(Applied(before, after, edits) == after);
  std::size_t removed = 0;
  for (const LineEdit& edit : edits) removed += edit.removed;
  RC_ASSERT(removed == before.size() - CommonLines(before, after));
}

TEST(LineEdits, WithoutALineBetweenThemAreOne) {
  const auto edits =
      LineEditsBetween({"same", "a", "b", "end"}, {"same", "c", "d", "e", "end"}).edits;
  ASSERT_EQ(edits.size(), 1U);
  EXPECT_EQ(edits[0].before, 1U);
  EXPECT_EQ(edits[0].removed, 2U);
  EXPECT_EQ(edits[0].after, 1U);
  EXPECT_EQ(edits[0].added, 3U);
}

/// So many changed lines, with one that stays behind each.
std::string Text(int lines, const std::string& word) {
  std::string text = "first\n";
  for (int i = 0; i < lines; ++i) text += word + std::to_string(i) + "\nsame\n";
  return text;
}

TEST(LineEdits, BetweenTextsThatDifferEverywhereAreOne) {
  const std::string before = Text(3000, "a");
  const std::string after = Text(3001, "b");
  const auto [edits, fewest] = LineEditsBetween(LinesOf(before), LinesOf(after));
  EXPECT_FALSE(fewest);
  ASSERT_EQ(edits.size(), 1U);
  EXPECT_EQ(edits[0].before, 1U);
  EXPECT_EQ(edits[0].removed, 5999U);
  EXPECT_EQ(edits[0].added, 6001U);
}

TEST(LineEdits, BetweenTextsOfAsManyLinesAreFoundLineByLineWhereThereAreVeryMany) {
  const std::string before = Text(3000, "a");
  const std::string after = Text(3000, "b");
  const auto [edits, fewest] = LineEditsBetween(LinesOf(before), LinesOf(after));
  EXPECT_FALSE(fewest);
  ASSERT_EQ(edits.size(), 3000U);
  EXPECT_EQ(edits[1].before, 3U);
  EXPECT_EQ(edits[1].removed, 1U);
  EXPECT_EQ(Applied(LinesOf(before), LinesOf(after), edits), LinesOf(after));
}

}  // namespace
}  // namespace tessel
