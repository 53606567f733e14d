// What can be undone and redone in one text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "models/RichTextBox.h"

namespace tessel {

/// The edits of one text as steps. It hears of each edit and never looks at the text.
class EditHistory {
 public:
  /// How an edit belongs to the one before.
  enum class Join {
    kNewStep,
    kSameStep,
    /// The same step where it replaces what the one before inserted: another key of a value.
    kSameValue,
  };
  struct Edit {
    Position at = 0;
    std::string removed;
    std::string inserted;
  };
  using Step = std::vector<Edit>;

  void Record(const TextEdit& edit, Join join);
  void Clear();

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  /// Takes a step back in the editor, or does it again, as a person's edit that can itself be
  /// undone by the editor. Nothing happens when there is none. Record is not called meanwhile.
  void Undo(RichTextBox& editor);
  void Redo(RichTextBox& editor);

  /// What Undo would take back; empty where there is nothing.
  Step NewestStep() const { return CanUndo() ? steps_[done_ - 1] : Step(); }
  /// The text in front of a step, by the text behind it.
  static std::string Before(std::string text, const Step& step);

 private:
  bool ContinuesValue(const TextEdit& edit) const;

  std::vector<Step> steps_;
  std::size_t done_ = 0;  // of steps_, from the front
};

}  // namespace tessel
