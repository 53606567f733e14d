// Reads what the current document consists of, while nobody types.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <map>
#include <optional>
#include <vector>

#include "host/script/OpenScripts.h"
#include "language/Structure.h"
#include "surface/DocumentList.h"

namespace tessel {

/// Reads in pieces of some milliseconds, once the text has not changed for a while; a change breaks
/// a reading off. Documents and scripts outlive it.
class StructureReader : public QObject {
  Q_OBJECT

 public:
  static constexpr int kPauseMilliseconds = 300;

  StructureReader(DocumentList& documents, OpenScripts& scripts, QObject* parent);

  enum class Wish { kNothing, kBlocks, kSymbolsToo };
  /// Nothing is read that nobody wants. Who begins to want something is told soon.
  void SetWish(const QObject* by, Wish wish);

  /// The structure of the document in that slot, as its text is now.
  Event<Slot, const language::Structure&> Read;

 private:
  bool WantsSymbols() const;
  void StartIn(int milliseconds);
  void ReadOn();

  DocumentList& documents_;
  OpenScripts& scripts_;
  std::map<const QObject*, Wish> wishes_;
  Slot slot_{};
  std::optional<language::StructureWalk> walk_;
  QTimer timer_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
