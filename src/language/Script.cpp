#include "language/Script.h"

#include <algorithm>

#include "language/StatementFinder.h"

namespace tessel::language {
namespace {

constexpr std::string_view kCommentClose = "*/";

bool IsBreak(char c) { return c == '\r' || c == '\n'; }

/// Where the line ends that text[from - 1] belongs to, its line break included.
Position EndOfLine(std::string_view text, Position from, Position end) {
  Position at = from - 1;
  while (at < end && !IsBreak(text[at])) ++at;
  if (at == end) return end;
  return at + 1 < end && text[at] == '\r' && text[at + 1] == '\n' ? at + 2 : at + 1;
}

bool IsBetweenCrAndLf(std::string_view text, Position offset) {
  return offset > 0 && offset < std::ssize(text) && text[offset - 1] == '\r' &&
         text[offset] == '\n';
}

}  // namespace

void Script::ReadStarts(std::string_view text, Chunk& chunk) {
  std::vector<Chunk::Start> starts;
  starts.reserve(static_cast<std::size_t>(chunk.end - chunk.begin) / 16 + 1);
  Reader reader(text, chunk.begin, chunk.end, chunk.beginsInComment && chunk.closesComment);
  StatementFinder finder(text);
  for (Token token = reader.Next(); token.kind != TokenKind::kEnd; token = reader.Next()) {
    chunk.lineBreaks += token.lineBreaks;
    chunk.opensComment = !token.terminated;
    const auto keyword = finder.Take(token);
    if (!keyword) continue;
    starts.push_back({.offset = static_cast<std::uint32_t>(token.range.begin - chunk.begin),
                      .keyword = *keyword});
    if (finder.TakesLine()) reader.SkipWords();
  }
  chunk.starts.assign(starts.begin(), starts.end());
}

Script::Chunk Script::ReadChunk(std::string_view text, Range range, bool beginsInComment) {
  Chunk chunk;
  chunk.begin = range.begin;
  chunk.end = range.end;
  chunk.beginsInComment = beginsInComment;
  chunk.closesComment = Slice(text, range).find(kCommentClose) != std::string_view::npos;
  ReadStarts(text, chunk);
  return chunk;
}

std::vector<Script::Chunk> Script::ReadChunks(Range range, bool beginsInComment) const {
  std::vector<Chunk> chunks;
  chunks.reserve(static_cast<std::size_t>(range.Length() / chunkLength_ + 1));
  while (!range.IsEmpty()) {
    const Position full = std::min(range.begin + chunkLength_, range.end);
    const Position end = EndOfLine(text_, full, range.end);
    chunks.push_back(ReadChunk(text_, {range.begin, end}, beginsInComment));
    beginsInComment = chunks.back().EndsInComment();
    range.begin = end;
  }
  return chunks;
}

Script::Script(std::string_view text, Position chunkLength)
    : text_(text), chunkLength_(chunkLength), chunks_(ReadChunks({0, Length()}, false)) {
  Renumber(0);
}

void Script::Update(std::string_view after, Position offset, Position removed, Position inserted) {
  text_ = after;
  const Position grown = inserted - removed;
  if (chunks_.empty()) {
    chunks_ = ReadChunks({0, Length()}, false);
    Renumber(0);
    return;
  }
  // The byte before the edit may be a CR that a new LF belongs to, and the line that the edit ends
  // in may now be one with the line that it begins in.
  const std::size_t first = ChunkIndexOf(std::max<Position>(offset - 1, 0));
  std::size_t last = ChunkIndexOf(offset + removed);
  const auto lengthAfter = [&] { return chunks_[last].end + grown - chunks_[first].begin; };
  if (lengthAfter() < chunkLength_ / 2 && last + 1 < chunks_.size()) ++last;

  const Range range = {chunks_[first].begin, chunks_[last].end + grown};
  std::vector<Chunk> fresh = ReadChunks(range, chunks_[first].beginsInComment);
  const auto at = chunks_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = chunks_.begin() + static_cast<std::ptrdiff_t>(last) + 1;
  const auto common = std::min(end - at, std::ssize(fresh));
  std::ranges::move(fresh.begin(), fresh.begin() + common, at);
  const std::size_t behind = first + fresh.size();
  if (common < end - at) chunks_.erase(at + common, end);
  if (common < std::ssize(fresh)) {
    chunks_.insert(at + common, std::move_iterator(fresh.begin() + common),
                   std::move_iterator(fresh.end()));
  }
  for (std::size_t i = behind; i < chunks_.size(); ++i) {
    chunks_[i].begin += grown;
    chunks_[i].end += grown;
  }
  CarryComment(behind);
  Renumber(first);
}

/// Tells the chunks from `index` on whether they begin inside a comment, up to the first that has
/// known it already.
void Script::CarryComment(std::size_t index) {
  for (; index < chunks_.size(); ++index) {
    const bool inside = index > 0 && chunks_[index - 1].EndsInComment();
    Chunk& chunk = chunks_[index];
    if (chunk.beginsInComment == inside) return;
    if (chunk.closesComment) {
      chunk = ReadChunk(text_, {chunk.begin, chunk.end}, inside);
    } else {
      chunk.beginsInComment = inside;
    }
  }
}

void Script::Renumber(std::size_t from) {
  for (std::size_t i = from; i < chunks_.size(); ++i) {
    chunks_[i].firstLine = i == 0 ? 0 : chunks_[i - 1].firstLine + chunks_[i - 1].lineBreaks;
  }
}

std::size_t Script::ChunkIndexOf(Position offset) const {
  const auto behind = std::ranges::upper_bound(chunks_, offset, {}, &Chunk::begin);
  return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - chunks_.begin() - 1, 0));
}

