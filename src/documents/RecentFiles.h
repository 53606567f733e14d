// The recent-file list: the end of the "FileNew" drop-down, mirrored in the settings store.
#pragma once

#include <string>

#include "models/Toolbar.h"
#include "services/Services.h"

namespace tessel {

/// Where the newest recent file stands, or would stand, in the "FileNew" drop-down: behind the last
/// separator. Places count from 1.
int FirstRecentFile(const Toolbar& toolbar);

/// Puts a file on top of the list, unless it is listed already (name and path compared exactly).
/// The oldest of five makes room.
void AddRecentFile(Toolbar& toolbar, SettingsStore& settings, const std::string& name,
                   const std::string& path);

/// Rebuilds the list from the store. An entry that cannot be written back is listed all the same.
void LoadRecentFiles(Toolbar& toolbar, SettingsStore& settings);

}  // namespace tessel
