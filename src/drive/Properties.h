// The properties of one control as the person sees them.
#pragma once

#include "drive/Json.h"
#include "drive/Player.h"

namespace tessel::drive {

/// All properties that the control has, as an object.
Json PropertiesOf(const Control& control, const Sight& sight);

/// [start, length, colour] of every maximal run that is not black.
Json ColoursOf(const RichTextBox& editor, const Sight& sight);

}  // namespace tessel::drive
