#include "host/find/SearchPattern.h"

#include <algorithm>

#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

constexpr Position kPlainPiece = 1'000'000;

int OptionsOf(const FindChoices& choices) {
  return (choices.wholeWord ? kFindWholeWord : kFindDefault) |
         (choices.matchCase ? kFindMatchCase : kFindDefault);
}

}  // namespace

SearchPattern::SearchPattern(const QString& wanted, const FindChoices& choices)
    : empty_(wanted.isEmpty()) {
  if (empty_) return;
  if (choices.regularExpression) {
    expression_.emplace(wanted, choices);
  } else if (const auto bytes = BytesOfText(wanted)) {
    plain_.emplace(*bytes, OptionsOf(choices));
  }
}

QString SearchPattern::Problem() const { return expression_ ? expression_->Problem() : QString(); }

SearchPattern::Look SearchPattern::LookFrom(SearchedText& text, Position from) const {
  const Position behind = text.Length() + 1;
  if (expression_ && expression_->Problem().isEmpty()) {
    return expression_->LookFrom(text.Unicode(), from);
  }
  if (!plain_) return {std::nullopt, behind};
  const Position next = std::min(from + kPlainPiece, behind);
  const Position found = plain_->FindIn(text.Bytes(), from, next - 1 + plain_->Length());
  if (found == kNotFound) return {std::nullopt, next};
  return {TextMatch{found, plain_->Length()}, next};
}

std::optional<TextMatch> SearchPattern::FirstIn(SearchedText& text, Position from,
                                                Position last) const {
  last = std::min(last, text.Length());
  while (from <= last) {
    const Look look = LookFrom(text, from);
    if (look.match) return look.match->start <= last ? look.match : std::nullopt;
    from = look.next;
  }
  return std::nullopt;
}

Position SearchPattern::Behind(const SearchedText& text, const TextMatch& match) const {
  if (match.length > 0) return match.End();
  return text.Bytes().substr(match.start, 2) == "\r\n" ? match.start + 2 : match.start + 1;
}

std::vector<TextMatch> SearchPattern::GroupsOf(SearchedText& text, const TextMatch& match) const {
  if (!expression_) return {match};
  return expression_->GroupsOf(text.Unicode(), match);
}

}  // namespace tessel
