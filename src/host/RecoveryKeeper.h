// Keeps the modified documents of a control in a RecoveryStore.
#pragma once

#include <QObject>
#include <QTimer>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "host/DocumentGuard.h"
#include "safekeeping/RecoveryStore.h"

namespace tessel {

/// Is told what becomes of the documents. A change is kept at most 2 seconds after the first one
/// that is not kept yet, and at once when the text is about to be dropped. The text of a document
/// that was saved is not kept any more; that of one that was dropped is, until the program ends
/// normally. A document that counts as unmodified without having been saved keeps its text even
/// beyond that.
class RecoveryKeeper : public QObject {
  Q_OBJECT

 public:
  /// `folder` is that of all runs. The guard watches the documents already and outlives this.
  RecoveryKeeper(ucTessel& tessel, DocumentGuard& guard, std::string folder, QObject* parent);

  /// Notes when texts are kept; null: nothing. It outlives this.
  void LogTo(KeepingLog* log) { store_.LogTo(log); }
  /// Waits until every modified text is on the disk. Returns false when one could not be kept. May
  /// be called wherever an allocation fails.
  bool KeepNow();
  /// The program ends normally.
  void Finish();

 signals:
  /// Texts cannot be kept; the sentence says why.
  void failed(const QString& sentence);

 private:
  struct Kept {
    RecoveryStore::Id id = 0;
    std::uint64_t revision = 0;  // of the editor's text when it was kept
    std::size_t hash = 0;        // of the text
  };
  struct Unsaved {
    bool changed = false;               // since the text was kept
    std::optional<std::uint64_t> base;  // see KeptText
    std::optional<Kept> kept;
  };
  struct Dropped {
    RecoveryStore::Id id = 0;
    std::size_t hash = 0;
    bool countedAsSaved = false;
  };

  void OnChanged(const Document& document);
  void OnAboutToDrop(const Document& document);
  void OnMoved(Slot from, Slot to);
  void OnLoaded(const Document& document);
  void OnSaved(const Document& document);
  void KeepChanges();
  /// False when there was not enough memory.
  bool GiveChangesToStore();
  void Keep(const Document& document);
  void DropTextThatCameBack(const Kept& kept);
  void KeepAllAgain();
  void TellProblem();
  Unsaved& At(Slot slot);

  DocumentList& documents_;
  DocumentGuard& guard_;
  RecoveryStore store_;
  RecoveryStore::Id nextId_ = 1;
  std::vector<Unsaved> unsaved_;  // by slot
  std::vector<Dropped> dropped_;  // texts that no document holds any more, the oldest first
  QTimer timer_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
