#include "platform/TextSearch.h"

#include <algorithm>

#include "platform/AnchorScan.h"
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

}  // namespace

Position FindText(std::string_view text, std::string_view wanted, Position start, Position end,
                  int options) {
  end = std::min(end, std::ssize(text));
  const Position length = std::ssize(wanted);
  const Position last = end - length;
  if (length == 0 || start < 0 || start > last) return kNotFound;

  const bool matchCase = (options & kFindMatchCase) != 0;
  const bool wholeWord = (options & kFindWholeWord) != 0;
  const Anchors anchors(wanted, matchCase);
  for (Position at = start; at <= last; ++at) {
    at = ScanForAnchors(text.data(), at, last, anchors);
    if (at > last) break;
    // The neighbours first: they rule out most words that merely begin like the wanted one.
    if (wholeWord && !StandsAlone(text, at, length)) continue;
    const bool equal =
        matchCase ? text.compare(at, length, wanted) == 0 : EqualFolded(text.data() + at, wanted);
    if (equal) return at;
  }
  return kNotFound;
}

}  // namespace tessel
