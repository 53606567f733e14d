#include "host/view/DocumentChanges.h"

#include <utility>

namespace tessel {

DocumentChanges::DocumentChanges(ucTessel& tessel) : tessel_(tessel) {
  auto& editors = tessel_.Controls().rtbCon;
  for (int i = 0; i < editors.Count(); ++i) Follow(editors[i]);
  DocumentList& documents = tessel_.OpenDocuments();
  const auto forget = [this](const Document& document) { Forget(document); };
  subscriptions_.push_back(editors.Loaded.Connect([this](RichTextBox& editor) { Follow(editor); }));
  subscriptions_.push_back(documents.Loaded.Connect(forget));
  subscriptions_.push_back(documents.Saved.Connect(forget));
  subscriptions_.push_back(
      documents.Moved.Connect([this](Slot from, Slot to) { Moved(from, to); }));
  subscriptions_.push_back(tessel_.Converting.Connect([this](const Document& document) {
    converted_.emplace(document.Place(), At(document.Place()));
  }));
  subscriptions_.push_back(tessel_.CommandEnded.Connect([this] { converted_.reset(); }));
}

ChangedPlaces& DocumentChanges::At(Slot slot) const {
  const auto index = static_cast<std::size_t>(Index(slot));
  if (index >= places_.size()) places_.resize(index + 1);
  return places_[index];
}

// An editor outlives its subscription where the last tab is taken away: it goes itself then.
void DocumentChanges::Follow(RichTextBox& editor) {
  const Slot slot{editor.Index()};
  At(slot).Clear();
  subscriptions_.push_back(editor.Store().Edited.Connect([this, slot](const TextEdit& edit) {
    At(slot).Add(edit);
    Changed.Raise(slot);
  }));
  subscriptions_.push_back(
      editor.Store().Reset.Connect([this, slot, &editor] { OnReset(slot, editor); }));
}

// A conversion that failed has put everything back.
void DocumentChanges::OnReset(Slot slot, const RichTextBox& editor) {
  if (converted_ && converted_->first == slot) {
    At(slot) = converted_->second;
  } else {
    At(slot).BecomeAll(editor.Length());
  }
  Changed.Raise(slot);
}

void DocumentChanges::Forget(const Document& document) {
  At(document.Place()).Clear();
  Changed.Raise(document.Place());
}

void DocumentChanges::Moved(Slot from, Slot to) {
  At(to) = std::exchange(At(from), {});
  Changed.Raise(to);
}

}  // namespace tessel
