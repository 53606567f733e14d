#include "documents/DocumentSlots.h"

#include "text/Text.h"

namespace tessel {

int CurrentDocIndex(const HostedControls& controls) { return controls.tbsRtb.Selected() - 1; }

RichTextBox& CurrentEditor(HostedControls& controls) {
  return controls.rtbCon[CurrentDocIndex(controls)];
}

int GetFreeEditorIndex(HostedControls& controls) {
  return controls.tbsRtb.At(1).tag.empty() ? 0 : LoadNewEditor(controls);
}

int LoadNewEditor(HostedControls& controls) {
  RichTextBox& editor = controls.rtbCon.Load();
  editor.SetContainer(&controls.picRtb);
  editor.SetTop(controls.rtbCon[0].Top());
  editor.SetWidth(controls.rtbCon[0].Width());
  editor.SetLeft(kParkedLeft);
  return editor.Index();
}

void AddDocumentTab(HostedControls& controls, const std::string& name) {
  controls.tbsRtb.Add({AsciiLower(name), {}, {}, kBlackDot});
}

void MarkModified(HostedControls& controls, int slot) {
  if (controls.rtbCon[slot].Left() != 0) return;
  if (controls.tbsRtb.At(slot + 1).image != kRedDot) controls.tbsRtb.SetTabImage(slot + 1, kRedDot);
}

bool CategorySelected(const HostedControls& controls, const std::string& key) {
  return EqualIgnoringAsciiCase(controls.tbsCon.At(controls.tbsCon.Selected()).key, key);
}

}  // namespace tessel
