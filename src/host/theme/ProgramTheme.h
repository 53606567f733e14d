// Which colours the program has.
#pragma once

#include <QObject>

#include "host/preferences/Preferences.h"
#include "qt/looks/Theme.h"

namespace tessel {

class DesktopColours;

/// What the user wishes.
ColourScheme WishedScheme(const Preferences& preferences);

/// Gives the program other colours when the user wishes that. "As the desktop"
/// follows the desktop's portal while the program runs, once somebody says so.
class ProgramTheme : public QObject {
  Q_OBJECT

 public:
  /// `preferences` outlives this.
  explicit ProgramTheme(Preferences& preferences);

  /// The program has this scheme already.
  void StartedWith(ColourScheme scheme) { scheme_ = scheme; }
  /// Asks the session's bus, if there is one; none is started.
  void FollowDesktop();

 private:
  void Apply();

  ColourScheme scheme_ = ColourScheme::kDesktop;
  DesktopColours* desktop_ = nullptr;
  Subscription changed_;
};

}  // namespace tessel
