// A moment in which nothing happens.
#pragma once

#include <QTimer>
#include <chrono>

namespace tessel {

/// Says when nothing has happened for a while. Unlike a timer that is started again each time it
/// costs next to nothing where much happens.
class Pause : public QObject {
  Q_OBJECT

 public:
  explicit Pause(std::chrono::milliseconds length, QObject* parent);

  /// Something has happened: the pause begins anew.
  void Begin();

 signals:
  /// It has lasted for its length, twice that at most.
  void over();

 private:
  void Look();

  QTimer timer_;
  bool again_ = false;
};

}  // namespace tessel
