// A statement: its keyword and the words that belong to it.
#pragma once

#include <optional>
#include <vector>

#include "language/Reader.h"
#include "language/Script.h"

namespace tessel::language {

/// Reads the words of a statement one by one; comments between them are passed over.
class WordReader {
 public:
  WordReader(const Script& script, Mark mark);

  Range KeywordRange() const { return keyword_; }
  /// The next word, or nothing behind the last.
  std::optional<Range> Next();
  /// Behind the last word and the blanks that follow: where a comment, a line break, another
  /// statement or the end of the text begins. Known once Next has given nothing.
  Position End() const { return behindWord_; }

 private:
  bool PassesOver(const Token& token) const;
  bool Takes(const Token& token) const;

  std::string_view text_;
  const Grammar& grammar_;
  Reader reader_;
  Range keyword_;
  Position behindWord_ = kNotFound;
  int words_ = 0;
  bool atEnd_ = false;
};

struct Statement {
  Keyword keyword = Keyword::kDefine;
  Range range;         ///< from the keyword to the last word
  Range keywordRange;  ///< the keyword alone
  Range name;          ///< what it gives or uses; empty where it has none (see Grammar::nameWord)
  std::vector<Range> words;  ///< all behind the keyword
};

Statement ReadStatement(const Script& script, Mark mark);

/// Its name alone; empty, at the end of the keyword, where it has none.
Range NameOf(const Script& script, Mark mark);

/// The statement that a byte belongs to, if any: comments and blanks between its words do, what is
/// behind the last word does not.
std::optional<Statement> StatementAt(const Script& script, Position offset);

}  // namespace tessel::language
