// A place in a line that is read from left to right.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "JsonText.h"

namespace scenario {

/// Blanks and commas between two parts mean nothing. A function that finds nothing returns nothing
/// and stays where it is.
class Cursor {
 public:
  explicit Cursor(std::string_view line) : rest_(line) { SkipBlanks(); }

  bool AtEnd() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  /// Exactly these words, up to the end of a word.
  bool Skip(std::string_view words);
  /// A letter or digit and what follows of them and "_"; a number is none.
  std::optional<std::string> Word();
  /// Digits.
  std::optional<int> Number();
  /// A JSON value.
  std::optional<Json> Value();
  /// A JSON value of this type.
  std::optional<Json> Value(Json::value_t type);

 private:
  void SkipBlanks();
  void Advance(std::size_t length);

  std::string_view rest_;
};

}  // namespace scenario
