// The words that begin a statement.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessel::language {

enum class Keyword : std::uint8_t {
  kDefine,
  kDefineQuote,
  kDefineVolumeName,
  kDefineSkillName,
  kDefineLevelName,
  kDefineSound,
  kInclude,
  kMusic,
  kGameStartup,
  kAction,
  kMove,
  kAi,
  kState,
  kEnds,
  kActor,
  kUserActor,
  kEndA,
  kOpenBrace,
  kCloseBrace,
};

/// What belongs to a statement behind its keyword.
enum class Form : std::uint8_t {
  kLine,   ///< all words up to the end of the line; none of them begins a statement
  kList,   ///< all words up to the next statement, over any number of lines
  kNames,  ///< the words up to the end of the line or the next statement, with a name among them
  kAlone,  ///< nothing
};

struct Grammar {
  std::string_view word;  ///< in lower case
  Form form = Form::kAlone;
  /// Which of its words is the name that it gives or uses, counted from 1; 0 where it has none. In
  /// the form kNames no word up to that one begins a statement.
  int nameWord = 0;
};

const Grammar& GrammarOf(Keyword keyword);

/// The keyword that a word is, without regard to case. Braces are none: they are no words.
std::optional<Keyword> KeywordOf(std::string_view word);

/// True when two names are the same: without regard to the case of the letters of Windows-1252, as
/// the control searches.
bool SameName(std::string_view a, std::string_view b);

}  // namespace tessel::language
