#include "host/menu/LastUsed.h"

#include <algorithm>

namespace tessel {

LastUsed::LastUsed(DocumentList& documents) : documents_(documents) {
  subscriptions_ = {
      documents_.Shown.Connect([this](const Document& document) { OnShown(document.Place()); }),
      documents_.AboutToDrop.Connect(
          [this](const Document& document) { std::erase(order_, document.Place()); }),
      documents_.Moved.Connect([this](Slot from, Slot to) { OnMoved(from, to); }),
  };
}

std::optional<Slot> LastUsed::StepBack() {
  KeepOpenOnes();
  if (order_.size() < 2) return std::nullopt;
  step_ = (step_ + 1) % order_.size();
  return order_[step_];
}

void LastUsed::Settle() {
  step_ = 0;
  OnShown(documents_.Current().Place());
}

void LastUsed::OnShown(Slot slot) {
  if (step_ > 0) return;
  std::erase(order_, slot);
  order_.insert(order_.begin(), slot);
}

void LastUsed::OnMoved(Slot from, Slot to) { std::ranges::replace(order_, from, to); }

// Documents that have not been in front yet come last, in the order of their tabs.
void LastUsed::KeepOpenOnes() {
  std::erase_if(order_, [this](Slot slot) { return Index(slot) >= documents_.Count(); });
  for (int index = 0; index < documents_.Count(); ++index) {
    if (!std::ranges::count(order_, Slot{index})) order_.push_back(Slot{index});
  }
}

}  // namespace tessel
