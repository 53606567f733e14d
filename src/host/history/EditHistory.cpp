#include "host/history/EditHistory.h"

#include <ranges>

namespace tessel {

void EditHistory::Record(const TextEdit& edit, Join join) {
  steps_.resize(done_);
  const bool first = steps_.empty();
  if (!first && join == Join::kSameValue && ContinuesValue(edit)) {
    steps_.back().back().inserted = edit.inserted;
    return;
  }
  if (first || join != Join::kSameStep) steps_.emplace_back();
  steps_.back().push_back({edit.at, std::string(edit.removed), std::string(edit.inserted)});
  done_ = steps_.size();
}

bool EditHistory::ContinuesValue(const TextEdit& edit) const {
  const Step& last = steps_.back();
  return last.size() == 1 && last.back().at == edit.at && last.back().inserted == edit.removed;
}

void EditHistory::Clear() {
  steps_.clear();
  done_ = 0;
}

std::string EditHistory::Before(std::string text, const Step& step) {
  for (auto edit = step.rbegin(); edit != step.rend(); ++edit) {
    text.replace(static_cast<std::size_t>(edit->at), edit->inserted.size(), edit->removed);
  }
  return text;
}

void EditHistory::Undo(RichTextBox& editor) {
  if (!CanUndo()) return;
  const Step& step = steps_[--done_];
  const RichTextBox::Gesture gesture(editor, false);
  Position caret = 0;
  for (auto edit = step.rbegin(); edit != step.rend(); ++edit) {
    editor.EditByHand(edit->at, std::ssize(edit->inserted), edit->removed);
    caret = edit->at + std::ssize(edit->removed);
  }
  editor.SelectByHand(caret, 0);
}

void EditHistory::Redo(RichTextBox& editor) {
  if (!CanRedo()) return;
  const Step& step = steps_[done_++];
  const RichTextBox::Gesture gesture(editor, false);
  Position caret = 0;
  for (const Edit& edit : step) {
    editor.EditByHand(edit.at, std::ssize(edit.removed), edit.inserted);
    caret = edit.at + std::ssize(edit.inserted);
  }
  editor.SelectByHand(caret, 0);
}

}  // namespace tessel
