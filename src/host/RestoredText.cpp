#include "host/RestoredText.h"

#include "documents/DocumentSlots.h"
#include "services/Paths.h"

namespace tessel {
namespace {

bool HasOwnChanges(const TabStrip& tabs, const std::string& path) {
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    if (tabs.At(tab).tag == path && tabs.At(tab).image == kRedDot) return true;
  }
  return false;
}

bool ShowUnchangedDocument(ucTessel& tessel, Files& files, const std::string& path) {
  const TabStrip& tabs = tessel.Controls().tbsRtb;
  if (path.empty() || !FileExists(files, path) || HasOwnChanges(tabs, path)) return false;
  tessel.OpenFile(path);
  const Tab& shown = tabs.At(tabs.Selected());
  return shown.tag == path && shown.image != kRedDot;
}

void ReplaceText(RichTextBox& editor, const std::string& bytes) {
  if (editor.Bytes() == bytes) return;
  editor.SelectByHand(0, editor.Length());
  if (editor.Length() > 0) editor.SetSelColor(kBlack);  // else all takes the first one's colour
  editor.Type(bytes);
  editor.SetSelStart(0);
}

/// The slot of the start tab while nothing is in it, else a new one. The control itself takes a tab
/// for free when it has no path, whatever text is in it.
int EmptySlot(HostedControls& controls) {
  const Tab& start = controls.tbsRtb.At(1);
  const bool unused = controls.tbsRtb.Count() == 1 && start.tag.empty() && start.image != kRedDot &&
                      controls.rtbCon[0].Length() == 0;
  if (unused) return 0;
  const int slot = LoadNewEditor(controls);
  AddDocumentTab(controls, kUntitled);
  return slot;
}

void ShowNewDocument(HostedControls& controls, const std::string& bytes) {
  const int slot = EmptySlot(controls);
  controls.tbsRtb.SetTabCaption(slot + 1, kUntitled);
  controls.tbsRtb.SetTabTag(slot + 1, kUntitled);
  RichTextBox& editor = controls.rtbCon[slot];
  editor.LoadFile(kUntitled, bytes);
  editor.SetTag(kPlainMode);
  controls.tbsRtb.Select(slot + 1);
  controls.tbsRtb.SetTabImage(slot + 1, kRedDot);
}

}  // namespace

bool ShowRestoredText(ucTessel& tessel, Files& files, const std::string& path,
                      const std::string& bytes) {
  bool shown = false;
  tessel.RunCommand([&] {
    if (!ShowUnchangedDocument(tessel, files, path)) return;
    ReplaceText(CurrentEditor(tessel.Controls()), bytes);
    shown = true;
  });
  if (shown) return true;
  tessel.RunCommand([&] {
    ShowNewDocument(tessel.Controls(), bytes);
    shown = true;
  });
  return shown;
}

}  // namespace tessel
