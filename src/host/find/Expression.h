// A regular expression whose search ends, whatever it says.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "host/find/TextMatch.h"

namespace tessel {

/// "^" and "$" stand at every line end: CR, LF, CR LF. Letters are those of Unicode. No match
/// begins between a CR and its LF, unless the expression names one of them.
///
/// A search goes forward window by window. What an expression may try is limited for all places of
/// a window together, and windows become smaller where they take long.
class Expression {
 public:
  Expression(const QString& wanted, const FindChoices& choices);

  /// A sentence for the user when it cannot be used, else empty.
  const QString& Problem() const { return problem_; }
  /// The number of its groups.
  int Groups() const { return alone_.captureCount(); }

  struct Look {
    std::optional<TextMatch> match;
    Position next = 0;  ///< without a match: where to look next
  };
  /// Looks at the places from `from` on that belong to one window. A RuntimeError says that the
  /// expression is too complex for the text.
  Look LookFrom(const QString& text, Position from) const;

  /// The groups of a match that LookFrom has found, the whole match first. One that takes no part
  /// is empty.
  std::vector<TextMatch> GroupsOf(const QString& text, const TextMatch& match) const;

 private:
  QRegularExpressionMatch MatchAt(const QString& text, Position at) const;
  void ChooseWindow(double milliseconds) const;

  QString problem_;
  bool namesBreaks_ = false;
  QRegularExpression alone_;
  static constexpr std::array kWindows = {1, 64, 4096};
  std::array<QRegularExpression, kWindows.size()> windows_;
  mutable std::size_t window_ = 0;  // a place in both
};

}  // namespace tessel
