// Message boxes that are as wide as their titles.
#pragma once

#include <QMessageBox>

namespace tessel {

/// Makes the box wide enough for its window's title with the buttons beside it, and never a sliver.
/// To be called when it has its title and before it is shown.
void KeepRoomForTitle(QMessageBox& box);

}  // namespace tessel
