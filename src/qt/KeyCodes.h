// Keys by the control's own numbers.
#pragma once

#include <Qt>

namespace tessel {

/// The code of a letter, digit or function key; 0 for any other key.
int KeyCodeOf(int qtKey);
/// 1 for Shift, 2 for Ctrl, 4 for Alt, added.
int ShiftMaskOf(Qt::KeyboardModifiers modifiers);

}  // namespace tessel
