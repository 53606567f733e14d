// The way from one match to the next or the one before.
#pragma once

#include <QDeadlineTimer>
#include <optional>

#include "host/find/MatchScan.h"

namespace tessel {

enum class Direction { kForward, kBackward };

/// Looks for the nearest match from a place on, slice by slice, and goes on at the other end of the
/// area when there is none. Pattern and text outlive it.
class MatchStep {
 public:
  /// Forward: the first match that begins at `from` or behind it. Backward: the last one that
  /// begins before it. `from` lies in the area.
  MatchStep(const SearchPattern& pattern, SearchedText& text, const SearchArea& area, Position from,
            Direction direction);

  /// Goes on until then, or until it is over: returns true then. A RuntimeError ends it.
  bool Work(const QDeadlineTimer& until);

  /// Nothing before it is over, or when there is no match.
  const std::optional<TextMatch>& Found() const { return found_; }
  /// It had to go on at the other end.
  bool Wrapped() const { return wrapped_; }
  bool Over() const { return over_; }
  Direction Way() const { return direction_; }

 private:
  void LookOnce();
  void BeginPiece(Position edge);
  void EndPiece();
  Position LineStart(Position at) const;

  const SearchPattern& pattern_;
  SearchedText& text_;
  SearchArea area_;
  Position from_;
  Direction direction_;
  Position at_ = 0;    // where the piece is looked at next
  Position last_ = 0;  // the last place of the piece at which a match may begin
  Position first_ = 0;
  std::optional<TextMatch> found_;
  bool wrapped_ = false;
  bool over_ = false;
};

}  // namespace tessel
