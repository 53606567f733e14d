// The command line of Zanth Manager.
#pragma once

#include <QSize>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "qt/looks/Theme.h"

namespace tessel {

struct Options {
  std::vector<std::string> files;  ///< absolute paths
  std::string store;               ///< path of the settings store; empty: the default one
  std::string hostDirectory;       ///< where the templates are
  ColourScheme scheme = ColourScheme::kDesktop;
  /// Whether other programs may use the control; nothing: as the user wishes (Wish::kAutomation).
  std::optional<bool> automation;
  std::string screenshot;     ///< where to leave a picture of the window; empty: none
  std::optional<QSize> size;  ///< of the window, in pixels
};

/// What the arguments ask for; or nothing, with `exitStatus` set, when the program is to end at
/// once (help, version, a bad argument): the message has been written then.
std::optional<Options> ParseOptions(int argc, char** argv, int& exitStatus);

}  // namespace tessel
