// The lines of a CON text that hold settings.
#pragma once

#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

/// A piece of a text, in bytes.
struct TextRange {
  Position start = 0;
  Position length = 0;

  Position End() const { return start + length; }
  friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The line in which a place lies, without its break: CR LF, a lone CR or a lone LF.
TextRange LineAt(std::string_view text, Position place);
/// The number of that line, from 1.
int LineNumberAt(std::string_view text, Position place);

/// True when the piece lies in the value of one line "define NAME VALUE": behind the name and in
/// front of a comment. An empty piece lies in none.
bool LiesInDefineValue(std::string_view text, TextRange piece);
/// The same for what stands behind the first word of a "definelevelname" line.
bool LiesInLevel(std::string_view text, TextRange piece);

}  // namespace tessel
