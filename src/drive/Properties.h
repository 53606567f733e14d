// The properties of one control.
#pragma once

#include "drive/Json.h"
#include "models/Control.h"
#include "models/RichTextBox.h"

namespace tessel::drive {

/// All properties that the control has, as an object.
Json PropertiesOf(const Control& control);

/// [start, length, colour] of every maximal run that is not black.
Json ColoursOf(const RichTextBox& editor);

}  // namespace tessel::drive
