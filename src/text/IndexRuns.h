// A byte for each character of a text: its colour, as an index into a palette.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {

/// One byte for each character, kept as stretches of equal ones: a text of one colour needs next to
/// nothing, and an edit moves no more than what belongs to some hundred stretches. Positions are
/// taken on trust, as the store's are.
class IndexRuns {
 public:
  IndexRuns() = default;
  IndexRuns(Position length, char index);

  Position Length() const { return length_; }

  /// Characters [begin, end) have the same index; those beside them may have it too.
  struct Stretch {
    Position begin = 0;
    Position end = 0;
    char index = 0;
  };
  /// The stretch around a character. Walking on from stretch to stretch costs the same at each.
  Stretch At(Position at) const;

  /// `removed` characters at `at` give way to `inserted` ones of one index.
  void Replace(Position at, Position removed, Position inserted, char index);
  /// Replaces characters by as many of one index.
  void Fill(Position at, Position length, char index);
  /// All that may fail of that Replace, if it comes next; changes nothing that can be seen.
  void MakeRoomToReplace(Position at, Position inserted);

 private:
  struct Run {
    std::uint16_t length;
    char index;
  };
  /// Neighbouring runs, so that an edit moves and a look counts only those of one chunk.
  struct Chunk {
    Position length = 0;
    std::vector<Run> runs;
  };
  /// A character, or the end of the text: its run, which may be one past the last of its chunk.
  struct Place {
    std::size_t chunk = 0;
    Position chunkBegin = 0;
    std::size_t run = 0;
    Position runBegin = 0;
  };

  const Place& Find(Position at) const;
  void SplitIfLong(Place place);
  void Append(Position length, char index);
  bool FillWithinRun(Position at, Position length, char index);
  void PutPieces(const Place& first, const Place& last);

  Position length_ = 0;
  std::vector<Chunk> chunks_;
  std::vector<Run> pieces_;  // what a Replace puts in the place of runs
  mutable Place last_;       // where the last look was, for the next one is near
};

}  // namespace tessel
