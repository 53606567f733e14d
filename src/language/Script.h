// What a CON text says, kept up to date while the text is edited.
//
// The text is divided into chunks of whole lines. A chunk knows where in it a statement begins, and
// whether it begins and ends inside a block comment; nothing else of one chunk depends on those
// before it. So an edit reads its own chunk again, and those behind it only hear whether they now
// begin inside a comment. All else (the words of a statement, blocks, definitions) is read from the
// text when somebody asks.
#pragma once

#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "language/Keywords.h"
#include "language/Range.h"
#include "language/Reader.h"

namespace tessel::language {

/// A keyword that begins a statement, and where it stands.
struct Mark {
  Keyword keyword = Keyword::kDefine;
  Position begin = 0;

  friend bool operator==(const Mark&, const Mark&) = default;
};

/// A place as people count it: from 1, columns in bytes.
struct LineColumn {
  Position line = 1;
  Position column = 1;

  friend bool operator==(const LineColumn&, const LineColumn&) = default;
};

struct Comment {
  Range range;
  bool block = false;      ///< "/*" and not "//"
  bool terminated = true;  ///< false for a block comment that runs to the end of the text
};

/// The reading of one text. The text is not copied: it stays where it is, unchanged, as long as
/// anything is asked; after a change Update comes first. Offsets lie within [0, length of the
/// text].
class Script {
  /// Lines that are read together.
  struct Chunk {
    struct Start {
      std::uint32_t offset;  // from the chunk's begin
      Keyword keyword;
    };

    bool IsSwallowed() const { return beginsInComment && !closesComment; }
    bool EndsInComment() const { return IsSwallowed() || opensComment; }

    Position begin = 0;
    Position end = 0;
    Position firstLine = 0;
    Position lineBreaks = 0;
    bool beginsInComment = false;
    bool closesComment = false;  // it holds a "*/"
    bool opensComment = false;   // its last comment goes on behind it
    // Without a "*/" these, and opensComment, are those of a chunk that begins outside of a
    // comment, whether it does or not: opening and closing a comment far above changes nothing
    // here.
    std::vector<Start> starts;
  };

 public:
  static constexpr Position kUsualChunkLength = 4096;

  Script() = default;
  /// The length of chunks changes no answer; a test that looks at their edges wants short ones.
  explicit Script(std::string_view text, Position chunkLength = kUsualChunkLength);

  /// The text has changed: `removed` bytes at `offset` have become `inserted` bytes. `after` is the
  /// whole text now. The result is that of reading `after` anew, for the price of the lines around
  /// the edit.
  void Update(std::string_view after, Position offset, Position removed, Position inserted);
  /// The same text now stands elsewhere in memory.
  void Moved(std::string_view text) { text_ = text; }

  std::string_view Text() const { return text_; }
  std::string_view Text(Range range) const { return Slice(text_, range); }
  Position Length() const { return std::ssize(text_); }

  /// One more than there are line breaks (CR LF, LF, CR).
  Position LineCount() const;
  LineColumn PlaceOf(Position offset) const;
  /// A line counted from 1, without its line break; empty at the end of the text where there is no
  /// such line.
  Range Line(Position line) const;

  /// The comment that a byte belongs to; the line break behind "//" does not.
  std::optional<Comment> CommentAt(Position offset) const;
  bool IsInComment(Position offset) const { return CommentAt(offset).has_value(); }
  /// The block comment that runs to the end of the text for want of a "*/".
  std::optional<Comment> UnterminatedComment() const;

  /// Walks the statements in the order of the text.
  class MarkIterator {
   public:
    using value_type = Mark;
    using difference_type = std::ptrdiff_t;

    MarkIterator() = default;
    Mark operator*() const;
    MarkIterator& operator++();
    MarkIterator operator++(int);
    friend bool operator==(const MarkIterator& a, const MarkIterator& b) {
      return a.chunk_ == b.chunk_ && a.start_ == b.start_;
    }

   private:
    friend class Script;
    MarkIterator(const std::vector<Chunk>& chunks, std::size_t chunk, std::size_t start);
    void SkipToStart();

    const std::vector<Chunk>* chunks_ = nullptr;
    std::size_t chunk_ = 0;
    std::size_t start_ = 0;
  };
  struct MarkRange {
    MarkIterator first, last;
    MarkIterator begin() const { return first; }
    MarkIterator end() const { return last; }
  };

  /// Reads the tokens from the begin of some line on that is not behind `offset`, but near.
  Reader ReaderBefore(Position offset) const;

  MarkRange Marks() const { return MarksFrom(0); }
  /// Those that begin at `offset` or behind it.
  MarkRange MarksFrom(Position offset) const;
  /// The last that begins at `offset` or before it.
  std::optional<Mark> LastMarkUpTo(Position offset) const;

 private:
  static Chunk ReadChunk(std::string_view text, Range range, bool beginsInComment);
  static void ReadStarts(std::string_view text, Chunk& chunk);
  std::vector<Chunk> ReadChunks(Range range, bool beginsInComment) const;

  std::size_t ChunkIndexOf(Position offset) const;
  void CarryComment(std::size_t from);
  void Renumber(std::size_t from);
  Position CommentOpening(std::size_t chunk) const;
  Comment CommentUpToItsClose(Position begin, std::size_t chunk) const;

  std::string_view text_;
  Position chunkLength_ = kUsualChunkLength;
  std::vector<Chunk> chunks_;  // none is empty
};

}  // namespace tessel::language
