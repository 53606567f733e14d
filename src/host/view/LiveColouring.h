// Live colours, as the user wishes.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/menu/MainMenu.h"
#include "host/preferences/Preferences.h"
#include "qt/TesselWidget.h"
#include "qt/editor/ScintillaView.h"
#include "surface/DocumentList.h"

namespace tessel {

/// Has every document drawn in live colours while the user wishes that: an item of the View menu,
/// kept for the next start. Who releases "Colorize" by hand has that document drawn in the
/// control's colours, until it is pressed again: the button stands pressed where live colours are
/// drawn.
class LiveColouring : public QObject {
  Q_OBJECT

 public:
  /// All outlive this.
  LiveColouring(TesselWidget& control, MainMenu& menu, Preferences& preferences);

 private:
  void ListenToDocuments();
  void ButtonPressed(const ToolbarButton& button);
  void Dropped(const Document& document);
  void Loaded(const Document& document);
  void Moved(Slot from, Slot to);
  void Apply();
  bool IsLive(const Document& document) const;
  void ShowOnButton();

  Preferences& preferences_;
  Toolbar& toolbar_;
  DocumentList& documents_;
  TesselWidget& control_;
  std::set<Slot> released_;
  std::optional<std::pair<Slot, std::string>> reloading_;  // one of these, and its path
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
