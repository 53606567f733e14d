#include "models/Buttons.h"

namespace tessel {

void OptionButton::SetValue(bool value) {
  Assign(value_, value);
  if (value && other_ != nullptr) other_->Assign(other_->value_, false);
}

void OptionButton::Pair(OptionButton& a, OptionButton& b) {
  a.other_ = &b;
  b.other_ = &a;
}

}  // namespace tessel
