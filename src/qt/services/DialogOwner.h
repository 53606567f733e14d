// Whose the dialogs of the desktop are.
#pragma once

class QWidget;

namespace tessel {

/// The window in front of which a dialog is to open: the active one, or one that can be seen while
/// another program is active. Null when there is none.
QWidget* DialogOwner();

}  // namespace tessel
