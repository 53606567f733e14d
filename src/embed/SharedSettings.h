// The settings of all controls in this program.
#pragma once

#include <memory>
#include <string>

#include "services/Services.h"

namespace tessel {

/// The settings in a file, one store for all that ask for the same path: so they share it also when
/// it has to go on in memory. Lives as long as one of them does. A problem is told in a message box
/// as soon as the event loop runs.
std::shared_ptr<SettingsStore> SharedSettings(const std::string& path);

}  // namespace tessel
