#include "host/edit/CommentLines.h"

#include <algorithm>

namespace tessel {
namespace {

constexpr std::string_view kBreaks = "\r\n";
constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kMark = "//";

/// Calls `take` with each line and its break.
template <class Take>
void ForEachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    std::size_t end = std::min(text.find_first_of(kBreaks), text.size());
    const std::string_view line = text.substr(0, end);
    end += text.substr(end).starts_with("\r\n") ? 2 : end < text.size() ? 1 : 0;
    take(line, text.substr(line.size(), end - line.size()));
    text.remove_prefix(end);
  }
}

std::size_t FirstInk(std::string_view line) {
  return std::min(line.find_first_not_of(kBlanks), line.size());
}

bool HasMark(std::string_view line) { return line.substr(FirstInk(line)).starts_with(kMark); }
bool IsBlank(std::string_view line) { return FirstInk(line) == line.size(); }

std::string Marked(std::string_view line) {
  const std::size_t ink = FirstInk(line);
  return std::string(line.substr(0, ink)).append(kMark).append(" ").append(line.substr(ink));
}

std::string Unmarked(std::string_view line) {
  const std::size_t ink = FirstInk(line);
  std::string_view rest = line.substr(ink + kMark.size());
  if (rest.starts_with(' ')) rest.remove_prefix(1);
  return std::string(line.substr(0, ink)).append(rest);
}

}  // namespace

LinesReplaced ToggleComments(std::string_view text, Position start, Position length) {
  const std::size_t before = start > 0 ? text.find_last_of(kBreaks, start - 1) : text.npos;
  const std::size_t first = before == text.npos ? 0 : before + 1;
  std::size_t last = static_cast<std::size_t>(start + length);
  const bool endsAtLineStart = length > 0 && kBreaks.find(text[last - 1]) != kBreaks.npos;
  if (endsAtLineStart) {
    --last;
    if (last > first && text[last] == '\n' && text[last - 1] == '\r') --last;
  }
  const std::size_t end = std::min(text.find_first_of(kBreaks, last), text.size());
  const std::string_view lines = text.substr(first, end - first);

  bool allMarked = true;
  ForEachLine(lines, [&](std::string_view line, std::string_view) {
    allMarked = allMarked && (IsBlank(line) || HasMark(line));
  });
  LinesReplaced result{static_cast<Position>(first), std::ssize(lines), {}};
  ForEachLine(lines, [&](std::string_view line, std::string_view lineBreak) {
    result.text += IsBlank(line) ? std::string(line) : allMarked ? Unmarked(line) : Marked(line);
    result.text += lineBreak;
  });
  return result;
}

}  // namespace tessel