Position Script::LineCount() const {
  return chunks_.empty() ? 1 : chunks_.back().firstLine + chunks_.back().lineBreaks + 1;
}

LineColumn Script::PlaceOf(Position offset) const {
  if (chunks_.empty()) return {};
  const Position counted = IsBetweenCrAndLf(text_, offset) ? offset - 1 : offset;
  const Chunk& chunk = chunks_[ChunkIndexOf(counted)];
  Position lineStart = counted;
  while (lineStart > chunk.begin && !IsBreak(text_[lineStart - 1])) --lineStart;
  return {.line = chunk.firstLine + LineBreaksIn(Text({chunk.begin, lineStart})) + 1,
          .column = offset - lineStart + 1};
}

Range Script::Line(Position line) const {
  if (line < 1 || line > LineCount()) return {Length(), Length()};
  if (chunks_.empty()) return {};
  const auto behind = std::ranges::upper_bound(chunks_, line - 1, {}, &Chunk::firstLine);
  const Chunk& chunk = *(behind - 1);
  Position begin = chunk.begin;
  for (Position skipped = chunk.firstLine; skipped < line - 1; ++skipped) {
    begin = EndOfLine(text_, begin + 1, Length());
  }
  Position end = begin;
  while (end < Length() && !IsBreak(text_[end])) ++end;
  return {begin, end};
}

std::optional<Comment> Script::CommentAt(Position offset) const {
  if (chunks_.empty()) return std::nullopt;
  const std::size_t index = ChunkIndexOf(offset);
  const Chunk& chunk = chunks_[index];
  if (offset >= chunk.end) return std::nullopt;
  if (chunk.IsSwallowed()) return CommentUpToItsClose(CommentOpening(index), index);

  Reader reader(text_, chunk.begin, chunk.end, chunk.beginsInComment);
  Token token = reader.Next();
  const bool isRest = chunk.beginsInComment && token.range.Contains(offset);
  while (token.range.end <= offset) token = reader.Next();
  if (!token.range.Contains(offset)) return std::nullopt;
  if (token.kind == TokenKind::kLineComment) return Comment{token.range, false, true};
  if (token.kind != TokenKind::kBlockComment) return std::nullopt;
  const Position begin = isRest ? CommentOpening(index) : token.range.begin;
  if (token.terminated) return Comment{{begin, token.range.end}, true, true};
  return CommentUpToItsClose(begin, index);
}

