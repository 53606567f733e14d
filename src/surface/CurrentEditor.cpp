#include "surface/CurrentEditor.h"

namespace tessel {

Slot CurrentDocIndex(const HostedControls& controls) {
  return SlotOf(TabNumber{controls.tbsRtb.Selected()});
}

RichTextBox& CurrentEditor(HostedControls& controls) {
  return controls.rtbCon[Index(CurrentDocIndex(controls))];
}

}  // namespace tessel
