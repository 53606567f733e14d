#include "colouring/LiveColours.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "colouring/ColourRules.h"
#include "text/TextSearch.h"

namespace tessel {
namespace {

constexpr int kWordCount = std::ssize(kColorWords);
constexpr Colour kPalette[] = {kBlack, kKeywordRed, kCommentGreen, kLevelNameBlue};
constexpr char kBlackIndex = 0;

constexpr char IndexOf(Colour colour) {
  return static_cast<char>(std::ranges::find(kPalette, colour) - std::begin(kPalette));
}
static_assert(std::ranges::all_of(kColorWords, [](const ColorWord& entry) {
  return IndexOf(entry.colour) < std::ssize(kPalette);
}));

/// How far in front of an edit it changes a colour at most: a word that ends there, and a blank.
constexpr Position kReach = [] {
  Position longest = 0;
  for (const ColorWord& entry : kColorWords) longest = std::max(longest, std::ssize(entry.word));
  return longest + 1;
}();

const TextPattern& PatternOf(int entry) {
  static const std::vector<TextPattern> patterns = [] {
    std::vector<TextPattern> all;
    all.reserve(kWordCount);
    for (const ColorWord& each : kColorWords) all.emplace_back(each.word, kFindWholeWord);
    return all;
  }();
  return patterns[static_cast<std::size_t>(entry)];
}

Position FindEntry(int entry, std::string_view text, Position from) {
  return PatternOf(entry).FindIn(text, from, std::ssize(text));
}

/// Calls use(begin, length) for all that an entry colours, and returns whether a block comment runs
/// to the end of the text. The search begins at `from`, or nowhere.
template <class Use>
bool ForEachStretch(int entry, std::string_view text, Position from, Use use) {
  while (from != kNotFound) {
    const Position at = FindEntry(entry, text, from);
    if (at == kNotFound) return false;
    const Stretch stretch = StretchOf(kColorWords[entry], text, at);
    use(at, stretch.length);
    from = stretch.next;
  }
  return true;
}

/// The same for a text that may begin inside of a block comment.
template <class Use>
bool ForEachStretch(int entry, std::string_view text, bool inComment, Use use) {
  Position from = 0;
  if (inComment && kColorWords[entry].rule == ColourRule::kComment) {
    const Stretch rest = RestOfBlockComment(text, 0);
    use(Position{0}, rest.length);
    from = rest.next;
  }
  return ForEachStretch(entry, text, from, use);
}

constexpr int kCommentEntry = static_cast<int>(
    std::ranges::find(kColorWords, ColourRule::kComment, &ColorWord::rule) - kColorWords);

bool LeavesCommentOpen(std::string_view text, bool beginsInComment) {
  return ForEachStretch(kCommentEntry, text, beginsInComment, [](Position, Position) {});
}

void ColourEntry(int entry, std::string_view text, bool inComment, std::string& colours) {
  const char colour = IndexOf(kColorWords[entry].colour);
  ForEachStretch(entry, text, inComment, [&](Position begin, Position length) {
    const auto stretch = std::span(colours).subspan(static_cast<std::size_t>(begin),
                                                    static_cast<std::size_t>(length));
    const auto isBlack = [](char index) { return index == kBlackIndex; };
    if (ColoursAnything(kColorWords[entry]) || std::ranges::all_of(stretch, isBlack)) {
      std::ranges::fill(stretch, colour);
    }
  });
}

std::string_view Part(std::string_view text, Position begin, Position end) {
  return text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}

/// Where a chunk may end: behind the first line break that does not end before `from`.
Position EndOfChunk(std::string_view text, Position from, Position end) {
  const auto at = text.substr(0, static_cast<std::size_t>(end))
                      .find_first_of("\r\n", static_cast<std::size_t>(from - 1));
  return at == std::string_view::npos ? end : static_cast<Position>(at) + 1;
}

}  // namespace

LiveColours::LiveColours(std::string_view text, Position chunkLength)
    : chunkLength_(chunkLength), length_(std::ssize(text)), chunks_(ReadChunks(text, 0, length_)) {
  CountWords(chunks_, 1);
  CarryComment(0, chunks_.size());
  coloured_ = ColouredWords();
}

LiveColours::Chunk LiveColours::ReadChunk(std::string_view text, Position begin, Position end) {
  const std::string_view part = Part(text, begin, end);
  Chunk chunk;
  chunk.begin = begin;
  for (int i = 0; i < kWordCount; ++i) {
    if (kColorWords[i].steering == Steering::kNone) continue;
    chunk.steering[static_cast<std::size_t>(i)] = FindEntry(i, part, 0) != kNotFound;
  }
  for (const bool inside : {false, true}) {
    chunk.endsInComment[inside ? 1 : 0] = LeavesCommentOpen(part, inside);
  }
  return chunk;
}

std::vector<LiveColours::Chunk> LiveColours::ReadChunks(std::string_view text, Position begin,
                                                        Position end) const {
  std::vector<Chunk> chunks;
  chunks.reserve(static_cast<std::size_t>((end - begin) / chunkLength_ + 1));
  while (begin < end) {
    const bool isRest = end - begin < 2 * chunkLength_;
    const Position next = isRest ? end : EndOfChunk(text, begin + chunkLength_, end);
    chunks.push_back(ReadChunk(text, begin, next));
    begin = next;
  }
  return chunks;
}

Position LiveColours::Update(std::string_view after, Position offset, Position removed,
                             Position inserted) {
  const Position grown = inserted - removed;
  const std::size_t first = ChunkIndexOf(offset);
  std::size_t last = ChunkIndexOf(offset + removed);
  const Position begin = chunks_.empty() ? 0 : chunks_[first].begin;
  if (EndOf(last) + grown - begin < chunkLength_ / 2 && last + 1 < chunks_.size()) ++last;
  const Position end = EndOf(last) + grown;
  length_ += grown;
  for (std::size_t i = last + 1; i < chunks_.size(); ++i) chunks_[i].begin += grown;
  PutInPlaceOf(first, std::min(last + 1, chunks_.size()), ReadChunks(after, begin, end));

  const Words before = std::exchange(coloured_, ColouredWords());
  return coloured_ == before ? std::max<Position>(offset - kReach, 0) : 0;
}

/// Replaces the chunks [first, last).
void LiveColours::PutInPlaceOf(std::size_t first, std::size_t last, std::vector<Chunk> fresh) {
  CountWords(std::span(chunks_).subspan(first, last - first), -1);
  CountWords(fresh, 1);
  const std::size_t common = std::min(last - first, fresh.size());
  const auto at = chunks_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto behind = at + static_cast<std::ptrdiff_t>(common);
  std::ranges::copy(std::span(fresh).first(common), at);
  if (common < fresh.size()) {
    chunks_.insert(behind, fresh.begin() + static_cast<std::ptrdiff_t>(common), fresh.end());
  } else {
    chunks_.erase(behind, chunks_.begin() + static_cast<std::ptrdiff_t>(last));
  }
  CarryComment(first, first + fresh.size());
}

/// Tells the chunks from `index` on whether they begin inside of a comment, up to the first from
/// `known` on that knows it already.
void LiveColours::CarryComment(std::size_t index, std::size_t known) {
  for (; index < chunks_.size(); ++index) {
    const bool inside = index > 0 && chunks_[index - 1].EndsInComment();
    if (index >= known && chunks_[index].beginsInComment == inside) return;
    chunks_[index].beginsInComment = inside;
  }
}

void LiveColours::CountWords(std::span<const Chunk> chunks, int each) {
  for (const Chunk& chunk : chunks) {
    for (std::size_t i = 0; i < chunksWith_.size(); ++i) {
      if (chunk.steering[i]) chunksWith_[i] += each;
    }
  }
}

LiveColours::Words LiveColours::ColouredWords() const {
  Words words;
  for (int i = 0; i < kWordCount;) {
    const auto entry = static_cast<std::size_t>(i);
    words.set(entry);
    i = EntryAfter(i, chunksWith_[entry] > 0);
  }
  return words;
}

std::size_t LiveColours::ChunkIndexOf(Position offset) const {
  const auto behind = std::ranges::upper_bound(chunks_, offset, {}, &Chunk::begin);
  return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - chunks_.begin() - 1, 0));
}

Position LiveColours::EndOf(std::size_t chunk) const {
  return chunk + 1 < chunks_.size() ? chunks_[chunk + 1].begin : length_;
}

std::string LiveColours::ColoursOf(std::string_view text, Position begin, Position end) const {
  if (begin == end) return {};
  const Chunk& first = chunks_[ChunkIndexOf(begin)];
  const std::string_view part = Part(text, first.begin, EndOf(ChunkIndexOf(end - 1)));
  std::string colours(part.size(), kBlackIndex);
  for (int i = 0; i < kWordCount; ++i) {
    if (coloured_[static_cast<std::size_t>(i)])
      ColourEntry(i, part, first.beginsInComment, colours);
  }
  colours.resize(static_cast<std::size_t>(end - first.begin));
  colours.erase(0, static_cast<std::size_t>(begin - first.begin));
  return colours;
}

std::span<const Colour> LiveColours::Palette() { return kPalette; }

}  // namespace tessel
