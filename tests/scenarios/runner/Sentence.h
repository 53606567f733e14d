// An object of the protocol as a line: the one table of a command or reply, for reader and writer.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Cursor.h"
#include "JsonText.h"

namespace scenario {

/// How a member stands in a line, after its words.
enum class Says {
  kNothing,  ///< the words alone say it: the member has the value `fixed`
  kText,     ///< a text, in quotes
  kWord,     ///< a text, without quotes where it is a word
  kValue,    ///< any JSON value
  kTexts,    ///< a list of texts: each in quotes, one after the other
  kControl,  ///< a control, and in brackets the member "index" if there is one
  kKeys,     ///< a key such as Ctrl+F: the members "code" and "shift"
};

struct Phrase {
  std::string_view words;
  std::string_view member;
  Says says;
  std::string_view fixed = {};  ///< JSON
};

/// A kind of line. What no phrase says stands in it as a member's name and its JSON value, or as an
/// object in braces: nothing is lost.
struct Sentence {
  std::string_view words;           ///< that it begins with
  std::string_view implied;         ///< JSON: the members that these words stand for
  std::span<const Phrase> phrases;  ///< in the order in which they are written
  std::string_view between = " ";   ///< the phrases
};

/// The object that the rest of a line says. Throws std::runtime_error that names what it does not
/// know.
Json ReadSentence(const Sentence& sentence, Cursor& rest);

/// The object as such a line, without the words at its beginning; nothing if this line would not
/// be read as the same.
std::optional<std::string> WriteSentence(const Sentence& sentence, const Json& object);

/// The same with all members but the implied ones in braces.
std::optional<std::string> WriteInBraces(const Sentence& sentence, const Json& object);

}  // namespace scenario
