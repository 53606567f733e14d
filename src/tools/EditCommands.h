// The edit commands of the menus, on one editor.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "models/RichTextBox.h"
#include "services/Services.h"

namespace tessel {

/// Clears the clipboard and puts the selected text on it.
void Copy(const RichTextBox& editor, Clipboard& clipboard);
/// Copy, then the selection goes; with nothing selected the clipboard is left empty.
void Cut(RichTextBox& editor, Clipboard& clipboard);
/// Replaces the selection with the clipboard's text.
void Paste(RichTextBox& editor, Clipboard& clipboard);
/// Takes the last edit back; the buffer is empty afterwards, so that there is no second step.
void UndoOnce(RichTextBox& editor, Focus& focus);
/// Selects the whole text, and keeps the selection in sight when the focus moves.
void SelectAll(RichTextBox& editor);

/// Replaces the selection by what the function makes of it.
void TransformSelection(RichTextBox& editor,
                        const std::function<std::string(std::string_view)>& tool);

}  // namespace tessel
