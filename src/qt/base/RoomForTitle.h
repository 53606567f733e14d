// Dialogs that are as wide as their titles, and no wider than the screen.
#pragma once

#include <QInputDialog>
#include <QMessageBox>

namespace tessel {

/// Makes the dialog wide enough for its window's title with the buttons beside it, and never a
/// sliver. To be called when it has its title and before it is shown.
void KeepRoomForTitle(QMessageBox& box);
void KeepRoomForTitle(QInputDialog& dialog);

/// As much of the size, in pixels, as the screen has beside its panels and the window's own frame.
QSize OnScreen(const QWidget& window, QSize wanted);

}  // namespace tessel
