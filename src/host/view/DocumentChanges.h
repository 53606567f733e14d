// What has changed in each document since it was opened or saved.
#pragma once

#include <optional>
#include <vector>

#include "control/ucTessel.h"
#include "host/view/ChangedPlaces.h"

namespace tessel {

class DocumentChanges {
 public:
  /// `tessel` outlives this.
  explicit DocumentChanges(ucTessel& tessel);

  std::span<const ChangedPlace> Of(Slot slot) const { return At(slot).All(); }

  /// They are others now, or stand elsewhere. In the midst of things.
  Event<Slot> Changed;

 private:
  void Follow(RichTextBox& editor);
  void OnReset(Slot slot, const RichTextBox& editor);
  void Forget(const Document& document);
  void Moved(Slot from, Slot to);
  ChangedPlaces& At(Slot slot) const;

  ucTessel& tessel_;
  mutable std::vector<ChangedPlaces> places_;                // by slot
  std::optional<std::pair<Slot, ChangedPlaces>> converted_;  // as they were before a conversion
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
