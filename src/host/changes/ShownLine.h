// A line of a difference as it is drawn.
#pragma once

#include <QList>
#include <QString>

#include "host/changes/LineDifference.h"

namespace tessel {

/// Characters of a line.
struct ShownStretch {
  qsizetype at = 0;
  qsizetype length = 0;

  friend bool operator==(const ShownStretch&, const ShownStretch&) = default;
};

/// What a row shows, one character wide each: tabs as blanks, control characters as their pictures,
/// of a very long line a part. Where two lines differ in how they end alone, that is named behind.
struct ShownLine {
  QString text;
  QList<ShownStretch> changed;  ///< its words that the other text does not have
};

ShownLine ShownLineOf(const LineDifference& difference, const DifferenceRow& row, int tabWidth);

/// At most so many characters of a line are shown.
inline constexpr qsizetype kLongestShown = 2000;

}  // namespace tessel
