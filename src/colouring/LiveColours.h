// The colours that a fresh pass over a text would give, kept up while the text is edited.
//
// The text is divided into chunks of whole lines. A chunk is coloured like a text of its own, but
// for two things: it may begin inside of a block comment, and which words are coloured at all is
// decided by the whole text. So of each chunk that is what is kept; colours are worked out for whom
// wants to see them.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "colouring/ColorWords.h"
#include "text/TextTypes.h"

namespace tessel {

/// What ColorizeDocument would make of a black text. The text itself is not kept: every call gets
/// the whole of it, as it stands.
class LiveColours {
 public:
  static constexpr Position kUsualChunkLength = 4096;

  /// The length of chunks changes no colour; a test that looks at their edges wants short ones.
  explicit LiveColours(std::string_view text, Position chunkLength = kUsualChunkLength);

  /// The text has changed: `removed` bytes at `offset` have become `inserted` bytes. `after` is the
  /// whole text now. Costs what reading the lines around the edit costs. Returns from where on a
  /// byte may have another colour than before: not far in front of the edit, or 0.
  Position Update(std::string_view after, Position offset, Position removed, Position inserted);

  /// For each byte in [begin, end) its colour as an index into the palette.
  std::string ColoursOf(std::string_view text, Position begin, Position end) const;
  static std::span<const Colour> Palette();

 private:
  using Words = std::bitset<std::size(kColorWords)>;

  /// Ends where the next one begins. None is empty.
  struct Chunk {
    bool EndsInComment() const { return endsInComment[beginsInComment ? 1 : 0]; }

    Position begin = 0;
    Words steering;  // those of its words that decide about the rest of the pass
    bool beginsInComment = false;
    std::array<bool, 2> endsInComment = {};  // when it begins outside of one, and inside
  };

  static Chunk ReadChunk(std::string_view text, Position begin, Position end);
  std::vector<Chunk> ReadChunks(std::string_view text, Position begin, Position end) const;
  void PutInPlaceOf(std::size_t first, std::size_t last, std::vector<Chunk> fresh);
  void CarryComment(std::size_t from, std::size_t known);
  void CountWords(std::span<const Chunk> chunks, int each);
  Words ColouredWords() const;

  std::size_t ChunkIndexOf(Position offset) const;
  Position EndOf(std::size_t chunk) const;

  Position chunkLength_;
  Position length_ = 0;
  std::vector<Chunk> chunks_;
  std::array<int, std::size(kColorWords)> chunksWith_ = {};  // how many hold a steering word
  Words coloured_;
};

}  // namespace tessel
