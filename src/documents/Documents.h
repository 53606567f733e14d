// New, open, save and close, and the switch between documents.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "documents/ColourMode.h"
#include "services/Services.h"
#include "surface/HostedControls.h"

namespace tessel {

class Levels;

class Documents {
 public:
  /// `conPath` is where the file dialogs start. Everything passed outlives this.
  Documents(HostedControls& controls, const Services& services, Levels& levels,
            const std::string& conPath, StatusText status);

  /// Makes an "Untitled" document from the template for the code. An unknown code names no file.
  void NewFromTemplate(const std::string& code);
  /// Opens a file, or selects its tab when the same path is open. An empty path shows the dialog.
  void OpenFile(const std::string& path);
  void OpenWithDialog();
  /// Saves the current document. The save dialog is shown unless `inPlace` is true and the document
  /// has a path of its own.
  void SaveDocument(bool inPlace);
  /// Closes the document in a slot; asks first when it is modified.
  void CloseDocument(int slot);
  /// Asks for every modified document and closes all. Returns false, with nothing closed, when one
  /// was cancelled.
  bool CloseAll();

  /// Takes the current document's text from its file again; it counts as unmodified then. For a
  /// host that sees the file changed by others.
  void ReloadDocument();

  /// The document tab was clicked: shows its editor and parks the others.
  void ShowSelectedDocument();
  /// The "Colorize" button changed.
  void ApplyColourMode();

 private:
  bool ReportMissing(const std::string& path);
  int PrepareSlot(const std::string& name);
  std::optional<std::vector<std::string>> ShowFileDialog(FileDialogRequest::Kind kind, int flags);
  bool SaveWithDialog(const RichTextBox& editor, const std::string& tag);
  bool ConfirmClose(int slot);
  void RemoveSlot(int slot);
  void ClearTab(int tab);

  HostedControls& controls_;
  Services services_;
  Levels& levels_;
  const std::string& conPath_;
  StatusText status_;
};

}  // namespace tessel
