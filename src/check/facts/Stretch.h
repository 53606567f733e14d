// A range of a text in half the room: a check keeps one for every word of a statement.
#pragma once

#include <cstdint>

#include "language/Range.h"

namespace tessel::check {

/// The bytes [begin, end) of a text of less than 4 GiB.
struct Stretch {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;

  Stretch() = default;
  Stretch(std::uint32_t from, std::uint32_t to) : begin(from), end(to) {}
  explicit Stretch(language::Range range)
      : begin(static_cast<std::uint32_t>(range.begin)),
        end(static_cast<std::uint32_t>(range.end)) {}

  language::Range AsRange() const { return {begin, end}; }
  bool IsEmpty() const { return begin == end; }

  friend bool operator==(const Stretch&, const Stretch&) = default;
};

}  // namespace tessel::check
