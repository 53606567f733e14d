// Work on an editor that nobody is to see.
#pragma once

#include "models/RichTextBox.h"

namespace tessel {

/// An editor out of sight while this lives: not visible and parked, so that its changes mark no
/// document as modified and nobody sees the selection move. It comes back however the scope ends.
class Parked {
 public:
  /// The editor's left edge afterwards: in front, where it was, or parked until its tab is
  /// selected.
  enum class Left { kInFront, kAsBefore, kParked };
  /// With kHidden the selection is not drawn meanwhile, and the work begins with the caret at 0;
  /// afterwards it is drawn again, with the caret at 0.
  enum class Selection { kLeave, kHidden };

  Parked(RichTextBox& editor, Left left, Selection selection = Selection::kLeave);
  ~Parked();
  Parked(const Parked&) = delete;
  Parked& operator=(const Parked&) = delete;

 private:
  RichTextBox& editor_;
  Twips left_;
  Selection selection_;
};

}  // namespace tessel
