// The numbers that a text gives names to: "define NAME VALUE".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "language/Script.h"

namespace tessel::language {

/// A decimal number, with a "-" or not, that fits 32 bits; nothing for any other word.
std::optional<std::int32_t> NumberOf(std::string_view word);

/// One define. What is missing is empty and stands where it would.
struct Definition {
  Range keyword;
  Range name;
  Range value;       ///< the word behind the name, up to a comment; a name may stand for the number
  Range rest;        ///< what follows the value although nothing should, from word to word
  Position end = 0;  ///< where the comment or the line break behind all of it begins
  std::optional<std::int32_t> number;  ///< the value, where it is one that fits 32 bits
  bool hasTab = false;  ///< a tab stands between the keyword and `end`, not blanks alone

  bool HasName() const { return !name.IsEmpty(); }
  bool HasValue() const { return !value.IsEmpty(); }
  /// A name, a value, and nothing more.
  bool IsComplete() const { return HasValue() && rest.IsEmpty(); }
};

/// `mark` is one of Keyword::kDefine.
Definition ReadDefinition(const Script& script, Mark mark);

/// All of them, in the order of the text; none that stands in a comment.
std::vector<Definition> Definitions(const Script& script);
/// Those of one name, whatever its case (see SameName).
std::vector<Definition> DefinitionsOf(const Script& script, std::string_view name);
/// The define that a byte belongs to: from its keyword to its last word.
std::optional<Definition> DefinitionAt(const Script& script, Position offset);

}  // namespace tessel::language
