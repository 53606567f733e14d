#include "language/Names.h"

#include <algorithm>
#include <limits>

#include "language/Blocks.h"
#include "language/Reader.h"
#include "language/Statement.h"
#include "language/Structure.h"
#include "text/TextSearch.h"

namespace tessel::language {
namespace {

/// Whether a word of a statement, counted from 1, can be a name.
bool CanBeName(Keyword keyword, int word) {
  switch (keyword) {
    case Keyword::kDefineQuote:
    case Keyword::kDefineVolumeName:
    case Keyword::kDefineSkillName:
    case Keyword::kDefineLevelName:
    case Keyword::kInclude:
    case Keyword::kMusic:
      return false;
    case Keyword::kDefineSound:
      return word != 2;  // its file
    default:
      return true;
  }
}

bool IsWordOrBrace(const Token& token) {
  return token.kind == TokenKind::kWord || token.kind == TokenKind::kOpenBrace ||
         token.kind == TokenKind::kCloseBrace;
}

/// Goes through the words of a script from front to back; leaps over what nobody asks for.
class WordCursor {
 public:
  explicit WordCursor(const Script& script) : script_(script), reader_(script.ReaderBefore(0)) {}

  /// True when a word is exactly [begin, end). `begin` grows from call to call.
  bool IsWord(Range range) {
    if (range.begin - token_.range.end > Script::kUsualChunkLength) {
      reader_ = script_.ReaderBefore(range.begin);
      token_ = reader_.Next();
    }
    while (token_.range.end <= range.begin) token_ = reader_.Next();
    return IsWordOrBrace(token_) && token_.range == range;
  }

 private:
  const Script& script_;
  Reader reader_;
  Token token_;
};

/// Tells what the words of a script are in their statements, from front to back.
class UseReader {
 public:
  explicit UseReader(const Script& script) : script_(script), walk_(script) {}

  /// Nothing where the word cannot be a name.
  std::optional<Use> UseOf(Range word) {
    GoTo(word.begin);
    if (!inStatement_) return Use{word, UseKind::kUses, std::nullopt};
    if (word == statement_.keywordRange) return std::nullopt;
    const auto found = std::ranges::lower_bound(statement_.words, word.begin, {}, &Range::begin);
    if (found == statement_.words.end()) return Use{word, UseKind::kUses, std::nullopt};
    const Keyword keyword = statement_.keyword;
    const auto number = static_cast<int>(found - statement_.words.begin()) + 1;
    if (!CanBeName(keyword, number)) return std::nullopt;
    const Role role = walk_.CurrentRole();
    const bool gives = role == Role::kDefines || role == Role::kOpens;
    return Use{word, gives && word == statement_.name ? UseKind::kDefines : UseKind::kUses,
               keyword};
  }

 private:
  void GoTo(Position offset) {
    bool moved = false;
    while (walk_.Following() && walk_.Following()->begin <= offset) moved = walk_.Next();
    if (!moved) return;
    inStatement_ = true;
    statement_ = ReadStatement(script_, walk_.Current());
  }

  const Script& script_;
  BlockWalk walk_;
  bool inStatement_ = false;
  Statement statement_;
};

}  // namespace

std::vector<Symbol> Symbols(const Script& script) {
  StructureWalk walk(script);
  while (walk.Read(std::numeric_limits<int>::max())) {
  }
  return walk.Take().symbols;
}

std::vector<Use> UsesOf(const Script& script, std::string_view name) {
  std::vector<Use> uses;
  const TextPattern pattern(name, kFindDefault);
  WordCursor words(script);
  UseReader statements(script);
  for (Position at = pattern.FindIn(script.Text(), 0, script.Length()); at != kNotFound;
       at = pattern.FindIn(script.Text(), at + 1, script.Length())) {
    const Range word = {at, at + pattern.Length()};
    if (!words.IsWord(word)) continue;
    if (const auto use = statements.UseOf(word)) uses.push_back(*use);
  }
  return uses;
}

std::vector<Use> DefinitionsOfName(const Script& script, std::string_view name) {
  std::vector<Use> uses = UsesOf(script, name);
  std::erase_if(uses, [](const Use& use) { return use.kind != UseKind::kDefines; });
  return uses;
}

std::optional<Range> WordAt(const Script& script, Position offset) {
  Reader reader = script.ReaderBefore(offset);
  std::optional<Range> before;
  for (Token token = reader.Next(); token.kind != TokenKind::kEnd && token.range.begin <= offset;
       token = reader.Next()) {
    if (!IsWordOrBrace(token)) continue;
    if (token.range.Contains(offset)) return token.range;
    if (token.range.end == offset) before = token.range;
  }
  return before;
}

}  // namespace tessel::language
