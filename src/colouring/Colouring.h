// The one-shot colouring of a document.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "models/RichTextBox.h"
#include "services/Services.h"

namespace tessel {

/// Colours comments, definition commands and script words of the whole text, unless the editor's
/// tag says that this was done already; text typed afterwards is not coloured.
///
/// `status` gets a line before and a line after the pass. The editor is parked while it works, so
/// that its changes mark nothing as modified; afterwards it stands at left 0, visible, the caret
/// at 0. The text itself never changes.
void ColorizeDocument(RichTextBox& editor, const std::function<void(const std::string&)>& status);

/// Colours every occurrence of one word in the level-name blue where it is black, or, for "/", the
/// comments green. Lets pending events run after each occurrence. Neither parks the editor nor
/// touches its tag. The rules have it for recolouring a single word; nothing in the control calls
/// it.
void ColorizeWord(RichTextBox& editor, std::string_view word, MessageLoop& loop);

}  // namespace tessel
