// Undo and redo of the window: a command is one step.
#pragma once

#include <vector>

#include "control/ucTessel.h"
#include "host/history/EditHistory.h"

namespace tessel {

/// A history for each open document. Everything that one command of the control edits (a page of
/// the panel, the randomizer, the converter, a tool, the popup's Undo) is one step; the keys of a
/// value are one step; what is typed into the text is one step as the editor has it.
class Histories {
 public:
  /// `tessel` outlives this.
  explicit Histories(ucTessel& tessel);

  /// In the document in front.
  bool CanUndo() const { return Current().CanUndo(); }
  bool CanRedo() const { return Current().CanRedo(); }
  bool CanUndo(Slot slot) const { return At(Index(slot)).CanUndo(); }
  EditHistory::Step NewestStep(Slot slot) const { return At(Index(slot)).NewestStep(); }
  /// The documents that the last command to end has edited: their newest step is that command's.
  const std::vector<Slot>& EditedByLastCommand() const { return lastEdited_; }
  void Undo();
  void Redo();

  /// The next edit writes a value that is being typed in the panel.
  void PanelWrites() { panelWrites_ = true; }
  /// A value that is typed from now on is another one.
  void EndValue() { valueOpen_ = false; }

 private:
  EditHistory& At(std::size_t slot) const;
  EditHistory& Current() const;
  void Follow(RichTextBox& editor);
  void OnEdit(std::size_t slot, const TextEdit& edit);
  EditHistory::Join JoinOf(std::size_t slot, const TextEdit& edit);
  template <class Replay>
  void Run(Replay replay);

  ucTessel& tessel_;
  mutable std::vector<EditHistory> histories_;  // by slot
  std::optional<std::size_t> commandIn_;        // where the command on its way has edited
  std::vector<Slot> edited_;                    // by the command on its way
  std::vector<Slot> lastEdited_;
  bool panelWrites_ = false;
  bool valueOpen_ = false;
  bool replaying_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
