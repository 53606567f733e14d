// The one search of the editor text.
#pragma once

#include <string>
#include <string_view>

#include "text/AnchorScan.h"
#include "text/TextTypes.h"

namespace tessel {

/// Options of a search, by the rich-text editor's own values; they can be added.
enum FindOptions : int { kFindDefault = 0, kFindWholeWord = 2, kFindMatchCase = 4 };

/// A text to look for, made ready to be looked for many times.
///
/// Case is ignored (by the letters of Windows-1252) unless kFindMatchCase is set. With
/// kFindWholeWord an edge of the match that is a word character must not have a word character as
/// its outer neighbour; an edge that is none always qualifies.
class TextPattern {
 public:
  TextPattern(std::string_view wanted, int options);

  Position Length() const { return std::ssize(wanted_); }
  /// The first match that lies in text[start, end), or kNotFound; kNotFound also for an empty
  /// wanted text and a start past the end. Neighbours are looked at beyond the range too.
  Position FindIn(std::string_view text, Position start, Position end) const;

 private:
  bool MatchesAt(std::string_view text, Position at) const;

  std::string wanted_;  // in lower case when case is ignored
  Anchors anchors_;
  ScanFunction scan_;
  bool matchCase_;
  bool aloneBefore_;  // no word character may stand before a match
  bool aloneBehind_;
};

/// One search; see TextPattern.
Position FindText(std::string_view text, std::string_view wanted, Position start, Position end,
                  int options);

}  // namespace tessel
