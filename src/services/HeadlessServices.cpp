#include "services/HeadlessServices.h"

namespace tessel {

void PlainScreenPointer::SetShape(PointerShape shape) {
  if (shape == shape_) return;
  shape_ = shape;
  Changed.Raise(shape);
}

}  // namespace tessel
