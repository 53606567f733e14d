#include "check/facts/LineIndex.h"

#include <algorithm>

namespace tessel::check {
namespace {

constexpr Position kBlock = 4096;

bool IsBreakByte(char c) { return c == '\r' || c == '\n'; }

/// Line breaks whose last byte lies in text[from, to).
Position BreaksEndingIn(std::string_view text, Position from, Position to) {
  Position breaks = 0;
  const char* const bytes = text.data();
  const Position inner = std::min(to, std::ssize(text) - 1);
  for (Position i = from; i < inner; ++i) {
    breaks +=
        static_cast<Position>((bytes[i] == '\n') | ((bytes[i] == '\r') & (bytes[i + 1] != '\n')));
  }
  if (inner < to && inner >= from) breaks += static_cast<Position>(IsBreakByte(bytes[inner]));
  return breaks;
}

}  // namespace

LineIndex::LineIndex(std::string_view text) : text_(text) {
  const Position length = std::ssize(text);
  breaksBefore_.reserve(static_cast<std::size_t>(length / kBlock) + 1);
  Position breaks = 0;
  for (Position at = 0; at <= length; at += kBlock) {
    breaksBefore_.push_back(breaks);
    breaks += BreaksEndingIn(text, at, std::min(at + kBlock, length));
  }
}

language::LineColumn LineIndex::PlaceOf(Position offset) const {
  const Position block = offset / kBlock;
  const Position breaks = breaksBefore_[static_cast<std::size_t>(block)] +
                          BreaksEndingIn(text_, block * kBlock, offset);
  Position lineStart = offset;
  if (offset > 0 && offset < std::ssize(text_) && text_[offset - 1] == '\r' &&
      text_[offset] == '\n') {
    --lineStart;  // the break belongs to the line that it ends
  }
  while (lineStart > 0 && !IsBreakByte(text_[lineStart - 1])) --lineStart;
  return {.line = breaks + 1, .column = offset - lineStart + 1};
}

language::Range LineAround(std::string_view text, Position offset) {
  Position begin = offset;
  while (begin > 0 && !IsBreakByte(text[begin - 1])) --begin;
  Position end = offset;
  while (end < std::ssize(text) && !IsBreakByte(text[end])) ++end;
  return {begin, end};
}

Position NextLine(std::string_view text, Position offset) {
  const Position end = LineAround(text, offset).end;
  if (end == std::ssize(text)) return end;
  const bool two = text[end] == '\r' && end + 1 < std::ssize(text) && text[end + 1] == '\n';
  return end + (two ? 2 : 1);
}

}  // namespace tessel::check
