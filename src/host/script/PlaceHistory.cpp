#include "host/script/PlaceHistory.h"

namespace tessel {

void PlaceHistory::Leave(const Place& from) {
  ahead_.clear();
  if (!behind_.empty() && behind_.back() == from) return;
  behind_.push_back(from);
  if (behind_.size() > kMost) behind_.erase(behind_.begin());
}

std::optional<Place> PlaceHistory::Go(const Place& from, Places& there, Places& back) {
  while (!there.empty() && there.back() == from) there.pop_back();
  if (there.empty()) return std::nullopt;
  const Place to = there.back();
  there.pop_back();
  back.push_back(from);
  return to;
}

template <class Change>
void PlaceHistory::ForEach(const Change& change) {
  for (Place& place : behind_) change(place);
  for (Place& place : ahead_) change(place);
}

void PlaceHistory::Changed(Slot slot, const ChangedRange& change) {
  ForEach([&](Place& place) {
    if (place.slot == slot) place.at = change.Moved(place.at);
  });
}

void PlaceHistory::Dropped(Slot slot) {
  const auto isThere = [&](const Place& place) { return place.slot == slot; };
  std::erase_if(behind_, isThere);
  std::erase_if(ahead_, isThere);
}

void PlaceHistory::Moved(Slot from, Slot to) {
  ForEach([&](Place& place) {
    if (place.slot == from) place.slot = to;
  });
}

}  // namespace tessel
