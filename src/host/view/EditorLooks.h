// How the editors of the window look, as the user wishes.
#pragma once

#include "host/menu/MainMenu.h"
#include "host/preferences/Preferences.h"
#include "host/view/EveryEditor.h"

namespace tessel {

/// Zoom, word wrap, visible blanks and the ruler: items of the View menu, the same for all editors
/// and kept for the next start.
class EditorLooks : public QObject {
  Q_OBJECT

 public:
  /// All outlive this.
  EditorLooks(TesselWidget& control, MainMenu& menu, Preferences& preferences);

 private:
  void Zoom(int points);
  void ApplyFont(ScintillaView& view) const;

  Preferences& preferences_;
  EveryEditor editors_;
  Subscription changed_;
};

/// Zoom, word wrap, visible blanks, tab width and ruler.
void ApplyLooks(QsciScintillaBase& view, const Preferences& preferences);

}  // namespace tessel
