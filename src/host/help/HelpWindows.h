// What the Help menu shows.
#pragma once

#include "host/menu/MainMenu.h"

namespace tessel {

/// The manual, in a window of its own; brought to the front when it is open.
void ShowManual(QWidget& parent);

/// Every command that has keys, in the order of the menus.
void ShowShortcuts(QWidget& parent, const MainMenu& menu);

}  // namespace tessel
