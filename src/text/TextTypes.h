// Small types of the editor text.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessel {

/// A 0-based byte offset into a text, or a length in bytes.
using Position = std::ptrdiff_t;

/// "Not found".
inline constexpr Position kNotFound = -1;

/// A colour in 0x00BBGGRR order.
using Colour = std::uint32_t;

inline constexpr Colour kBlack = 0;

/// A stretch of text of one colour.
struct ColourRun {
  Position start = 0;
  Position length = 0;
  Colour colour = kBlack;

  friend bool operator==(const ColourRun&, const ColourRun&) = default;
};

}  // namespace tessel
