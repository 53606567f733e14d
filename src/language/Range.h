// A stretch of a text, as everything in this folder names it.
#pragma once

#include <string_view>

#include "text/TextTypes.h"

namespace tessel::language {

/// The bytes [begin, end) of a text. An empty range at the offset where something would stand says
/// that it is missing.
struct Range {
  Position begin = 0;
  Position end = 0;

  Position Length() const { return end - begin; }
  bool IsEmpty() const { return begin == end; }
  bool Contains(Position offset) const { return begin <= offset && offset < end; }

  friend bool operator==(const Range&, const Range&) = default;
};

inline std::string_view Slice(std::string_view text, Range range) {
  return text.substr(static_cast<std::size_t>(range.begin),
                     static_cast<std::size_t>(range.Length()));
}

}  // namespace tessel::language
