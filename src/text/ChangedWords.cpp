#include "text/ChangedWords.h"

#include <algorithm>

#include "text/LineEdits.h"
#include "text/Text.h"

namespace tessel {
namespace {

using Words = std::vector<std::string_view>;

// So that a line takes a millisecond at most.
constexpr std::size_t kLongestRead = 4096;
constexpr std::size_t kMostWords = 300;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsOfWord(char c) { return IsWordByte(static_cast<unsigned char>(c)); }

std::size_t LengthOfFirst(std::string_view line) {
  const auto runOf = [line](bool (*belongs)(char)) {
    return static_cast<std::size_t>(std::ranges::find_if_not(line, belongs) - line.begin());
  };
  return std::max({runOf(IsBlank), runOf(IsOfWord), std::size_t{1}});
}

Words WordsOf(std::string_view line) {
  Words words;
  words.reserve(line.size() / 4 + 1);
  while (!line.empty()) {
    const std::size_t length = LengthOfFirst(line);
    words.push_back(line.substr(0, length));
    line.remove_prefix(length);
  }
  return words;
}

/// Of `count` words from the one with the number `first` on.
void AddStretch(std::vector<LineStretch>& stretches, std::string_view line, const Words& words,
                std::size_t first, std::size_t count) {
  if (count == 0) return;
  const char* begin = words[first].data();
  const std::string_view last = words[first + count - 1];
  stretches.push_back({begin - line.data(), last.data() + last.size() - begin});
}

std::size_t CommonStart(std::string_view a, std::string_view b) {
  return static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
}

std::size_t CommonEnd(std::string_view a, std::string_view b) {
  const auto same = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
  return static_cast<std::size_t>(same.first - a.rbegin());
}

/// As one stretch of each.
ChangedWords AllThatDiffers(std::string_view before, std::string_view after) {
  const std::size_t start = CommonStart(before, after);
  const std::size_t end = CommonEnd(before.substr(start), after.substr(start));
  const auto between = [&](std::string_view line) -> std::vector<LineStretch> {
    const auto length = static_cast<Position>(line.size() - start - end);
    if (length == 0) return {};
    return {{static_cast<Position>(start), length}};
  };
  return {between(before), between(after)};
}

}  // namespace

ChangedWords ChangedWordsBetween(std::string_view before, std::string_view after) {
  if (std::max(before.size(), after.size()) > kLongestRead) return AllThatDiffers(before, after);
  const Words oldWords = WordsOf(before);
  const Words newWords = WordsOf(after);
  if (std::max(oldWords.size(), newWords.size()) > kMostWords) return AllThatDiffers(before, after);
  ChangedWords changed;
  for (const LineEdit& edit : LineEditsBetween(oldWords, newWords).edits) {
    AddStretch(changed.before, before, oldWords, edit.before, edit.removed);
    AddStretch(changed.after, after, newWords, edit.after, edit.added);
  }
  return changed;
}

bool LooksChangedFrom(std::string_view before, std::string_view after) {
  const std::string a = ToLowerText(before.substr(0, kLongestRead));
  const std::string b = ToLowerText(after.substr(0, kLongestRead));
  const std::size_t start = CommonStart(a, b);
  const std::size_t end =
      CommonEnd(std::string_view(a).substr(start), std::string_view(b).substr(start));
  return 3 * (start + end) >= std::max(a.size(), b.size());
}

}  // namespace tessel
