// Reads what the current document consists of, while nobody types.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <optional>
#include <set>
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

  /// Nothing is read while nobody wants it. Who begins to want it is told soon.
  void SetWanted(const QObject* by, bool wanted);

  /// The structure of the document in that slot, as its text is now.
  Event<Slot, const language::Structure&> Read;

 private:
  void StartIn(int milliseconds);
  void ReadOn();

  DocumentList& documents_;
  OpenScripts& scripts_;
  std::set<const QObject*> wishes_;
  Slot slot_{};
  std::optional<language::StructureWalk> walk_;
  QTimer timer_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
