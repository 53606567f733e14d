// Where in a reply the kinds of expected lines belong: the one table for reader and writer.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "Sentence.h"

namespace scenario {

constexpr int kUnnumbered = -1;

/// An object of a reply that a line says members of, or a list of which each line is an element.
struct Place {
  std::string_view path;  ///< JSON pointer
  std::span<const Sentence> lines;
  std::string_view link = {};                    ///< between what the line begins with and the rest
  std::string_view none = {};                    ///< a list: the line that says it is empty
  int first = kUnnumbered;                       ///< a list: the number of its first element
  std::span<const std::string_view> names = {};  ///< a list of lists: what their elements are

  bool IsList() const { return !none.empty(); }
};

/// In the order in which they are written. A line without words of its own begins with one of its
/// phrases; a line of the last place begins with the name of a property, which has a capital.
std::span<const Place> ReplyPlaces();

}  // namespace scenario
