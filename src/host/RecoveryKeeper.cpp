#include "host/RecoveryKeeper.h"

#include <algorithm>
#include <functional>
#include <new>
#include <set>
#include <string_view>
#include <utility>

#include "documents/DocumentSlots.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

// With what writing takes, less than 2 seconds.
constexpr int kDelayMilliseconds = 1500;
constexpr int kUntilProblemsShow = 500;
constexpr std::size_t kMostDropped = 20;

}  // namespace

RecoveryKeeper::RecoveryKeeper(ucTessel& tessel, std::string folder, AbandonedTexts::OnDisk onDisk,
                               QObject* parent)
    : QObject(parent), tessel_(tessel), onDisk_(std::move(onDisk)), store_(std::move(folder)) {
  timer_.setSingleShot(true);
  timer_.setInterval(kDelayMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::KeepChanges);
  HostedControls& controls = tessel_.Controls();
  for (int slot = 0; slot < controls.rtbCon.Count(); ++slot) Watch(controls.rtbCon[slot]);
  subscriptions_ = {
      controls.rtbCon.Loaded.Connect([this](RichTextBox& editor) { Watch(editor); }),
      controls.rtbCon.Unloading.Connect([this](RichTextBox&) {
        LetGo(slots_.back());
        slots_.pop_back();
      }),
      controls.tbsRtb.Refresh.Connect([this] { TabsChanged(); }),
  };
  QTimer::singleShot(0, this, &RecoveryKeeper::TellProblem);
}

void RecoveryKeeper::Watch(RichTextBox& editor) {
  const int slot = editor.Index();
  slots_.emplace_back().subscriptions = {
      editor.Change.Connect([this, slot] { EditorChanged(slot); }),
      editor.Refresh.Connect([this] { KeepBeforeItIsDropped(); }),
  };
}

bool RecoveryKeeper::Modified(int slot) const {
  const TabStrip& tabs = tessel_.Controls().tbsRtb;
  return slot < tabs.Count() && tabs.At(slot + 1).image == kRedDot;
}

std::string RecoveryKeeper::PathOf(int slot) const {
  const TabStrip& tabs = tessel_.Controls().tbsRtb;
  if (slot >= tabs.Count() || tabs.At(slot + 1).tag == kUntitled) return {};
  return tabs.At(slot + 1).tag;
}

/// A save may have given the document another file.
bool RecoveryKeeper::IsOnDisk(int index) const {
  const std::string_view bytes = std::as_const(tessel_.Controls()).rtbCon[index].Bytes();
  const std::string path = PathOf(index);
  const auto& before = slots_.at(static_cast<std::size_t>(index)).path;
  try {
    if (!path.empty() && onDisk_(path) == bytes) return true;
    return before && !before->empty() && *before != path && onDisk_(*before) == bytes;
  } catch (const std::bad_alloc&) {  // then it cannot be said
    return false;
  }
}

// Raised for every character that a pass colours, too: only flags here.
void RecoveryKeeper::EditorChanged(int index) {
  Slot& slot = At(index);
  const TextStore& store = std::as_const(tessel_.Controls()).rtbCon[index].Store();
  if (!store.CanUndo() && !store.CanRedo()) {
    // Another text altogether, whose path the tab does not have yet.
    LetGo(slot);
    slot.path.reset();
  } else if (!slot.changed || !slot.path) {
    slot.path = PathOf(index);
  }
  slot.changed = true;
  if (!timer_.isActive()) timer_.start();
}

void RecoveryKeeper::TabsChanged() {
  for (int index = 0; index < std::ssize(slots_); ++index) {
    Slot& slot = At(index);
    if (!slot.kept || Modified(index)) continue;
    slot.kept->takenForSaved = !IsOnDisk(index);
    if (slot.kept->takenForSaved) continue;
    store_.Drop(slot.kept->id);
    slot.kept.reset();
  }
  if (!timer_.isActive()) timer_.start();
}

void RecoveryKeeper::KeepBeforeItIsDropped() {
  if (std::ranges::any_of(slots_, &Slot::changed)) KeepChanges();
}

bool RecoveryKeeper::KeepChanges() {
  timer_.stop();
  QTimer::singleShot(kUntilProblemsShow, this, &RecoveryKeeper::TellProblem);
  try {
    for (int slot = 0; slot < std::ssize(slots_); ++slot) KeepSlot(slot);
    DropMovedTexts();
    return true;
  } catch (const std::bad_alloc&) {  // no reason to end with all texts
    emit failed(tr("Unsaved text cannot be kept for recovery: there is not enough memory."));
    return false;
  }
}

void RecoveryKeeper::KeepSlot(int index) {
  Slot& slot = At(index);
  if (!Modified(index) || (!slot.changed && slot.kept)) {
    slot.changed = false;
    return;
  }
  const RichTextBox& editor = std::as_const(tessel_.Controls()).rtbCon[index];
  const std::string_view bytes = editor.Bytes();
  const Fingerprint print{bytes.size(), std::hash<std::string_view>{}(bytes)};
  const bool onlyColours = slot.kept && slot.kept->print == print;
  if (!onlyColours) {
    if (!slot.path) slot.path = PathOf(index);
    if (!slot.kept) slot.kept = Kept{nextId_++, {}};
    store_.Keep(slot.kept->id, *slot.path, editor.Text());
    slot.kept->print = print;
  }
  slot.kept->takenForSaved = false;
  slot.changed = false;
}

/// Its text stays where it is kept, until it is seen that another editor has taken it over.
void RecoveryKeeper::LetGo(Slot& slot) {
  if (!slot.kept) return;
  dropped_.push_back(*slot.kept);
  slot.kept.reset();
  if (dropped_.size() <= kMostDropped) return;
  store_.Drop(dropped_.front().id);
  dropped_.erase(dropped_.begin());
}

// When a document is closed, the texts behind it move to the editors before theirs.
void RecoveryKeeper::DropMovedTexts() {
  std::erase_if(dropped_, [this](const Kept& text) {
    const auto holder = std::ranges::find_if(
        slots_, [&](const Slot& slot) { return slot.kept && slot.kept->print == text.print; });
    if (holder == slots_.end()) return false;
    store_.DropReplaced(text.id, holder->kept->id);
    return true;
  });
}

void RecoveryKeeper::KeepAllAgain() {
  for (Slot& slot : slots_) {
    if (!slot.kept) continue;
    slot.kept->print = {};
    slot.changed = true;
  }
  KeepChanges();
}

bool RecoveryKeeper::KeepNow() {
  const bool enoughMemory = KeepChanges();
  return store_.Flush() && enoughMemory;
}

void RecoveryKeeper::Finish() {
  std::set<RecoveryStore::Id> needed;
  for (const Slot& slot : slots_) {
    if (slot.kept && slot.kept->takenForSaved) needed.insert(slot.kept->id);
  }
  for (const Kept& text : dropped_) {
    if (text.takenForSaved) needed.insert(text.id);
  }
  store_.Finish(needed);
}

void RecoveryKeeper::TellProblem() {
  if (store_.TakeLoss()) KeepAllAgain();
  if (const auto problem = store_.TakeProblem()) {
    emit failed(tr("Unsaved text cannot be kept for recovery: %1.").arg(ShownName(*problem)));
  }
}

}  // namespace tessel
