#include "host/RecoveryKeeper.h"

#include <algorithm>
#include <functional>
#include <new>
#include <set>
#include <string_view>
#include <utility>

#include "qt/base/QtText.h"

namespace tessel {
namespace {

// With what writing takes, less than 2 seconds.
constexpr int kDelayMilliseconds = 1500;
constexpr int kUntilProblemsShow = 500;
constexpr std::size_t kMostDropped = 20;

}  // namespace

RecoveryKeeper::RecoveryKeeper(ucTessel& tessel, DocumentGuard& guard, std::string folder,
                               QObject* parent)
    : QObject(parent),
      documents_(tessel.OpenDocuments()),
      guard_(guard),
      store_(std::move(folder)) {
  timer_.setSingleShot(true);
  timer_.setInterval(kDelayMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::KeepChanges);
  subscriptions_ = {
      documents_.Changed.Connect([this](const Document& document) { OnChanged(document); }),
      documents_.AboutToDrop.Connect([this](const Document& document) { OnAboutToDrop(document); }),
      documents_.Moved.Connect([this](Slot from, Slot to) { OnMoved(from, to); }),
      documents_.Loaded.Connect([this](const Document& document) { OnLoaded(document); }),
      documents_.Saved.Connect([this](const Document& document) { OnSaved(document); }),
  };
  QTimer::singleShot(0, this, &RecoveryKeeper::TellProblem);
}

RecoveryKeeper::Unsaved& RecoveryKeeper::At(Slot slot) {
  const auto index = static_cast<std::size_t>(Index(slot));
  if (index >= unsaved_.size()) unsaved_.resize(index + 1);
  return unsaved_[index];
}

// Raised for every word that a pass colours, too: only flags here.
void RecoveryKeeper::OnChanged(const Document& document) {
  if (!document.Modified()) return;
  Unsaved& unsaved = At(document.Place());
  if (!unsaved.changed) unsaved.base = guard_.BaseOf(document);
  unsaved.changed = true;
  if (!timer_.isActive()) timer_.start();
}

void RecoveryKeeper::OnAboutToDrop(const Document& document) {
  KeepChanges();
  const Unsaved dropped = std::exchange(At(document.Place()), {});
  if (!dropped.kept) return;
  dropped_.push_back({dropped.kept->id, dropped.kept->hash, !document.Modified()});
  if (dropped_.size() <= kMostDropped) return;
  store_.Drop(dropped_.front().id);
  dropped_.erase(dropped_.begin());
}

void RecoveryKeeper::OnMoved(Slot from, Slot to) {
  At(to) = std::exchange(At(from), {});
  Unsaved& moved = At(to);
  if (moved.kept) moved.kept->revision = documents_.At(to).Editor().Store().Revision();
}

void RecoveryKeeper::OnLoaded(const Document& document) {
  At(document.Place()) = {};
  OnChanged(document);
}

void RecoveryKeeper::OnSaved(const Document& document) {
  const Unsaved saved = std::exchange(At(document.Place()), {});
  if (saved.kept) store_.Drop(saved.kept->id);
}

void RecoveryKeeper::KeepChanges() {
  timer_.stop();
  QTimer::singleShot(kUntilProblemsShow, this, &RecoveryKeeper::TellProblem);
  if (GiveChangesToStore()) return;
  emit failed(tr("Unsaved text cannot be kept for recovery: there is not enough memory."));
}

bool RecoveryKeeper::GiveChangesToStore() try {
  for (const Document& document : documents_.All()) {
    if (At(document.Place()).changed) Keep(document);
    At(document.Place()).changed = false;
  }
  return true;
} catch (const std::bad_alloc&) {  // no reason to end with all texts
  return false;
}

void RecoveryKeeper::Keep(const Document& document) {
  if (document.IsFree() && document.Editor().Length() == 0) return;
  Unsaved& unsaved = At(document.Place());
  const std::uint64_t revision = document.Editor().Store().Revision();
  if (unsaved.kept && unsaved.kept->revision == revision) return;  // only colours
  const bool first = !unsaved.kept;
  if (first) unsaved.kept = Kept{nextId_++};
  store_.Keep(unsaved.kept->id, document.Path(), document.Editor().Text(), unsaved.base);
  unsaved.kept->revision = revision;
  unsaved.kept->hash = std::hash<std::string_view>{}(document.Editor().Bytes());
  if (first) DropTextThatCameBack(*unsaved.kept);
}

// A text that another one was loaded over comes back as a document of its own.
void RecoveryKeeper::DropTextThatCameBack(const Kept& kept) {
  const auto same = std::ranges::find(dropped_, kept.hash, &Dropped::hash);
  if (same == dropped_.end()) return;
  store_.DropReplaced(same->id, kept.id);
  dropped_.erase(same);
}

void RecoveryKeeper::KeepAllAgain() {
  for (Unsaved& unsaved : unsaved_) {
    if (!unsaved.kept) continue;
    unsaved.kept->revision = 0;
    unsaved.changed = true;
  }
  KeepChanges();
}

// Nothing of the toolkit here: where an allocation of its own fails, it may hold a lock.
bool RecoveryKeeper::KeepNow() {
  const bool enoughMemory = GiveChangesToStore();
  return store_.Flush() && enoughMemory;
}

void RecoveryKeeper::Finish() {
  std::set<RecoveryStore::Id> needed;
  for (const Document& document : documents_.All()) {
    const Unsaved& unsaved = At(document.Place());
    if (unsaved.kept && !document.Modified()) needed.insert(unsaved.kept->id);
  }
  for (const Dropped& text : dropped_) {
    if (text.countedAsSaved) needed.insert(text.id);
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
