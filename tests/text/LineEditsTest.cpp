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
  const auto edits = LineEditsBetween(before, after);
  RC_ASSERT(Applied(before, after, edits) == after);
  std::size_t removed = 0;
  for (const LineEdit& edit : edits) removed += edit.removed;
  RC_ASSERT(removed == before.size() - CommonLines(before, after));
}

TEST(LineEdits, WithoutALineBetweenThemAreOne) {
  const auto edits = LineEditsBetween({"same", "a", "b", "end"}, {"same", "c", "d", "e", "end"});
  ASSERT_EQ(edits.size(), 1U);
  EXPECT_EQ(edits[0].before, 1U);
  EXPECT_EQ(edits[0].removed, 2U);
  EXPECT_EQ(edits[0].after, 1U);
  EXPECT_EQ(edits[0].added, 3U);
}

TEST(LineEdits, BetweenTextsThatDifferEverywhereAreOne) {
  std::string before = "first\n";
  std::string after = "first\n";
  for (int i = 0; i < 3000; ++i) {
    before += "a" + std::to_string(i) + "\nsame\n";
    after += "b" + std::to_string(i) + "\nsame\n";
  }
  const auto edits = LineEditsBetween(LinesOf(before), LinesOf(after));
  ASSERT_EQ(edits.size(), 1U);
  EXPECT_EQ(edits[0].before, 1U);
  EXPECT_EQ(edits[0].removed, 5999U);
}

}  // namespace
}  // namespace tessel
