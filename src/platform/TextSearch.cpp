#include "platform/TextSearch.h"

#include <algorithm>
#include <cstring>

#include "platform/Text.h"

namespace tessel {
namespace {

bool EqualFolded(const char* text, std::string_view wanted) {
  const auto& lower = LowerTable();
  return std::equal(wanted.begin(), wanted.end(), text, [&](char a, char b) {
    return lower[static_cast<unsigned char>(a)] == lower[static_cast<unsigned char>(b)];
  });
}

bool IsWordAt(std::string_view text, Position at) {
  return at >= 0 && at < std::ssize(text) && IsWordByte(static_cast<unsigned char>(text[at]));
}

bool StandsAlone(std::string_view text, Position at, Position length) {
  const bool joinsBefore = IsWordAt(text, at) && IsWordAt(text, at - 1);
  const bool joinsBehind = IsWordAt(text, at + length - 1) && IsWordAt(text, at + length);
  return !joinsBefore && !joinsBehind;
}

/// The next place in [from, last] where either of the two bytes stands, or `last` + 1.
class FirstByteScan {
 public:
  FirstByteScan(const char* text, unsigned char a, unsigned char b, Position last)
      : text_(text), last_(last), bytes_{a, b} {}

  Position Next(Position from) {
    return bytes_[0] == bytes_[1] ? NextOf(0, from) : std::min(NextOf(0, from), NextOf(1, from));
  }

 private:
  // Each byte's next place is remembered, so that a byte that is rare is not sought again and
  // again.
  Position NextOf(int which, Position from) {
    Position& next = next_[which];
    if (next < from) {
      const void* found = from > last_ ? nullptr
                                       : std::memchr(text_ + from, bytes_[which],
                                                     static_cast<std::size_t>(last_ - from + 1));
      next = found == nullptr ? last_ + 1 : static_cast<const char*>(found) - text_;
    }
    return next;
  }

  const char* text_;
  Position last_;
  unsigned char bytes_[2];
  Position next_[2] = {-1, -1};
};

}  // namespace

Position FindText(std::string_view text, std::string_view wanted, Position start, Position end,
                  int options) {
  end = std::min(end, std::ssize(text));
  const Position length = std::ssize(wanted);
  const Position last = end - length;
  if (length == 0 || start < 0 || start > last) return kNotFound;

  const bool matchCase = (options & kFindMatchCase) != 0;
  const bool wholeWord = (options & kFindWholeWord) != 0;
  const auto first = static_cast<unsigned char>(wanted.front());
  FirstByteScan scan(text.data(), matchCase ? first : ToLowerByte(first),
                     matchCase ? first : ToUpperByte(first), last);
  for (Position at = scan.Next(start); at <= last; at = scan.Next(at + 1)) {
    const bool equal =
        matchCase ? text.compare(at, length, wanted) == 0 : EqualFolded(text.data() + at, wanted);
    if (equal && (!wholeWord || StandsAlone(text, at, length))) return at;
  }
  return kNotFound;
}

}  // namespace tessel
