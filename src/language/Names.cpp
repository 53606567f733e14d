#include "language/Names.h"

#include <algorithm>

#include "language/Blocks.h"
#include "language/Reader.h"
#include "language/Statement.h"
#include "text/TextSearch.h"

namespace tessel::language {
namespace {

Symbol ReadSymbol(const Script& script, Mark mark) {
  const Statement statement = ReadStatement(script, mark);
  Symbol symbol;
  symbol.keyword = mark.keyword;
  symbol.range = statement.range;
  symbol.name = statement.name;
  if (mark.keyword == Keyword::kDefineLevelName && !statement.words.empty()) {
    const std::size_t last = std::min<std::size_t>(statement.words.size(), 2) - 1;
    symbol.name = {statement.words.front().begin, statement.words[last].end};
  }
  const auto behind = std::ranges::find_if(
      statement.words, [&](Range word) { return word.begin >= symbol.name.end; });
  symbol.detail = behind == statement.words.end() ? Range{statement.range.end, statement.range.end}
                                                  : Range{behind->begin, statement.range.end};
  return symbol;
}

bool IsListed(const BlockWalk& walk) {
  return walk.CurrentRole() == Role::kDefines || walk.Current().keyword == Keyword::kMusic ||
         (walk.CurrentRole() == Role::kOpens && walk.Current().keyword != Keyword::kOpenBrace);
}

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

/// The use that a word is within a statement: nothing where it cannot be a name.
std::optional<Use> UseIn(const Script& script, Mark mark, Role role, Range word) {
  if (word.begin == mark.begin) return std::nullopt;
  const Statement statement = ReadStatement(script, mark);
  const auto found = std::ranges::find(statement.words, word);
  if (found == statement.words.end()) return Use{word, UseKind::kUses, std::nullopt};
  const auto number = static_cast<int>(found - statement.words.begin()) + 1;
  if (!CanBeName(mark.keyword, number)) return std::nullopt;
  const bool gives = role == Role::kDefines || role == Role::kOpens;
  return Use{word, gives && word == statement.name ? UseKind::kDefines : UseKind::kUses,
             mark.keyword};
}

}  // namespace

std::vector<Symbol> Symbols(const Script& script) {
  std::vector<Symbol> symbols;
  std::vector<std::size_t> blockOf;  // for each symbol, one more than the index of its block
  BlockWalk walk(script);
  while (walk.Next()) {
    if (!IsListed(walk)) continue;
    symbols.push_back(ReadSymbol(script, walk.Current()));
    blockOf.push_back(walk.CurrentRole() == Role::kOpens ? walk.Blocks().size() : 0);
  }
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    if (blockOf[i] == 0) continue;
    const Block& block = walk.Blocks()[blockOf[i] - 1];
    symbols[i].range = block.range;
    symbols[i].terminated = block.terminated;
  }
  return symbols;
}

std::vector<Use> UsesOf(const Script& script, std::string_view name) {
  std::vector<Use> uses;
  const TextPattern pattern(name, kFindDefault);
  const std::string_view text = script.Text();
  BlockWalk walk(script);
  bool inStatement = false;
  for (Position at = pattern.FindIn(text, 0, script.Length()); at != kNotFound;
       at = pattern.FindIn(text, at + 1, script.Length())) {
    const auto word = WordAt(script, at);
    if (!word || *word != Range{at, at + std::ssize(name)}) continue;
    while (walk.Following() && walk.Following()->begin <= at) inStatement = walk.Next();
    const auto use = inStatement ? UseIn(script, walk.Current(), walk.CurrentRole(), *word)
                                 : Use{*word, UseKind::kUses, std::nullopt};
    if (use) uses.push_back(*use);
  }
  return uses;
}

std::optional<Range> WordAt(const Script& script, Position offset) {
  Reader reader = script.ReaderBefore(offset);
  std::optional<Range> before;
  for (Token token = reader.Next(); token.kind != TokenKind::kEnd && token.range.begin <= offset;
       token = reader.Next()) {
    if (token.kind != TokenKind::kWord && token.kind != TokenKind::kOpenBrace &&
        token.kind != TokenKind::kCloseBrace) {
      continue;
    }
    if (token.range.Contains(offset)) return token.range;
    if (token.range.end == offset) before = token.range;
  }
  return before;
}

}  // namespace tessel::language
