#include "language/Statement.h"

namespace tessel::language {

WordReader::WordReader(const Script& script, Mark mark)
    : text_(script.Text()),
      grammar_(GrammarOf(mark.keyword)),
      reader_(text_, mark.begin, script.Length()),
      keyword_(reader_.Next().range),
      atEnd_(grammar_.form == Form::kAlone) {}

bool WordReader::PassesOver(const Token& token) const {
  const bool mayPass = grammar_.form == Form::kList || token.lineBreaks == 0;
  return mayPass && (token.kind == TokenKind::kLineBreak || token.kind == TokenKind::kLineComment ||
                     token.kind == TokenKind::kBlockComment);
}

bool WordReader::Takes(const Token& token) const {
  switch (token.kind) {
    case TokenKind::kWord:
      return grammar_.form == Form::kLine ||
             (grammar_.form == Form::kNames && words_ < grammar_.nameWord) ||
             !KeywordOf(Slice(text_, token.range));
    case TokenKind::kOpenBrace:
    case TokenKind::kCloseBrace:
      return grammar_.form == Form::kLine;
    default:
      return false;
  }
}

std::optional<Range> WordReader::Next() {
  if (atEnd_) return std::nullopt;
  Token token = reader_.Next();
  behindWord_ = token.range.begin;
  while (PassesOver(token)) token = reader_.Next();
  if (Takes(token)) {
    ++words_;
    return token.range;
  }
  atEnd_ = true;
  return std::nullopt;
}

Statement ReadStatement(const Script& script, Mark mark) {
  WordReader reader(script, mark);
  Statement statement;
  statement.keyword = mark.keyword;
  statement.range = statement.keywordRange = reader.KeywordRange();
  statement.name = {statement.range.end, statement.range.end};
  const auto nameWord = static_cast<std::size_t>(GrammarOf(mark.keyword).nameWord);
  while (const auto word = reader.Next()) {
    statement.words.push_back(*word);
    statement.range.end = word->end;
    if (statement.words.size() == nameWord) statement.name = *word;
  }
  return statement;
}

Range NameOf(const Script& script, Mark mark) {
  WordReader reader(script, mark);
  const Range none = {reader.KeywordRange().end, reader.KeywordRange().end};
  std::optional<Range> word;
  for (int i = GrammarOf(mark.keyword).nameWord; i > 0; --i) word = reader.Next();
  return word.value_or(none);
}

std::optional<Statement> StatementAt(const Script& script, Position offset) {
  const auto mark = script.LastMarkUpTo(offset);
  if (!mark) return std::nullopt;
  Statement statement = ReadStatement(script, *mark);
  if (!statement.range.Contains(offset)) return std::nullopt;
  return statement;
}

}  // namespace tessel::language
