// What one tab does to a selection that goes over several lines.
#pragma once

#include "models/RichTextBox.h"

namespace tessel::drive {

/// True when the selection begins on one line and ends on another. CR, LF and CR LF break lines;
/// between the two bytes of a CR LF it is still the line before.
bool SelectsOverLines(const RichTextBox& editor);

/// Indents the selected lines by one tab, as the editor does at the keyboard: one edit. Leading
/// blanks and tabs are written anew, tabs first, at 8 columns each; empty lines stay as they are,
/// and so does the last line when nothing on it is selected. The whole lines are selected
/// afterwards.
void IndentLines(RichTextBox& editor);

}  // namespace tessel::drive
