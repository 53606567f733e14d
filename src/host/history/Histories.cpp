#include "host/history/Histories.h"

#include <algorithm>
#include <utility>

#include "base/ScopeGuard.h"

namespace tessel {

Histories::Histories(ucTessel& tessel) : tessel_(tessel) {
  HostedControls& controls = tessel_.Controls();
  for (int i = 0; i < controls.rtbCon.Count(); ++i) Follow(controls.rtbCon[i]);
  subscriptions_.push_back(
      controls.rtbCon.Loaded.Connect([this](RichTextBox& editor) { Follow(editor); }));
  subscriptions_.push_back(tessel_.CommandEnded.Connect([this] {
    commandIn_.reset();
    lastEdited_ = std::exchange(edited_, {});
    panelWrites_ = false;
  }));
  subscriptions_.push_back(tessel_.OpenDocuments().Moved.Connect([this](Slot from, Slot to) {
    At(Index(to)) = std::exchange(At(Index(from)), EditHistory());
  }));
}

EditHistory& Histories::At(std::size_t slot) const {
  if (slot >= histories_.size()) histories_.resize(slot + 1);
  return histories_[slot];
}

EditHistory& Histories::Current() const {
  return At(Index(tessel_.OpenDocuments().Current().Place()));
}

// An editor outlives its subscription where the last tab is taken away: it goes itself then.
void Histories::Follow(RichTextBox& editor) {
  const auto slot = static_cast<std::size_t>(editor.Index());
  TextStore& store = editor.Store();
  subscriptions_.push_back(
      store.Edited.Connect([this, slot](const TextEdit& edit) { OnEdit(slot, edit); }));
  subscriptions_.push_back(store.Reset.Connect([this, slot] { At(slot).Clear(); }));
}

void Histories::OnEdit(std::size_t slot, const TextEdit& edit) {
  if (!replaying_) At(slot).Record(edit, JoinOf(slot, edit));
}

EditHistory::Join Histories::JoinOf(std::size_t slot, const TextEdit& edit) {
  using enum EditHistory::Join;
  if (!tessel_.Running()) {
    valueOpen_ = false;
    return edit.joins ? kSameStep : kNewStep;
  }
  if (std::exchange(commandIn_, slot) == slot) {
    valueOpen_ = false;
    return kSameStep;
  }
  if (const Slot place{static_cast<int>(slot)};
      std::ranges::find(edited_, place) == edited_.end()) {
    edited_.push_back(place);
  }
  const bool sameValue = panelWrites_ && valueOpen_;
  valueOpen_ = panelWrites_;
  return sameValue ? kSameValue : kNewStep;
}

template <class Replay>
void Histories::Run(Replay replay) {
  if (tessel_.Running()) return;
  valueOpen_ = false;
  const ScopeGuard ended([this] { replaying_ = false; });
  replaying_ = true;
  replay(Current(), tessel_.OpenDocuments().CurrentEditor());
}

void Histories::Undo() {
  Run([](EditHistory& history, RichTextBox& editor) { history.Undo(editor); });
}

void Histories::Redo() {
  Run([](EditHistory& history, RichTextBox& editor) { history.Redo(editor); });
}

}  // namespace tessel
