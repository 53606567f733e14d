// How a document is shown: coloured, or in plain black.
#pragma once

#include "models/RichTextBox.h"

namespace tessel {

/// Kept in an editor's tag: "COLOR", "BW", or nothing for a free slot.
enum class ColourMode { kNone, kPlain, kColoured };

ColourMode ColourModeOf(const RichTextBox& editor);
void SetColourMode(RichTextBox& editor, ColourMode mode);

}  // namespace tessel
