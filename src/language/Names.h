// What a script gives names to, and where a name is used.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "language/Script.h"

namespace tessel::language {

/// Something that has a name in a script, or a number in its place: what an outline lists.
struct Symbol {
  Keyword keyword = Keyword::kDefine;  ///< what it is
  Range range;                         ///< its statement, or its whole block
  Range name;    ///< of a level its episode and number; empty where it is missing
  Range detail;  ///< all words of the statement behind the name: a value, a title, parameters
  bool terminated = true;  ///< false for a block that is not closed
};

/// Definitions, quotes, titles, levels, sounds, songs, actions, moves, ais, states and actors, in
/// the order of the text.
std::vector<Symbol> Symbols(const Script& script);

enum class UseKind : std::uint8_t {
  kDefines,  ///< the word gives the name to something
  kUses,     ///< the word stands for what has the name
};

struct Use {
  Range word;
  UseKind kind = UseKind::kUses;
  std::optional<Keyword> keyword;  ///< of the statement that the word belongs to
};

/// Every word of that name, whatever its case (see SameName): none in comments, in the texts of
/// quotes and titles, among file names, and no keyword. A level and a text have numbers and no
/// name.
std::vector<Use> UsesOf(const Script& script, std::string_view name);

/// The words that give that name to something, in the order of the text.
std::vector<Use> DefinitionsOfName(const Script& script, std::string_view name);

/// The word or brace that holds a byte or, for a caret, ends in front of it; nothing in a comment.
std::optional<Range> WordAt(const Script& script, Position offset);

}  // namespace tessel::language
