// The two ways in which a document is shown: coloured, or in plain black.
#pragma once

#include <functional>
#include <string>

#include "models/RichTextBox.h"
#include "services/Services.h"

namespace tessel {

/// Where status texts for the host go.
using StatusText = std::function<void(const std::string&)>;

/// Colours a document, or shows it in plain black, as the "Colorize" button says.
void ApplyColourMode(bool colorize, RichTextBox& editor, ScreenPointer& pointer,
                     const StatusText& status);

}  // namespace tessel
