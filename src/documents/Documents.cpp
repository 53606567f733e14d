#include "documents/Documents.h"

#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "colouring/Colouring.h"
#include "documents/DocumentSlots.h"
#include "documents/RecentFiles.h"
#include "documents/Templates.h"
#include "services/Paths.h"
#include "settings/Levels.h"
#include "text/Text.h"

namespace tessel {
namespace {

/// A document that there is no room for counts as a file that cannot be read.
std::string ReadDocument(Files& files, const std::string& path) {
  std::string bytes = files.Read(path);
  try {
    // The editor keeps a colour for each byte. Better known before anything is switched.
    ::operator delete(::operator new(bytes.size()));
  } catch (const std::bad_alloc&) {
    throw RuntimeError("Cannot open " + path + ": Cannot allocate memory.");
  }
  return bytes;
}

}  // namespace

Documents::Documents(HostedControls& controls, const Services& services, Levels& levels,
                     const std::string& conPath, StatusText status)
    : controls_(controls),
      services_(services),
      levels_(levels),
      conPath_(conPath),
      status_(std::move(status)) {}

void Documents::ApplyColourMode() {
  tessel::ApplyColourMode(controls_, services_.pointer, status_);
}

void Documents::ShowSelectedDocument() {
  const int current = CurrentDocIndex(controls_);
  for (int slot = 0; slot < controls_.tbsRtb.Count(); ++slot) {
    RichTextBox& editor = controls_.rtbCon[slot];
    if (slot != current) {
      editor.SetLeft(kParkedLeft);
      continue;
    }
    editor.SetLeft(0);
    editor.SetWidth(controls_.picRtb.Width() - 60);
    editor.SetHeight(controls_.picRtb.Height() - 60);
    controls_.tbToolBar.SetPressed("Colorize", editor.Tag() == kColourMode);
  }
  controls_.cboEpisode.Clear();
  if (CategorySelected(controls_, "LEVEL")) {
    levels_.ClearBoxes();
    levels_.FillLevelList();
  }
}

bool Documents::ReportMissing(const std::string& path) {
  if (FileExists(services_.files, path)) return false;
  services_.messages.Show("File " + path + " not found.", MessageIcon::kExclamation, kProgramTitle,
                          MessageButtons::kOk);
  return true;
}

int Documents::PrepareSlot(const std::string& name) {
  const int slot = GetFreeEditorIndex(controls_);
  if (slot > controls_.tbsRtb.Count() - 1) AddDocumentTab(controls_, name);
  return slot;
}

void Documents::NewFromTemplate(const std::string& code) {
  const std::string_view file = TemplateFile(code);
  const char separator = services_.files.Separator();
  const std::string path =
      file.empty() ? std::string()
                   : services_.hostDirectory +
                         BackslashIfNeeded(services_.hostDirectory, separator) + std::string(file);
  if (ReportMissing(path)) return;
  std::string bytes =
      ReadDocument(services_.files, path);  // first: a file that cannot be read opens nothing

  const int slot = PrepareSlot(kUntitled);
  controls_.tbsRtb.SetTabCaption(slot + 1, kUntitled);
  controls_.tbsRtb.SetTabTag(slot + 1, kUntitled);
  RichTextBox& editor = controls_.rtbCon[slot];
  editor.LoadFile(path, std::move(bytes));
  editor.SetVisible(false);
  editor.SetLeft(kParkedLeft);
  ApplyColourMode();  // of the document that is still the current one
  editor.SetVisible(true);
  controls_.tbsRtb.Select(controls_.tbsRtb.Count());
  controls_.tbsRtb.SetTabImage(controls_.tbsRtb.Count(), kBlackDot);
  if (CategorySelected(controls_, "LEVEL")) levels_.Restart();
}

void Documents::OpenFile(const std::string& path) {
  if (path.empty()) return OpenWithDialog();
  if (ReportMissing(path)) return;

  const std::string name = NameOfPath(path, services_.files.Separator());
  TabStrip& tabs = controls_.tbsRtb;
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    if (tabs.At(tab).tag == path && EqualIgnoringAsciiCase(tabs.At(tab).caption, name)) {
      return tabs.Select(tab);
    }
  }
  std::string bytes =
      ReadDocument(services_.files, path);  // first: a file that cannot be read opens nothing

  const int slot = PrepareSlot(name);
  tabs.SetTabCaption(slot + 1, AsciiLower(name));
  tabs.SetTabTag(slot + 1, path);
  RichTextBox& editor = controls_.rtbCon[slot];
  editor.SetVisible(false);
  editor.SetLeft(kParkedLeft);
  editor.LoadFile(path, std::move(bytes));
  editor.SetTag(kPlainMode);
  ApplyColourMode();  // of the document that is still the current one
  AddRecentFile(controls_.tbToolBar, services_.settings, name, path);
  editor.SetVisible(true);
  tabs.Select(tabs.Count());
  tabs.SetTabImage(tabs.Count(), kBlackDot);
  levels_.Restart();
}

