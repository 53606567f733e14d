// Pasting into boxes.
#pragma once

#include <QObject>

namespace tessel {

/// Before a box (of one line or several, alone or in a list or a number box) asks the clipboard,
/// looks whether the program that has it answers: the toolkit would wait several seconds for it. If
/// not, the box stays as it is and says so. An event filter, of a box or of the application; only
/// there it sees the box's own menu, too.
class BoxPaste : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tessel
