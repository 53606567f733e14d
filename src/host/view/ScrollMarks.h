// Marks beside the scroll bars of the editors.
#pragma once

#include <QTimer>

#include "host/find/FindBar.h"
#include "host/menu/MainMenu.h"
#include "host/preferences/Preferences.h"
#include "host/view/DocumentChanges.h"
#include "host/view/EveryEditor.h"
#include "host/view/MarkStrip.h"

namespace tessel {

/// Has each editor show where the caret, the lines that were changed since the document was opened
/// or saved, and what the find bar has found are: an item of the View menu, kept for the next
/// start. A key costs a note of where the text changed; what is drawn follows a moment later.
class ScrollMarks : public QObject {
  Q_OBJECT

 public:
  /// All outlive this.
  ScrollMarks(TesselWidget& control, MainMenu& menu, Preferences& preferences, const FindBar& find);

 private:
  void Add(ScintillaView& view);
  void Apply();
  void FollowCaret();
  void ShowChanges();
  void ShowMatches();
  void GoTo(ScintillaView& view, Position start, Position end);
  MarkStrip* CurrentStrip() const;
  bool Wanted() const { return preferences_.Wants(Wish::kScrollMarks); }

  TesselWidget& control_;
  Preferences& preferences_;
  const DocumentSearch& search_;
  DocumentChanges changes_;
  EveryEditor editors_;
  QTimer later_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
