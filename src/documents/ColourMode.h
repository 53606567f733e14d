// The two ways in which a document is shown: coloured, or in plain black.
#pragma once

#include <functional>
#include <string>

#include "services/Services.h"
#include "surface/HostedControls.h"

namespace tessel {

/// Where status texts for the host go.
using StatusText = std::function<void(const std::string&)>;

/// Applies the state of the "Colorize" button to the current document.
void ApplyColourMode(HostedControls& controls, ScreenPointer& pointer, const StatusText& status);

}  // namespace tessel
