// Which words of a text begin a statement.
#pragma once

#include <optional>
#include <string_view>

#include "language/Keywords.h"
#include "language/Reader.h"

namespace tessel::language {

/// Is told every token of a text, one by one. A reading may start at the begin of any line.
class StatementFinder {
 public:
  explicit StatementFinder(std::string_view text) : text_(text) {}

  /// The keyword of the statement that begins with this token, if one does.
  std::optional<Keyword> Take(const Token& token) {
    if (token.lineBreaks > 0) {
      takesLine_ = false;
      takesWords_ = 0;
    }
    switch (token.kind) {
      case TokenKind::kWord:
        return TakesWord() ? std::nullopt : Begun(KeywordOf(Slice(text_, token.range)));
      case TokenKind::kOpenBrace:
        return takesLine_ ? std::nullopt : Begun(Keyword::kOpenBrace);
      case TokenKind::kCloseBrace:
        return takesLine_ ? std::nullopt : Begun(Keyword::kCloseBrace);
      default:
        return std::nullopt;
    }
  }

  /// Nothing begins a statement any more on this line.
  bool TakesLine() const { return takesLine_; }

 private:
  /// True when the word belongs to the statement before whatever it is.
  bool TakesWord() {
    if (takesLine_) return true;
    if (takesWords_ == 0) return false;
    --takesWords_;
    return true;
  }

  std::optional<Keyword> Begun(std::optional<Keyword> keyword) {
    if (!keyword) return keyword;
    const Grammar& grammar = GrammarOf(*keyword);
    takesLine_ = grammar.form == Form::kLine;
    takesWords_ = grammar.form == Form::kNames ? grammar.nameWord : 0;
    return keyword;
  }

  std::string_view text_;
  bool takesLine_ = false;
  int takesWords_ = 0;
};

}  // namespace tessel::language
