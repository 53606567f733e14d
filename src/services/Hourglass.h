// The hourglass pointer of long work.
#pragma once

#include "services/Services.h"

namespace tessel {

/// The hourglass while this lives, the default pointer afterwards.
class Hourglass {
 public:
  explicit Hourglass(ScreenPointer& pointer) : pointer_(pointer) {
    pointer_.SetShape(PointerShape::kHourglass);
  }
  ~Hourglass() { pointer_.SetShape(PointerShape::kDefault); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  ScreenPointer& pointer_;
};

}  // namespace tessel
