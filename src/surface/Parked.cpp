#include "surface/Parked.h"

namespace tessel {
namespace {

Twips LeftAfterwards(const RichTextBox& editor, Parked::Left left) {
  switch (left) {
    case Parked::Left::kInFront:
      return 0;
    case Parked::Left::kAsBefore:
      return editor.Left();
    case Parked::Left::kParked:
      break;
  }
  return kParkedLeft;
}

}  // namespace

Parked::Parked(RichTextBox& editor, Left left, Selection selection)
    : editor_(editor), left_(LeftAfterwards(editor, left)), selection_(selection) {
  editor_.SetVisible(false);
  editor_.SetLeft(kParkedLeft);
  if (selection_ == Selection::kLeave) return;
  editor_.SetHideSelection(true);
  editor_.SetSelStart(0);
}

Parked::~Parked() {
  if (selection_ == Selection::kHidden) {
    editor_.SetHideSelection(false);
    editor_.SetSelStart(0);
  }
  editor_.SetLeft(left_);
  editor_.SetVisible(true);
}

}  // namespace tessel
