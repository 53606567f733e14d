// Where the lines of a text begin.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "language/Range.h"

namespace tessel::lsp {

/// Lines count from 0; CR LF, LF and CR end one. The text is not kept: calls get the whole of it.
class LineIndex {
 public:
  explicit LineIndex(std::string_view text);

  /// `removed` bytes at `at` have become `inserted` bytes; `after` is the whole text now. Reads the
  /// lines around the edit alone.
  void Update(std::string_view after, Position at, Position removed, Position inserted);

  /// One more than there are line breaks.
  std::size_t Count() const { return begins_.size(); }
  std::size_t LineOf(Position offset) const;
  /// The same, at once where it is that line or the next.
  std::size_t LineNear(std::size_t line, Position offset) const;
  Position BeginOf(std::size_t line) const { return begins_[line]; }
  /// Without its line break.
  language::Range LineIn(std::string_view text, std::size_t line) const;

 private:
  std::vector<Position> begins_;
};

}  // namespace tessel::lsp
