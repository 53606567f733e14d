#include "language/NameAt.h"

#include "language/Statement.h"

namespace tessel::language {
namespace {

bool IsBrace(std::string_view word) { return word == "{" || word == "}"; }

}  // namespace

std::optional<Range> NameAt(const Script& script, Position offset) {
  const auto word = WordAt(script, offset);
  if (!word || IsBrace(script.Text(*word)) || KeywordOf(script.Text(*word))) return std::nullopt;
  return word;
}

std::optional<Keyword> KindOfName(const Script& script, Range word) {
  const auto statement = StatementAt(script, word.begin);
  if (!statement || statement->name != word) return std::nullopt;
  return statement->keyword;
}

std::optional<Range> TypedAt(const Script& script, Position caret) {
  if (caret > 0 && script.IsInComment(caret - 1)) return std::nullopt;
  const auto word = WordAt(script, caret);
  if (!word || word->begin >= caret || IsBrace(script.Text(*word))) return Range{caret, caret};
  return Range{word->begin, caret};
}

bool HasName(const Symbol& symbol) {
  using enum Keyword;
  switch (symbol.keyword) {
    case kDefine:
    case kDefineSound:
    case kAction:
    case kMove:
    case kAi:
    case kState:
    case kActor:
    case kUserActor:
      return !symbol.name.IsEmpty();
    default:
      return false;
  }
}

}  // namespace tessel::language
