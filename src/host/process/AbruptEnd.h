// What is done when the program is told to end, loses its display, or cannot go on.
#pragma once

#include <QObject>
#include <functional>

namespace tessel {

/// While one lives, SIGTERM, SIGHUP, SIGINT, a display that goes away and an exception that nobody
/// catches run `keep` before the program ends as it would have. Only one can live at a time. A
/// second signal of the same kind ends the program at once, also when it is busy.
class AbruptEnd : public QObject {
  Q_OBJECT

 public:
  explicit AbruptEnd(std::function<void()> keep);
  ~AbruptEnd() override;

 private:
  void TakeSignal();
};

}  // namespace tessel
