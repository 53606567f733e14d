#include "text/TextSearch.h"

#include <algorithm>
#include <array>

#include "text/Text.h"

namespace tessel {
namespace {

std::array<bool, 256> MakeWordBytes() {
  std::array<bool, 256> table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    table[byte] = IsWordByte(static_cast<unsigned char>(byte));
  }
  return table;
}

const std::array<bool, 256> kWordBytes = MakeWordBytes();

bool IsWordChar(char c) { return kWordBytes[static_cast<unsigned char>(c)]; }

}  // namespace

TextPattern::TextPattern(std::string_view wanted, int options)
    : wanted_((options & kFindMatchCase) != 0 ? std::string(wanted) : ToLowerText(wanted)),
      anchors_(wanted, (options & kFindMatchCase) != 0),
      scan_(FastestScan()),
      matchCase_((options & kFindMatchCase) != 0),
      aloneBefore_((options & kFindWholeWord) != 0 && !wanted.empty() &&
                   IsWordChar(wanted.front())),
      aloneBehind_((options & kFindWholeWord) != 0 && !wanted.empty() &&
                   IsWordChar(wanted.back())) {}

bool TextPattern::MatchesAt(std::string_view text, Position at) const {
  // The neighbours first: they rule out most words that merely begin like the wanted one.
  const Position behind = at + Length();
  if (aloneBehind_ && behind < std::ssize(text) && IsWordChar(text[behind])) return false;
  if (aloneBefore_ && at > 0 && IsWordChar(text[at - 1])) return false;
  const std::string_view found = text.substr(at, wanted_.size());
  if (matchCase_) return found == wanted_;
  const auto& lower = LowerTable();
  return std::ranges::equal(found, wanted_, [&](char c, char wanted) {
    return lower[static_cast<unsigned char>(c)] == static_cast<unsigned char>(wanted);
  });
}

Position TextPattern::FindIn(std::string_view text, Position start, Position end) const {
  const Position last = std::min(end, std::ssize(text)) - Length();
  if (Length() == 0 || start < 0) return kNotFound;
  for (Position at = start; at <= last; ++at) {
    at = scan_(text.data(), at, last, anchors_);
    if (at <= last && MatchesAt(text, at)) return at;
  }
  return kNotFound;
}

Position FindText(std::string_view text, std::string_view wanted, Position start, Position end,
                  int options) {
  return TextPattern(wanted, options).FindIn(text, start, end);
}

}  // namespace tessel
