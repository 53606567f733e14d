// The open documents, and what happens to them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Event.h"
#include "surface/CurrentEditor.h"
#include "surface/Document.h"

namespace tessel {

/// All open documents in the order of their tabs, one of them current. Tab k belongs to the editor
/// k − 1, its slot; slots are dense. There is always at least one document: the start tab counts.
///
/// Whoever wants to know what becomes of a document listens here. Documents (the class) is the one
/// who changes the list and raises the events; they come in the middle of a command, so a handler
/// looks and remembers, and starts no command.
class DocumentList {
 public:
  /// `controls` outlives this.
  explicit DocumentList(HostedControls& controls) : controls_(controls) {}
  DocumentList(const DocumentList&) = delete;
  DocumentList& operator=(const DocumentList&) = delete;

  int Count() const { return controls_.tbsRtb.Count(); }
  Document At(Slot slot) const { return {controls_, slot}; }
  Document Current() const { return At(CurrentDocIndex(controls_)); }
  RichTextBox& CurrentEditor() const { return Current().Editor(); }
  std::vector<Document> All() const;
  /// The first document with exactly that path, or nothing.
  std::optional<Document> WithPath(const std::string& path) const;
  /// Selects its tab, as a click does: the document is shown, also when it is current already.
  void Select(Slot slot) const { controls_.tbsRtb.Select(Number(TabOf(slot))); }

  /// Its text came from a file or a template: opened, made, or taken from its file again. Its name,
  /// path and marker are set.
  Event<const Document&> Loaded;
  /// Its text is about to go: it is closed, or another text takes its place. All is still there.
  Event<const Document&> AboutToDrop;
  /// The document of the first slot is in the second one now, with text, name, path and marker.
  /// Raised from the front to the back when a document before them is closed.
  Event<Slot, Slot> Moved;
  /// Its text was written to its path.
  Event<const Document&> Saved;
  /// Its text or colours changed, or it counts as modified now.
  Event<const Document&> Changed;
  /// The current document came to the front; it may be the same as before.
  Event<const Document&> Shown;

  // --- For those who open, save and close
  /// The slot into which a newly opened or created document goes: the start tab's while that is
  /// free, else a new editor's.
  Slot GetFreeEditorIndex() const;
  /// Adds a parked editor and returns its slot. No tab is created.
  Slot LoadNewEditor() const;
  /// Appends an unmodified tab with the lower-cased name.
  void AddDocumentTab(const std::string& name) const;
  /// Takes the last document's editor and tab away.
  void RemoveLast() const;
  /// Takes editors and tabs away of which there are more than that: a new document that failed.
  void RemoveBeyond(int count) const;

 private:
  HostedControls& controls_;
};

}  // namespace tessel
