// The places that a person came from.
#pragma once

#include <optional>
#include <vector>

#include "surface/Document.h"
#include "text/ChangedRange.h"

namespace tessel {

struct Place {
  Slot slot{};
  Position at = 0;

  friend bool operator==(const Place&, const Place&) = default;
};

/// The way back and forward through the open documents. Places follow the edits in front of them,
/// and go with their documents.
class PlaceHistory {
 public:
  static constexpr std::size_t kMost = 100;

  /// Somebody goes elsewhere from here. There is no way forward any more.
  void Leave(const Place& from);
  /// Where to go from here; nothing where there is no way.
  std::optional<Place> Back(const Place& from) { return Go(from, behind_, ahead_); }
  std::optional<Place> Forward(const Place& from) { return Go(from, ahead_, behind_); }

  void Changed(Slot slot, const ChangedRange& change);
  void Dropped(Slot slot);
  void Moved(Slot from, Slot to);

 private:
  using Places = std::vector<Place>;  // the next last

  static std::optional<Place> Go(const Place& from, Places& there, Places& back);
  template <class Change>
  void ForEach(const Change& change);

  Places behind_;
  Places ahead_;
};

}  // namespace tessel
