#include "qt/editor/LongLines.h"

#include <algorithm>

namespace tessel {
namespace {

constexpr std::size_t kLongestPiece = 24;

bool IsBreak(char c) { return c == '\r' || c == '\n'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// Calls use(start, end) for each line, without its break.
template <class Use>
void ForEachLine(std::string_view text, const Use& use) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsBreak(text[i])) continue;
    use(start, i);
    start = i + 1;
  }
  use(start, text.size());
}

void PartLine(std::string_view line, const std::array<char, 256>& twins, char* styles) {
  bool second = false;
  std::size_t start = 0;
  for (std::size_t i = 1; i < line.size(); ++i) {
    const bool startsWord = IsBlank(line[i - 1]) && !IsBlank(line[i]);
    if (startsWord || i - start == kLongestPiece) {
      second = !second;
      start = i;
    }
    if (second) styles[i] = twins[static_cast<unsigned char>(styles[i])];
  }
}

}  // namespace

bool HasLongLine(std::string_view text, Position length) {
  const auto wanted = static_cast<std::size_t>(length);
  // Backwards from where a line of that length would end, the first break is where the next begins.
  for (std::size_t begin = 0; begin + wanted <= text.size();) {
    const auto last = text.rend() - static_cast<Position>(begin + wanted);
    const auto first = text.rend() - static_cast<Position>(begin);
    const auto lastBreak = std::find_if(last, first, IsBreak);
    if (lastBreak == first) return true;
    begin = static_cast<std::size_t>(text.rend() - lastBreak);
  }
  return false;
}

Position LongestLine(std::string_view text) {
  std::size_t longest = 0;
  ForEachLine(
      text, [&](std::size_t start, std::size_t end) { longest = std::max(longest, end - start); });
  return static_cast<Position>(longest);
}

void PartLongLines(std::string_view text, const std::array<char, 256>& twins, std::string& styles) {
  ForEachLine(text, [&](std::size_t start, std::size_t end) {
    if (static_cast<Position>(end - start) < kLongLine) return;
    PartLine(text.substr(start, end - start), twins, styles.data() + start);
  });
}

void HideLongTails(std::string_view text, Position before, Position shown, char hidden,
                   std::string& styles) {
  ForEachLine(text, [&](std::size_t start, std::size_t end) {
    const Position left = std::max<Position>(start == 0 ? shown - before : shown, 0);
    const std::size_t tail = start + static_cast<std::size_t>(left);
    if (tail < end) std::fill(styles.data() + tail, styles.data() + end, hidden);
  });
}

}  // namespace tessel
