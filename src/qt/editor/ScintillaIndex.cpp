#include "qt/editor/ScintillaIndex.h"

#include <algorithm>
#include <iterator>

#include "qt/base/Utf8.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

constexpr SciPosition kLongestCounted = 8192;
constexpr SciPosition kBlockSize = 4096;

ScintillaExtent operator+(ScintillaExtent a, ScintillaExtent b) {
  return {a.characters + b.characters, a.bytes + b.bytes};
}

ScintillaExtent operator-(ScintillaExtent a, ScintillaExtent b) {
  return {a.characters - b.characters, a.bytes - b.bytes};
}

}  // namespace

void ScintillaIndex::Replace(Position at, ScintillaExtent removed, ScintillaExtent inserted) {
  auto first = blocks_.begin();
  Position start = 0;
  while (std::next(first) != blocks_.end() && start + first->characters < at) {
    start += first->characters;
    ++first;
  }
  auto last = first;
  ScintillaExtent joined = *first;
  while (start + joined.characters < at + removed.characters) joined = joined + *++last;
  *first = joined - removed + inserted;
  blocks_.erase(std::next(first), std::next(last));
}

/// Where the block begins up to whose end `inside` holds, and the block.
template <class Inside>
std::pair<ScintillaExtent, ScintillaExtent> ScintillaIndex::Locate(const Inside& inside) const {
  ScintillaExtent start;
  std::size_t block = 0;
  while (true) {
    const ScintillaExtent end = start + blocks_[block];
    if (inside(end) || block + 1 == blocks_.size()) {
      if (blocks_[block].IsAscii() || blocks_[block].bytes <= kLongestCounted) break;
      Split(block, start.bytes);
      continue;
    }
    start = end;
    ++block;
  }
  return {start, blocks_[block]};
}

void ScintillaIndex::Split(std::size_t block, SciPosition start) const {
  const std::string_view text = read_(start, blocks_[block].bytes);
  Blocks parts;
  for (SciPosition at = 0; at < std::ssize(text);) {
    SciPosition end = std::min<SciPosition>(at + kBlockSize, std::ssize(text));
    while (end < std::ssize(text) && !StartsCharacter(text[static_cast<std::size_t>(end)])) ++end;
    const auto part = text.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(end - at));
    parts.push_back({CharactersOfUtf8(part), end - at});
    at = end;
  }
  const auto place = blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
  blocks_.insert(place, parts.begin(), parts.end());
}

Position ScintillaIndex::Length() const {
  Position length = 0;
  for (const ScintillaExtent& block : blocks_) length += block.characters;
  return length;
}

SciPosition ScintillaIndex::PositionOf(Position offset) const {
  const auto [start, block] = Locate([&](ScintillaExtent end) { return offset <= end.characters; });
  Position characters = offset - start.characters;
  if (block.IsAscii()) return start.bytes + characters;
  const std::string_view text = read_(start.bytes, block.bytes);
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (StartsCharacter(text[at]) && characters-- == 0) break;
  }
  return start.bytes + static_cast<SciPosition>(at);
}

Position ScintillaIndex::OffsetOf(SciPosition position) const {
  const auto [start, block] = Locate([&](ScintillaExtent end) { return position <= end.bytes; });
  const SciPosition inside = position - start.bytes;
  if (block.IsAscii()) return start.characters + inside;
  return start.characters + CharactersOfUtf8(read_(start.bytes, inside));
}

}  // namespace tessel
