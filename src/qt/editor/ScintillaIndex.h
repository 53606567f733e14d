// Where each character of a UTF-8 text begins.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {

/// Where a Scintilla document stands, in its own UTF-8 bytes.
using SciPosition = long;

/// A stretch of text, measured both ways.
struct ScintillaExtent {
  Position characters = 0;
  SciPosition bytes = 0;

  bool IsAscii() const { return characters == bytes; }
};

/// Maps characters to bytes of a UTF-8 text that it does not hold, and back. It knows the extents
/// of consecutive blocks: a block of ASCII needs no more, whatever its size; another one is split
/// until it is short enough to be counted. (Scintilla's own index of characters by lines goes wrong
/// where an edit joins or parts a CR and an LF.)
class ScintillaIndex {
 public:
  using Reader = std::function<std::string_view(SciPosition at, SciPosition length)>;

  /// `read` gives a piece of the text as it stands.
  explicit ScintillaIndex(Reader read) : read_(std::move(read)) {}

  void Assign(ScintillaExtent whole) { blocks_.assign(1, whole); }
  /// The text changed, or is about to: behind `at` characters `removed` give way to `inserted`.
  void Replace(Position at, ScintillaExtent removed, ScintillaExtent inserted);

  Position Length() const;
  SciPosition PositionOf(Position offset) const;
  Position OffsetOf(SciPosition position) const;

 private:
  using Blocks = std::vector<ScintillaExtent>;

  template <class Inside>
  std::pair<ScintillaExtent, ScintillaExtent> Locate(const Inside& inside) const;
  void Split(std::size_t block, SciPosition start) const;

  Reader read_;
  mutable Blocks blocks_ = {{}};  // a look-up may split one
};

}  // namespace tessel
