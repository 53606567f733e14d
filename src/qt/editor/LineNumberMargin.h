// The margin that numbers the lines.
#pragma once

#include <QtGlobal>

class QsciScintillaBase;

namespace tessel {

/// As wide as the number of the last line. The widget must outlive it.
class LineNumberMargin {
 public:
  explicit LineNumberMargin(QsciScintillaBase& widget);

  /// The number of lines may have changed.
  void FollowLines();
  /// The size of the digits has changed.
  void Fit();

 private:
  QsciScintillaBase& widget_;
  qsizetype digits_ = 0;
};

}  // namespace tessel
