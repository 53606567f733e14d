// In which order the open documents were used.
#pragma once

#include <vector>

#include "surface/DocumentList.h"

namespace tessel {

/// Remembers the order in which documents came to the front. Going back several steps while a key
/// is held counts as one use, of the document that is in front in the end.
class LastUsed {
 public:
  /// `documents` outlives this.
  explicit LastUsed(DocumentList& documents);

  /// The document that was used before the one in front; after further calls those before it, and
  /// round again. Nothing when there is one only.
  std::optional<Slot> StepBack();
  /// The document in front is the one that was wanted.
  void Settle();

  /// The newest first.
  const std::vector<Slot>& Order() const { return order_; }

 private:
  void OnShown(Slot slot);
  void OnMoved(Slot from, Slot to);
  void KeepOpenOnes();

  DocumentList& documents_;
  std::vector<Slot> order_;
  std::size_t step_ = 0;  // how far StepBack went
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