std::optional<std::vector<std::string>> Documents::ShowFileDialog(FileDialogRequest::Kind kind,
                                                                  int flags) {
  FileDialogRequest request;
  request.kind = kind;
  request.filter = "CON Files (*.con)|*.con";
  request.flags = flags;
  request.initDir = conPath_;
  return controls_.dlgCommon.Show(services_.fileDialogs, services_.files, request);
}

void Documents::OpenWithDialog() {
  const auto chosen = ShowFileDialog(FileDialogRequest::Kind::kOpen,
                                     kExplorerStyle | kAllowMultiSelect | kHideReadOnly);
  if (!chosen) return;
  for (const std::string& path : *chosen) OpenFile(path);
}

bool Documents::SaveWithDialog(const RichTextBox& editor, const std::string& tag) {
  const HeldFile before = controls_.dlgCommon.Held();
  if (!ShowFileDialog(FileDialogRequest::Kind::kSave, kOverwritePrompt | kHideReadOnly))
    return false;
  const HeldFile& held = controls_.dlgCommon.Held();
  try {
    services_.files.Write(held.fileName, editor.Bytes());
  } catch (const RuntimeError&) {
    controls_.dlgCommon.SetHeld(before);
    throw;
  }
  if (tag != held.fileName) {
    AddRecentFile(controls_.tbToolBar, services_.settings, held.fileTitle, held.fileName);
  }
  return true;
}

void Documents::SaveDocument(bool inPlace) {
  const int slot = CurrentDocIndex(controls_);
  const RichTextBox& editor = controls_.rtbCon[slot];
  const std::string tag = controls_.tbsRtb.At(slot + 1).tag;
  if (!inPlace || tag == kUntitled || tag.empty()) {
    if (!SaveWithDialog(editor, tag)) return;
  } else {
    services_.files.SetAttributesNormal(tag);
    services_.files.Write(tag, editor.Bytes());
  }
  // An in-place save, too, takes over whatever the dialog last held.
  const HeldFile& held = controls_.dlgCommon.Held();
  controls_.tbsRtb.SetTabImage(slot + 1, kBlackDot);
  controls_.tbsRtb.SetTabCaption(slot + 1, AsciiLower(held.fileTitle));
  controls_.tbsRtb.SetTabTag(slot + 1, held.fileName);
}

void Documents::ReloadDocument() {
  const int slot = CurrentDocIndex(controls_);
  RichTextBox& editor = controls_.rtbCon[slot];
  const std::string path = controls_.tbsRtb.At(slot + 1).tag;
  const Position caret = editor.SelStart();
  const bool coloured = editor.Tag() == kColourMode;
  editor.LoadFile(path, ReadDocument(services_.files, path));
  editor.SetTag(kPlainMode);
  if (coloured) ColorizeDocument(editor, status_);
  editor.SetSelStart(caret);
  controls_.tbsRtb.SetTabImage(slot + 1, kBlackDot);
  levels_.Restart();
}

bool Documents::ConfirmClose(int slot) {
  const auto modified = [&] { return controls_.tbsRtb.At(slot + 1).image == kRedDot; };
  if (!modified()) return true;
  const MessageAnswer answer =
      services_.messages.Show("Save changes to " + controls_.rtbCon[slot].FileName() + "?",
                              MessageIcon::kNone, "", MessageButtons::kYesNoCancel);
  if (answer == MessageAnswer::kYes) {
    SaveDocument(false);
    return !modified();
  }
  return answer == MessageAnswer::kNo;
}

void Documents::CloseDocument(int slot) {
  if (ConfirmClose(slot)) RemoveSlot(slot);
}

bool Documents::CloseAll() {
  TabStrip& tabs = controls_.tbsRtb;
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    if (tabs.At(tab).image != kRedDot) continue;
    tabs.Select(tab);
    if (!ConfirmClose(tab - 1)) return false;
  }
  for (int slot = tabs.Count() - 1; slot >= 0; --slot) RemoveSlot(slot);
  return true;
}

void Documents::ClearTab(int tab) {
  controls_.tbsRtb.SetTabCaption(tab, "");
  controls_.tbsRtb.SetTabImage(tab, "");
  controls_.tbsRtb.SetTabTag(tab, "");
}

void Documents::RemoveSlot(int slot) {
  TabStrip& tabs = controls_.tbsRtb;
  const int count = tabs.Count();
  controls_.rtbCon[slot].SetTag("");
  if (count == 1) {
    controls_.rtbCon[slot].SetText("");
    ClearTab(1);
    return;
  }
  // The documents behind move up: text, caption, image and path, nothing else.
  for (int j = slot; j < count - 1; ++j) {
    controls_.rtbCon[j].SetText(controls_.rtbCon[j + 1].Text());
    const Tab next = tabs.At(j + 2);
    tabs.SetTabCaption(j + 1, next.caption);
    tabs.SetTabImage(j + 1, next.image);
    tabs.SetTabTag(j + 1, next.tag);
  }
  controls_.rtbCon.UnloadLast();
  ClearTab(count);
  tabs.Remove(count);
  tabs.Select(slot == count - 1 ? count - 1 : slot + 1);
}

}  // namespace tessel
