// All matches of a pattern in a text, found slice by slice.
#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <cstddef>
#include <vector>

#include "host/find/SearchPattern.h"

namespace tessel {

/// A stretch of a text in which is searched.
struct SearchArea {
  Position start = 0;
  Position end = 0;

  friend bool operator==(const SearchArea&, const SearchArea&) = default;
};

/// Finds the matches from the front to the back; none overlaps the one before it. Pattern and text
/// outlive it.
class MatchScan {
 public:
  /// It gives up behind `most` matches. Matches that reach over the area's end do not count.
  MatchScan(const SearchPattern& pattern, SearchedText& text, const SearchArea& area,
            std::size_t most);

  /// Goes on until then, or until it is over: returns true then. A RuntimeError ends it.
  bool Work(const QDeadlineTimer& until);

  bool Over() const { return over_; }
  bool TooMany() const { return matches_.size() > most_; }
  const std::vector<TextMatch>& Matches() const { return matches_; }
  /// All matches that begin before it are known.
  Position Reached() const { return at_; }

 private:
  void LookOnce();
  void Take(const TextMatch& match);

  const SearchPattern& pattern_;
  SearchedText& text_;
  SearchArea area_;
  std::size_t most_;
  std::vector<TextMatch> matches_;
  Position at_;
  bool over_ = false;
  qint64 spent_ = 0;  // nanoseconds
};

}  // namespace tessel
