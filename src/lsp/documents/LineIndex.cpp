#include "lsp/documents/LineIndex.h"

#include <algorithm>

namespace tessel::lsp {
namespace {

/// Adds where lines begin behind the breaks that begin in [from, to).
void AddBegins(std::string_view text, Position from, Position to, std::vector<Position>& begins) {
  for (auto i = static_cast<std::size_t>(from); i < static_cast<std::size_t>(to); ++i) {
    if (text[i] > '\r' || (text[i] != '\r' && text[i] != '\n')) continue;
    if (text.substr(i, 2) == "\r\n") ++i;
    begins.push_back(static_cast<Position>(i + 1));
  }
}

}  // namespace

LineIndex::LineIndex(std::string_view text) : begins_{0} {
  begins_.reserve(text.size() / 32);
  AddBegins(text, 0, std::ssize(text), begins_);
}

void LineIndex::Update(std::string_view after, Position at, Position removed, Position inserted) {
  const Position grown = inserted - removed;
  // A CR in front of the edit may become, or cease to be, half of a CR LF.
  const std::size_t first = LineOf(std::max<Position>(at - 1, 0));
  const auto behind = std::ranges::upper_bound(begins_, at + removed);
  for (auto begin = behind; begin != begins_.end(); ++begin) *begin += grown;
  std::vector<Position> fresh;
  AddBegins(after, begins_[first], behind == begins_.end() ? std::ssize(after) : *behind - 1,
            fresh);
  const auto from = begins_.begin() + static_cast<std::ptrdiff_t>(first) + 1;
  // The break in front of the first line behind is read again as well, or half of it.
  while (behind != begins_.end() && !fresh.empty() && fresh.back() >= *behind) fresh.pop_back();
  const auto gap = begins_.erase(from, behind);
  begins_.insert(gap, fresh.begin(), fresh.end());
}

std::size_t LineIndex::LineOf(Position offset) const {
  return static_cast<std::size_t>(std::ranges::upper_bound(begins_, offset) - begins_.begin()) - 1;
}

std::size_t LineIndex::LineNear(std::size_t line, Position offset) const {
  for (const std::size_t each : {line, line + 1}) {
    if (each >= begins_.size() || begins_[each] > offset) break;
    if (each + 1 == begins_.size() || offset < begins_[each + 1]) return each;
  }
  return LineOf(offset);
}

language::Range LineIndex::LineIn(std::string_view text, std::size_t line) const {
  const Position begin = begins_[line];
  if (line + 1 == begins_.size()) return {begin, std::ssize(text)};
  Position end = begins_[line + 1] - 1;
  if (end > begin && text[static_cast<std::size_t>(end)] == '\n' &&
      text[static_cast<std::size_t>(end) - 1] == '\r') {
    --end;
  }
  return {begin, end};
}

}  // namespace tessel::lsp
