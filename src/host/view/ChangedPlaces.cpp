#include "host/view/ChangedPlaces.h"

#include <algorithm>

namespace tessel {
namespace {

struct Difference {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
};

/// What an edit has left as it was at its ends is no change.
Difference Trimmed(const TextEdit& edit) {
  const auto [removedFrom, insertedFrom] = std::ranges::mismatch(edit.removed, edit.inserted);
  const Position head = removedFrom - edit.removed.begin();
  const std::string_view removed = edit.removed.substr(static_cast<std::size_t>(head));
  const std::string_view inserted = edit.inserted.substr(static_cast<std::size_t>(head));
  const auto differ =
      std::mismatch(removed.rbegin(), removed.rend(), inserted.rbegin(), inserted.rend());
  const Position tail = differ.first - removed.rbegin();
  return {edit.at + head, std::ssize(removed) - tail, std::ssize(inserted) - tail};
}

}  // namespace

void ChangedPlaces::BecomeAll(Position length) {
  places_.clear();
  if (length > 0) places_.push_back({0, length});
}

void ChangedPlaces::Add(const TextEdit& edit) {
  const auto [at, removed, inserted] = Trimmed(edit);
  if (removed == 0 && inserted == 0) return;
  const auto first = std::ranges::lower_bound(places_, at, {}, &ChangedPlace::end);
  const auto last =
      std::upper_bound(first, places_.end(), at + removed,
                       [](Position end, const ChangedPlace& place) { return end < place.start; });
  ChangedPlace place{at, at + removed};
  if (first != last) {
    place = {std::min(place.start, first->start), std::max(place.end, std::prev(last)->end)};
  }
  const Position grown = inserted - removed;
  place.end += grown;
  for (auto behind = last; behind != places_.end(); ++behind) {
    behind->start += grown;
    behind->end += grown;
  }
  if (first == last) {
    places_.insert(first, place);
  } else {
    *first = place;
    places_.erase(std::next(first), last);
  }
}

}  // namespace tessel
