#include "documents/Documents.h"

#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "documents/RecentFiles.h"
#include "documents/Templates.h"
#include "documents/UnfinishedDocument.h"
#include "services/Paths.h"
#include "surface/Parked.h"
#include "text/Text.h"

namespace tessel {
namespace {

/// Before anything is switched: a file that cannot be read, or that there is no room for, opens
/// nothing.
PreparedText ReadDocument(Files& files, const std::string& path) {
  try {
    return files.Read(path);
  } catch (const std::bad_alloc&) {
    throw RuntimeError("Cannot open " + path + ": Cannot allocate memory.");
  }
}

}  // namespace

void Documents::ShowSelectedDocument() {
  const Document current = uses_.list.Current();
  for (const Document& document : uses_.list.All()) {
    if (document != current) {
      document.Park();
      continue;
    }
    document.BringToFront();
    uses_.tbToolBar.SetPressed("Colorize", document.Mode() == ColourMode::kColoured);
  }
  uses_.list.Shown.Raise(current);
}

void Documents::MarkModified(Slot slot) {
  const Document document = uses_.list.At(slot);
  if (document.MarkModified()) uses_.list.Changed.Raise(document);
}

void Documents::EditorChanged(Slot slot) {
  const Document document = uses_.list.At(slot);
  document.MarkModified();
  uses_.list.Changed.Raise(document);
}

bool Documents::ReportMissing(const std::string& path) {
  if (FileExists(uses_.files, path)) return false;
  uses_.messages.Show("File " + path + " not found.", MessageIcon::kExclamation, kProgramTitle,
                      MessageButtons::kOk);
  return true;
}

/// The start tab may have a text although nobody has given it a name.
Document Documents::PrepareSlot(const std::string& name) {
  const Document document = uses_.list.At(uses_.list.GetFreeEditorIndex());
  const bool hasTab = Index(document.Place()) < uses_.list.Count();
  if (hasTab) {
    uses_.list.AboutToDrop.Raise(document);
  } else {
    uses_.list.AddDocumentTab(name);
  }
  return document;
}

/// The last tab is marked, whichever the document has: the start tab may be free again while others
/// are open.
void Documents::ShowNewest() {
  const Document last = uses_.list.At(Slot{uses_.list.Count() - 1});
  uses_.list.Select(last.Place());
  last.SetModified(false);
}

void Documents::NewFromTemplate(const std::string& code) {
  const std::string_view file = TemplateFile(code);
  const char separator = uses_.files.Separator();
  const std::string path = file.empty() ? std::string()
                                        : uses_.hostDirectory +
                                              BackslashIfNeeded(uses_.hostDirectory, separator) +
                                              std::string(file);
  if (ReportMissing(path)) return;
  PreparedText text = ReadDocument(uses_.files, path);

  UnfinishedDocument unfinished(uses_.list);
  const Document document = PrepareSlot(kUntitled);
  document.BecomeUntitled();
  document.Editor().LoadFile(path, std::move(text));
  unfinished.Finish();
  {
    const Parked parked(document.Editor(), Parked::Left::kParked);
    uses_.applyColourMode();  // of the document that is still the current one
  }
  ShowNewest();
  uses_.list.Loaded.Raise(document);
}

void Documents::OpenFile(const std::string& named) {
  if (named.empty()) return OpenWithDialog();
  const auto answer = uses_.host.BeforeOpening(named);
  if (!answer) return;
  const std::string& path = *answer;
  if (ReportMissing(path)) return;

  const std::string name = NameOfPath(path, uses_.files.Separator());
  for (const Document& open : uses_.list.All()) {
    if (open.HasPath(path) && EqualIgnoringAsciiCase(open.Name(), name)) {
      return uses_.list.Select(open.Place());
    }
  }
  PreparedText text = ReadDocument(uses_.files, path);

  UnfinishedDocument unfinished(uses_.list);
  const Document document = PrepareSlot(name);
  document.BelongTo(path, name);
  {
    const Parked parked(document.Editor(), Parked::Left::kParked);
    document.Editor().LoadFile(path, std::move(text));
    unfinished.Finish();
    SetColourMode(document.Editor(), ColourMode::kPlain);
    uses_.applyColourMode();  // of the document that is still the current one
    AddRecentFile(uses_.tbToolBar, uses_.settings, name, path);
  }
  ShowNewest();
  uses_.list.Loaded.Raise(document);
}

std::optional<std::vector<std::string>> Documents::ShowFileDialog(FileDialogRequest::Kind kind,
                                                                  int flags) {
  FileDialogRequest request;
  request.kind = kind;
  request.filter = "CON Files (*.con)|*.con";
  request.flags = flags;
  request.initDir = uses_.conPath;
  return uses_.dlgCommon.Show(uses_.fileDialogs, uses_.files, request);
}

void Documents::OpenWithDialog() {
  const auto chosen = ShowFileDialog(FileDialogRequest::Kind::kOpen,
                                     kExplorerStyle | kAllowMultiSelect | kHideReadOnly);
  if (!chosen) return;
  for (const std::string& path : *chosen) OpenFile(path);
}

bool Documents::SaveWithDialog(const Document& document) {
  const HeldFile before = uses_.dlgCommon.Held();
  if (!ShowFileDialog(FileDialogRequest::Kind::kSave, kOverwritePrompt | kHideReadOnly))
    return false;
  const HeldFile& held = uses_.dlgCommon.Held();
  try {
    if (!uses_.host.BeforeSaving(document, held.fileName)) {
      uses_.dlgCommon.SetHeld(before);
      return false;
    }
    uses_.files.WriteAs(held.fileName, document.Editor().Bytes());
  } catch (const RuntimeError&) {
    uses_.dlgCommon.SetHeld(before);
    throw;
  }
  if (!document.HasPath(held.fileName)) {
    AddRecentFile(uses_.tbToolBar, uses_.settings, held.fileTitle, held.fileName);
  }
  return true;
}

bool Documents::SaveInPlace(const Document& document) {
  const std::string path = document.Path();
  if (!uses_.host.BeforeSaving(document, path)) return false;
  uses_.files.SetAttributesNormal(path);
  uses_.files.Write(path, document.Editor().Bytes());
  return true;
}

void Documents::SaveDocument(bool inPlace) {
  const Document document = uses_.list.Current();
  const bool hasFile = !document.Path().empty();
  if (!(inPlace && hasFile ? SaveInPlace(document) : SaveWithDialog(document))) return;
  // An in-place save, too, takes over whatever the dialog last held.
  const HeldFile& held = uses_.dlgCommon.Held();
  document.SetModified(false);
  document.BelongTo(held.fileName, held.fileTitle);
  uses_.list.Saved.Raise(document);
}

void Documents::ReloadDocument() {
  const Document document = uses_.list.Current();
  RichTextBox& editor = document.Editor();
  const std::string path = document.Path();
  if (path.empty()) return;
  const Position caret = editor.SelStart();
  const bool coloured = document.Mode() == ColourMode::kColoured;
  PreparedText text = ReadDocument(uses_.files, path);
  uses_.list.AboutToDrop.Raise(document);
  editor.LoadFile(path, std::move(text));
  SetColourMode(editor, ColourMode::kPlain);
  if (coloured) uses_.colorize(editor);
  editor.SetSelStart(caret);
  document.SetModified(false);
  uses_.list.Loaded.Raise(document);
}

void Documents::ShowAsUntitled(const std::string& text) {
  const Document start = uses_.list.At(Slot{0});
  const bool unused = uses_.list.Count() == 1 && start.IsFree() && !start.Modified() &&
                      start.Editor().Length() == 0;
  UnfinishedDocument unfinished(uses_.list);
  const Document document = unused ? start : uses_.list.At(uses_.list.LoadNewEditor());
  if (!unused) uses_.list.AddDocumentTab(kUntitled);
  document.BecomeUntitled();
  document.Editor().LoadFile(kUntitled, text);
  unfinished.Finish();
  SetColourMode(document.Editor(), ColourMode::kPlain);
  uses_.list.Select(document.Place());
  document.SetModified(true);
  uses_.list.Loaded.Raise(document);
}

bool Documents::ConfirmClose(const Document& document) {
  if (!document.Modified()) return true;
  const MessageAnswer answer =
      uses_.messages.Show("Save changes to " + document.Editor().FileName() + "?",
                          MessageIcon::kNone, "", MessageButtons::kYesNoCancel);
  if (answer == MessageAnswer::kYes) {
    SaveDocument(false);
    return !document.Modified();
  }
  return answer == MessageAnswer::kNo;
}

void Documents::CloseDocument(Slot slot) {
  if (ConfirmClose(uses_.list.At(slot))) RemoveSlot(slot);
}

bool Documents::CloseAll() {
  for (const Document& document : uses_.list.All()) {
    if (!document.Modified()) continue;
    uses_.list.Select(document.Place());
    if (!ConfirmClose(document)) return false;
  }
  for (int slot = uses_.list.Count() - 1; slot >= 0; --slot) RemoveSlot(Slot{slot});
  return true;
}

void Documents::RemoveSlot(Slot slot) {
  DocumentList& list = uses_.list;
  const Document closed = list.At(slot);
  // Before any text is overwritten: a host stores what is about to go.
  list.AboutToDrop.Raise(closed);
  SetColourMode(closed.Editor(), ColourMode::kNone);
  const int count = list.Count();
  if (count == 1) {
    closed.Editor().SetText("");
    closed.BecomeFree();
    return;
  }
  // The documents behind move up: text, name, marker and path, nothing else.
  for (int j = Index(slot); j < count - 1; ++j) {
    const Document document = list.At(Slot{j});
    const Document next = list.At(Slot{j + 1});
    document.Editor().SetText(next.Editor().Text());
    document.TakeTabOf(next);
    list.Moved.Raise(next.Place(), document.Place());
  }
  list.RemoveLast();
  list.Select(Index(slot) == count - 1 ? Slot{count - 2} : slot);
}

}  // namespace tessel
