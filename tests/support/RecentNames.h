// The recent files as a person sees them.
#pragma once

#include <string>
#include <vector>

#include "documents/RecentFiles.h"

namespace tessel::test {

/// Texts of the recent files, the newest first.
inline std::vector<std::string> RecentNames(const Toolbar& toolbar) {
  std::vector<std::string> names;
  for (int k = FirstRecentFile(toolbar); k <= toolbar.MenuCount("FileNew"); ++k) {
    names.push_back(toolbar.MenuItem("FileNew", k).text);
  }
  return names;
}

/// Chooses a recent file: 0 is the newest.
inline void ChooseRecentFile(Toolbar& toolbar, int recent) {
  toolbar.PressMenuItem("FileNew", FirstRecentFile(toolbar) + recent);
}

}  // namespace tessel::test
