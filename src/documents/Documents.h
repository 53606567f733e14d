// New, open, save and close, and the switch between documents.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "documents/DocumentHost.h"
#include "models/CommonDialog.h"
#include "models/Toolbar.h"
#include "services/Services.h"
#include "surface/DocumentList.h"

namespace tessel {

class Documents {
 public:
  /// What it works with. Everything outlives it.
  struct Uses {
    DocumentList& list;
    Toolbar& tbToolBar;
    CommonDialog& dlgCommon;
    MessageBox& messages;
    FileDialogs& fileDialogs;
    SettingsStore& settings;
    Files& files;
    DocumentHost& host;
    const std::string& hostDirectory;
    const std::string& conPath;  ///< where the file dialogs start
    /// Applies the state of the "Colorize" button to the current document.
    std::function<void()> applyColourMode;
    /// Colours a document, whatever the button says.
    std::function<void(RichTextBox&)> colorize;
  };
  explicit Documents(Uses uses) : uses_(std::move(uses)) {}

  /// Makes an "Untitled" document from the template for the code. An unknown code names no file.
  void NewFromTemplate(const std::string& code);
  /// Opens a file, or selects its tab when the same path is open. An empty path shows the dialog.
  void OpenFile(const std::string& named);
  void OpenWithDialog();
  /// Saves the current document. The save dialog is shown unless `inPlace` is true and the document
  /// has a path of its own.
  void SaveDocument(bool inPlace);
  /// Closes the document in a slot; asks first when it is modified.
  void CloseDocument(Slot slot);
  /// Asks for every modified document and closes all. Returns false, with nothing closed, when one
  /// was cancelled.
  bool CloseAll();

  // --- For a host
  /// Takes the current document's text from its file again; it counts as unmodified then. Nothing
  /// happens when it has no file.
  void ReloadDocument();
  /// Shows a text as a modified "Untitled" document, in the start tab only while that has no text.
  void ShowAsUntitled(const std::string& text);

  /// The document tab was clicked: shows its editor and parks the others.
  void ShowSelectedDocument();
  /// An editor's text or colours have changed: marks its document as modified when that is the one
  /// in sight.
  void EditorChanged(Slot slot);
  /// Marks a document as modified when it is the one in sight.
  void MarkModified(Slot slot);

 private:
  bool ReportMissing(const std::string& path);
  Document PrepareSlot(const std::string& name);
  void ShowNewest();
  std::optional<std::vector<std::string>> ShowFileDialog(FileDialogRequest::Kind kind, int flags);
  bool SaveWithDialog(const Document& document);
  bool SaveInPlace(const Document& document);
  bool ConfirmClose(const Document& document);
  void RemoveSlot(Slot slot);

  Uses uses_;
};

}  // namespace tessel
