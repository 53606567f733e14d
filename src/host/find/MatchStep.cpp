#include "host/find/MatchStep.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

/// Backward, the matches of a piece are found from its front; the last one is what is wanted.
constexpr Position kBackwardPiece = 64L * 1024;
constexpr Position kLongestLine = 4L * 1024;

}  // namespace

MatchStep::MatchStep(const SearchPattern& pattern, SearchedText& text, const SearchArea& area,
                     Position from, Direction direction)
    : pattern_(pattern), text_(text), area_(area), from_(from), direction_(direction) {
  over_ = pattern.Empty() || !pattern.Problem().isEmpty();
  BeginPiece(direction == Direction::kForward ? from : from - 1);
}

Position MatchStep::LineStart(Position at) const {
  const std::string_view before = text_.Bytes().substr(0, static_cast<std::size_t>(at));
  const auto lineBreak = before.find_last_of("\r\n");
  const Position start = lineBreak == before.npos ? 0 : static_cast<Position>(lineBreak) + 1;
  return at - start > kLongestLine ? at : start;
}

/// Forward, a piece goes from its edge to the end of what is left; backward its edge is the last
/// place of a few lines.
void MatchStep::BeginPiece(Position edge) {
  if (direction_ == Direction::kForward) {
    first_ = edge;
    last_ = wrapped_ ? from_ - 1 : area_.end;
  } else {
    last_ = edge;
    first_ = LineStart(std::max<Position>(edge - kBackwardPiece, 0));
    first_ = std::max(first_, wrapped_ ? from_ : area_.start);
  }
  at_ = first_;
}

void MatchStep::EndPiece() {
  const bool forward = direction_ == Direction::kForward;
  if (found_) {
    over_ = true;
  } else if (!forward && first_ > (wrapped_ ? from_ : area_.start)) {
    BeginPiece(first_ - 1);
  } else if (wrapped_) {
    over_ = true;
  } else {
    wrapped_ = true;
    BeginPiece(forward ? area_.start : area_.end);
  }
}

bool MatchStep::Work(const QDeadlineTimer& until) {
  try {
    while (!over_ && !until.hasExpired()) LookOnce();
  } catch (const RuntimeError&) {
    over_ = true;
    throw;
  }
  return over_;
}

void MatchStep::LookOnce() {
  if (pattern_.NeedsUnicode() && !text_.TranslateSome()) return;
  if (at_ > last_) return EndPiece();
  const SearchPattern::Look look = pattern_.LookFrom(text_, at_);
  if (!look.match) {
    at_ = look.next;
    return;
  }
  const bool inside = look.match->start <= last_ && look.match->End() <= area_.end;
  if (inside) found_ = look.match;
  const bool enough = !inside || direction_ == Direction::kForward;
  at_ = enough ? last_ + 1 : pattern_.Behind(text_, *look.match);
}

}  // namespace tessel
