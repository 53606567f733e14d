#include "text/IndexRuns.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tessel {
namespace {

constexpr std::size_t kMostRunsOfAChunk = 512;
constexpr Position kLongestRun = std::numeric_limits<std::uint16_t>::max();
// New runs have room to grow, so that keys within a long one do not leave a run each.
constexpr Position kLongestNewRun = kLongestRun / 2;
// At most: two for each end of what is replaced, and one that is not full.
constexpr Position kPiecesBesideFullOnes = 5;

// Grows by half at least: whoever asks for a little more each time is not moved each time.
template <typename T>
void GrowTo(std::vector<T>& values, std::size_t size) {
  if (size > values.capacity()) values.reserve(std::max(size, values.capacity() * 3 / 2));
}

// Values [begin, end) give way to others; what is behind them moves once at most.
template <typename T>
void ReplaceIn(std::vector<T>& values, std::size_t begin, std::size_t end,
               const std::vector<T>& others) {
  const auto first = values.begin() + static_cast<std::ptrdiff_t>(begin);
  const auto last = values.begin() + static_cast<std::ptrdiff_t>(end);
  const auto count = std::min(others.size(), end - begin);
  const auto middle = others.begin() + static_cast<std::ptrdiff_t>(count);
  std::copy(others.begin(), middle, first);
  if (count < end - begin) values.erase(first + static_cast<std::ptrdiff_t>(count), last);
  if (middle != others.end()) values.insert(last, middle, others.end());
}

}  // namespace

IndexRuns::IndexRuns(Position length, char index) { Replace(0, 0, length, index); }

IndexRuns::Stretch IndexRuns::At(Position at) const {
  const Place& place = Find(at);
  const Run run = chunks_[place.chunk].runs[place.run];
  return {place.runBegin, place.runBegin + run.length, run.index};
}

const IndexRuns::Place& IndexRuns::Find(Position at) const {
  Place& place = last_;
  if (at < place.chunkBegin) place = {};
  while (place.chunk + 1 < chunks_.size() && at >= place.chunkBegin + chunks_[place.chunk].length) {
    const Position begin = place.chunkBegin + chunks_[place.chunk].length;
    place = {place.chunk + 1, begin, 0, begin};
  }
  const std::vector<Run>& runs = chunks_[place.chunk].runs;
  while (at < place.runBegin) place.runBegin -= runs[--place.run].length;
  while (place.run < runs.size() && at >= place.runBegin + runs[place.run].length) {
    place.runBegin += runs[place.run++].length;
  }
  return place;
}

void IndexRuns::MakeRoomToReplace(Position at, Position inserted) {
  if (chunks_.empty()) chunks_.emplace_back();
  SplitIfLong(Find(at));
  const auto pieces = static_cast<std::size_t>(inserted / kLongestNewRun + kPiecesBesideFullOnes);
  GrowTo(pieces_, pieces);
  std::vector<Run>& runs = chunks_[Find(at).chunk].runs;
  GrowTo(runs, runs.size() + pieces);
}

void IndexRuns::SplitIfLong(Place place) {
  const std::vector<Run>& runs = chunks_[place.chunk].runs;
  if (runs.size() < kMostRunsOfAChunk) return;
  const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
  Chunk left{0, {runs.begin(), middle}};
  for (const Run& run : left.runs) left.length += run.length;
  Chunk right{chunks_[place.chunk].length - left.length, {middle, runs.end()}};
  chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk) + 1, std::move(right));
  chunks_[place.chunk] = std::move(left);
  last_ = {place.chunk, place.chunkBegin, 0, place.chunkBegin};
}

void IndexRuns::Append(Position length, char index) {
  if (!pieces_.empty() && pieces_.back().index == index &&
      pieces_.back().length + length <= kLongestRun) {
    pieces_.back().length = static_cast<std::uint16_t>(pieces_.back().length + length);
    return;
  }
  for (; length > 0; length -= std::min(length, kLongestNewRun)) {
    pieces_.push_back({static_cast<std::uint16_t>(std::min(length, kLongestNewRun)), index});
  }
}

void IndexRuns::Fill(Position at, Position length, char index) {
  if (length > 0 && !FillWithinRun(at, length, index)) Replace(at, length, length, index);
}

// What a colouring pass does over and over. False where more than one run is concerned.
bool IndexRuns::FillWithinRun(Position at, Position length, char index) {
  const Place& place = Find(at);
  std::vector<Run>& runs = chunks_[place.chunk].runs;
  const Run run = runs[place.run];
  const Position before = at - place.runBegin;
  const Position behind = run.length - before - length;
  if (behind < 0) return false;
  if (run.index == index) return true;
  if (before == 0 || behind == 0 || runs.size() >= kMostRunsOfAChunk) return false;
  GrowTo(runs, runs.size() + 2);
  const auto lengthOf = [](Position count) { return static_cast<std::uint16_t>(count); };
  const auto rest = runs.begin() + static_cast<std::ptrdiff_t>(place.run);
  rest->length = lengthOf(behind);
  runs.insert(rest, {{lengthOf(before), run.index}, {lengthOf(length), index}});
  return true;
}

void IndexRuns::Replace(Position at, Position removed, Position inserted, char index) {
  MakeRoomToReplace(at, inserted);
  const Position end = at + removed;
  Place first = Find(at);
  Place last = Find(end);
  // The runs beside the new text may grow into it.
  if (first.runBegin == at && first.run > 0) {
    first.runBegin -= chunks_[first.chunk].runs[--first.run].length;
  }
  pieces_.clear();
  if (first.runBegin < at) {
    Append(at - first.runBegin, chunks_[first.chunk].runs[first.run].index);
  }
  Append(inserted, index);
  const std::vector<Run>& lastRuns = chunks_[last.chunk].runs;
  if (last.run < lastRuns.size()) {
    const Run run = lastRuns[last.run++];
    last.runBegin += run.length;
    Append(last.runBegin - end, run.index);
  }
  PutPieces(first, last);
  length_ += inserted - removed;
}

// In the place of all from `first` to `last`, which is the first run that stays.
void IndexRuns::PutPieces(const Place& first, const Place& last) {
  Chunk& chunk = chunks_[first.chunk];
  Chunk& lastChunk = chunks_[last.chunk];
  const Position stays = last.chunkBegin + lastChunk.length - last.runBegin;
  chunk.length = first.runBegin - first.chunkBegin;
  for (const Run& piece : pieces_) chunk.length += piece.length;
  std::size_t end = last.run;
  if (first.chunk == last.chunk) {
    chunk.length += stays;
  } else {
    lastChunk.length = stays;
    lastChunk.runs.erase(lastChunk.runs.begin(),
                         lastChunk.runs.begin() + static_cast<std::ptrdiff_t>(last.run));
    end = chunk.runs.size();
  }
  ReplaceIn(chunk.runs, first.run, end, pieces_);
  // No chunk stays empty.
  const bool firstGoes = chunk.runs.empty();
  const std::size_t from = firstGoes ? first.chunk : first.chunk + 1;
  const std::size_t to = lastChunk.runs.empty() ? last.chunk + 1 : last.chunk;
  if (from < to) {
    chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(from),
                  chunks_.begin() + static_cast<std::ptrdiff_t>(to));
  }
  last_ = firstGoes ? Place{} : first;
}

}  // namespace tessel
