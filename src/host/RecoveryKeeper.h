// Keeps the modified documents of a control in a RecoveryStore.
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "safekeeping/RecoveryStore.h"

namespace tessel {

/// Watches the documents. A change is kept at most 2 seconds after the first one that is not kept
/// yet, and at once before the control does anything else with an editor: it may be about to drop
/// the text. A document whose file has its text is not kept any more; the text of one that was
/// dropped is. Nor is the control believed that takes a document for saved whose file is another:
/// its text outlives even a normal end.
class RecoveryKeeper : public QObject {
  Q_OBJECT

 public:
  /// `folder` is that of all runs.
  RecoveryKeeper(ucTessel& tessel, std::string folder, AbandonedTexts::OnDisk onDisk,
                 QObject* parent);

  /// Waits until every modified text is on the disk. Returns false when one could not be kept.
  bool KeepNow();
  /// The program ends normally.
  void Finish();

 signals:
  /// Texts cannot be kept; the sentence says why.
  void failed(const QString& sentence);

 private:
  struct Fingerprint {
    std::size_t size = 0;
    std::size_t hash = 0;
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
  };
  struct Kept {
    RecoveryStore::Id id = 0;
    Fingerprint print;
    bool takenForSaved = false;  // by the control, but its file has another text
  };
  struct Slot {
    bool changed = false;             // since the text was kept
    std::optional<std::string> path;  // of the document when it was changed
    std::optional<Kept> kept;
    std::vector<Subscription> subscriptions;
  };

  void Watch(RichTextBox& editor);
  void EditorChanged(int slot);
  void TabsChanged();
  void KeepBeforeItIsDropped();
  /// False when there was not enough memory.
  bool KeepChanges();
  void KeepSlot(int slot);
  void KeepAllAgain();
  void LetGo(Slot& slot);
  void DropMovedTexts();
  void TellProblem();
  bool Modified(int slot) const;
  bool IsOnDisk(int slot) const;
  std::string PathOf(int slot) const;
  Slot& At(int slot) { return slots_.at(static_cast<std::size_t>(slot)); }

  ucTessel& tessel_;
  AbandonedTexts::OnDisk onDisk_;
  RecoveryStore store_;
  RecoveryStore::Id nextId_ = 1;
  std::vector<Slot> slots_;
  std::vector<Kept> dropped_;  // texts that no editor holds any more, or another one
  QTimer timer_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
