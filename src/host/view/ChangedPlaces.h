// Where a text differs from what it was.
#pragma once

#include <span>
#include <vector>

#include "text/TextStore.h"

namespace tessel {

/// A stretch of a text, in bytes. Where something was removed it may be empty.
struct ChangedPlace {
  Position start = 0;
  Position end = 0;

  friend bool operator==(const ChangedPlace&, const ChangedPlace&) = default;
};

/// The places of a text that edits have changed. An edit costs a look at the places behind it,
/// never at the text.
class ChangedPlaces {
 public:
  /// The text is as it should be.
  void Clear() { places_.clear(); }
  /// Another text, of that length, has taken its place.
  void BecomeAll(Position length);
  void Add(const TextEdit& edit);

  /// In their order; none touches another.
  std::span<const ChangedPlace> All() const { return places_; }

 private:
  std::vector<ChangedPlace> places_;
};

}  // namespace tessel
