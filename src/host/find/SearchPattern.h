// What is looked for: a plain text or a regular expression.
#pragma once

#include <QString>
#include <optional>
#include <variant>
#include <vector>

#include "host/find/Expression.h"
#include "host/find/SearchedText.h"
#include "host/find/TextMatch.h"
#include "text/TextSearch.h"

namespace tessel {

/// Made once and used for many searches. It finds nothing in any text when it is empty, has a
/// problem, or has a character that no document can hold.
class SearchPattern {
 public:
  SearchPattern(const QString& wanted, const FindChoices& choices);

  bool Empty() const { return empty_; }
  /// A sentence for the user when it is no valid expression, else empty.
  QString Problem() const;
  /// True when the text has to be there as Unicode.
  bool NeedsUnicode() const { return expression_.has_value(); }
  /// The number of groups that a replacement can name.
  int Groups() const { return expression_ ? expression_->Groups() : 0; }

  using Look = Expression::Look;
  /// Looks for a match that begins at `from` or behind it, through a piece of the text that takes
  /// some milliseconds; RuntimeError as Expression has it. `from` is a place in the text.
  Look LookFrom(SearchedText& text, Position from) const;

  /// The first match that begins in [from, last], however long that takes.
  std::optional<TextMatch> FirstIn(SearchedText& text, Position from, Position last) const;
  /// Where the search for the next match begins.
  Position Behind(const SearchedText& text, const TextMatch& match) const;
  /// The whole match and the places of its groups.
  std::vector<TextMatch> GroupsOf(SearchedText& text, const TextMatch& match) const;

 private:
  bool empty_;
  std::optional<TextPattern> plain_;
  std::optional<Expression> expression_;
};

}  // namespace tessel