/// Where the comment opens that a chunk begins in.
Position Script::CommentOpening(std::size_t index) const {
  do {
    --index;
  } while (chunks_[index].IsSwallowed());
  const Chunk& chunk = chunks_[index];
  Reader reader(text_, chunk.begin, chunk.end, chunk.beginsInComment);
  Token token = reader.Next();
  while (token.terminated) token = reader.Next();
  return token.range.begin;
}

/// The comment that opens at `begin` and goes on behind a chunk.
Comment Script::CommentUpToItsClose(Position begin, std::size_t index) const {
  for (++index; index < chunks_.size(); ++index) {
    const Chunk& chunk = chunks_[index];
    if (!chunk.closesComment) continue;
    const auto close = Text({chunk.begin, chunk.end}).find(kCommentClose);
    return {{begin, chunk.begin + static_cast<Position>(close + kCommentClose.size())}, true, true};
  }
  return {{begin, Length()}, true, false};
}

std::optional<Comment> Script::UnterminatedComment() const {
  if (chunks_.empty() || !chunks_.back().EndsInComment()) return std::nullopt;
  return CommentAt(Length() - 1);
}

Reader Script::ReaderBefore(Position offset) const {
  if (chunks_.empty()) return Reader(text_);
  const Chunk& chunk = chunks_[ChunkIndexOf(offset)];
  return {text_, chunk.begin, Length(), chunk.beginsInComment};
}

Script::MarkRange Script::MarksFrom(Position offset) const {
  const MarkIterator end(chunks_, chunks_.size(), 0);
  if (chunks_.empty()) return {end, end};
  const std::size_t index = ChunkIndexOf(offset);
  const Chunk& chunk = chunks_[index];
  const auto start = std::ranges::lower_bound(chunk.starts, offset - chunk.begin, {},
                                              [](const auto& s) { return Position{s.offset}; });
  return {MarkIterator(chunks_, index, static_cast<std::size_t>(start - chunk.starts.begin())),
          end};
}

std::optional<Mark> Script::LastMarkUpTo(Position offset) const {
  if (chunks_.empty()) return std::nullopt;
  for (std::size_t index = ChunkIndexOf(offset) + 1; index-- > 0;) {
    const Chunk& chunk = chunks_[index];
    if (chunk.IsSwallowed()) continue;
    const auto behind = std::ranges::upper_bound(chunk.starts, offset - chunk.begin, {},
                                                 [](const auto& s) { return Position{s.offset}; });
    if (behind == chunk.starts.begin()) continue;
    const auto& last = *(behind - 1);
    return Mark{last.keyword, chunk.begin + last.offset};
  }
  return std::nullopt;
}

Script::MarkIterator::MarkIterator(const std::vector<Chunk>& chunks, std::size_t chunk,
                                   std::size_t start)
    : chunks_(&chunks), chunk_(chunk), start_(start) {
  SkipToStart();
}

void Script::MarkIterator::SkipToStart() {
  while (chunk_ < chunks_->size()) {
    const Chunk& chunk = (*chunks_)[chunk_];
    if (!chunk.IsSwallowed() && start_ < chunk.starts.size()) return;
    ++chunk_;
    start_ = 0;
  }
}

Mark Script::MarkIterator::operator*() const {
  const Chunk& chunk = (*chunks_)[chunk_];
  const auto& start = chunk.starts[start_];
  return {start.keyword, chunk.begin + start.offset};
}

Script::MarkIterator& Script::MarkIterator::operator++() {
  ++start_;
  SkipToStart();
  return *this;
}

Script::MarkIterator Script::MarkIterator::operator++(int) {
  MarkIterator before = *this;
  ++*this;
  return before;
}

}  // namespace tessel::language
