#include "cli/report/Suggestion.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "text/Text.h"

namespace tessel::cli {
namespace {

constexpr std::size_t kMostSuggestions = 3;
// Behind those a letter away, before those two away.
constexpr std::size_t kCostOfABeginning = 1;

/// How many letters have to be changed, added, left out, or exchanged with their neighbour.
std::size_t LettersApart(std::string_view a, std::string_view b) {
  std::vector<std::size_t> beforeLast(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    beforeLast = std::exchange(last, std::exchange(row, beforeLast));
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t change = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({change, last[j] + 1, row[j - 1] + 1});
      const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (exchanged) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
  }
  return row[b.size()];
}

std::size_t CostOf(std::string_view word, std::string_view candidate) {
  const std::string_view tail = candidate.substr(candidate.rfind('/') + 1);
  const std::size_t apart = std::min(LettersApart(word, candidate), LettersApart(word, tail));
  const bool begins = word.size() >= 3 && (candidate.starts_with(word) || tail.starts_with(word));
  return begins ? std::min(apart, kCostOfABeginning) : apart;
}

}  // namespace

std::vector<std::string> Suggestions(std::string_view word,
                                     const std::vector<std::string>& candidates) {
  // Nobody types that much by mistake, and the work grows with the length.
  if (word.size() > 200) return {};
  const std::string typed = AsciiLower(word);
  const std::size_t most = std::max<std::size_t>(1, typed.size() / 4);
  std::vector<std::pair<std::size_t, std::string>> found;
  for (const std::string& candidate : candidates) {
    const std::size_t cost = CostOf(typed, AsciiLower(candidate));
    if (cost <= most) found.emplace_back(cost, candidate);
  }
  std::ranges::stable_sort(found, {}, &std::pair<std::size_t, std::string>::first);
  std::vector<std::string> names;
  for (auto& [cost, name] : found) {
    if (names.size() < kMostSuggestions) names.push_back(std::move(name));
  }
  return names;
}

std::string DidYouMean(std::string_view word, const std::vector<std::string>& candidates) {
  const std::vector<std::string> names = Suggestions(word, candidates);
  if (names.empty()) return {};
  std::string text = "Did you mean ";
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " or " : ", ";
    text += '"' + names[i] + '"';
  }
  return text + "?";
}

}  // namespace tessel::cli
