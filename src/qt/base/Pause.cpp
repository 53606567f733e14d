#include "qt/base/Pause.h"

#include <utility>

namespace tessel {

Pause::Pause(std::chrono::milliseconds length, QObject* parent) : QObject(parent) {
  timer_.setSingleShot(true);
  timer_.setInterval(length);
  connect(&timer_, &QTimer::timeout, this, &Pause::Look);
}

void Pause::Begin() {
  again_ = timer_.isActive();
  if (!again_) timer_.start();
}

void Pause::Look() {
  if (std::exchange(again_, false)) return timer_.start();
  emit over();
}

}  // namespace tessel
