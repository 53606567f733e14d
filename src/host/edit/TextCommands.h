// Commands of the Edit and Search menus that the control does not have.
#pragma once

#include "host/menu/MainMenu.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// Comments the lines of the selection, or takes that back: one edit of the user's. True when it
/// has changed the text.
bool ToggleCommentLines(TesselWidget& control);

/// Asks for a line of the document in front and goes there.
void AskForLine(TesselWidget& control);

/// Puts the caret at the start of a line, from 1; beyond the last one it is the last. Lines end as
/// the editor shows them: CR, LF and CR LF.
void GoToLine(TesselWidget& control, int line);

}  // namespace tessel
