// The caret and the scroll place of each document, kept for the next time.
#pragma once

#include <map>
#include <vector>

#include "host/preferences/Preferences.h"
#include "host/view/PlaceList.h"
#include "qt/TesselWidget.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

/// A file that is opened again shows the place at which it was left; where it has another length
/// now, the caret as near to its place as the text allows. A document that moves up because another
/// one is closed stays where it was.
class KeptPlaces {
 public:
  /// Both outlive this.
  KeptPlaces(TesselWidget& control, Preferences& preferences);

  /// Keeps the places of all open files.
  void KeepAll();

 private:
  void Dropped(const Document& document);
  void Loaded(const Document& document);
  void Moved(Slot from, Slot to);
  void Shown(const Document& document);
  std::vector<Document> Open() const;
  DocumentPlace PlaceOf(const Document& document) const;
  void GoTo(const Document& document, const DocumentPlace& place) const;
  ScintillaView& ViewOf(const Document& document) const;

  TesselWidget& control_;
  Preferences& preferences_;
  const DocumentList& documents_;
  std::map<Slot, DocumentPlace> before_;   // a document is closed: where all were
  std::map<Slot, DocumentPlace> waiting_;  // those that have moved and were not in front since
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
