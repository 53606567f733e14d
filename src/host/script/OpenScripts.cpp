#include "host/script/OpenScripts.h"

namespace tessel {

OpenScripts::OpenScripts(ControlArray<RichTextBox>& editors) : editors_(editors) {
  for (int i = 0; i < editors_.Count(); ++i) Add(editors_[i]);
  subscriptions_ = {
      editors_.Loaded.Connect([this](RichTextBox& editor) { Add(editor); }),
      // It may not have come as far as here.
      editors_.Unloading.Connect([this](const RichTextBox& editor) {
        if (std::ssize(readings_) > editor.Index()) readings_.pop_back();
      }),
  };
}

void OpenScripts::Add(RichTextBox& editor) {
  Reading& reading = *readings_.emplace_back(std::make_unique<Reading>());
  NoteTold(reading, editor);
  reading.subscriptions = {
      editor.Store().Edited.Connect(
          [this, &editor](const TextEdit& edit) { OnEdited(editor, edit); }),
      editor.Store().Reset.Connect([this, &editor] { OnReset(editor); }),
  };
}

void OpenScripts::NoteTold(Reading& reading, const RichTextBox& editor) {
  reading.told = editor.Store().Revision();
  reading.length = editor.Length();
}

void OpenScripts::OnEdited(const RichTextBox& editor, const TextEdit& edit) {
  const Slot slot{editor.Index()};
  Reading& reading = At(slot);
  const ChangedRange change{edit.at, std::ssize(edit.removed), std::ssize(edit.inserted)};
  NoteTold(reading, editor);
  // Whoever was told of the edit before may have asked already.
  if (reading.script && reading.revision != editor.Store().Revision()) {
    reading.change = reading.change ? reading.change->Then(change) : change;
  }
  Changed.Raise(slot, change);
}

void OpenScripts::OnReset(const RichTextBox& editor) {
  const Slot slot{editor.Index()};
  Reading& reading = At(slot);
  const ChangedRange change{0, reading.length, editor.Length()};
  NoteTold(reading, editor);
  if (reading.revision != editor.Store().Revision()) {
    reading.script.reset();
    reading.change.reset();
  }
  Changed.Raise(slot, change);
}

const language::Script& OpenScripts::Of(Slot slot) {
  Reading& reading = At(slot);
  const RichTextBox& editor = editors_[Index(slot)];
  const std::uint64_t now = editor.Store().Revision();
  if (reading.script && reading.revision == now) return *reading.script;
  if (reading.script && reading.change && reading.told == now) {
    const ChangedRange& change = *reading.change;
    reading.script->Update(editor.Bytes(), change.at, change.removed, change.inserted);
  } else {
    reading.script.emplace(editor.Bytes());
  }
  reading.change.reset();
  reading.revision = now;
  return *reading.script;
}

}  // namespace tessel
