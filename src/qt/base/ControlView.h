// What the views of all controls have in common.
#pragma once

#include <QWidget>

#include "models/Control.h"

namespace tessel {

/// Shows the widget or hides it, without letting the toolkit send the focus to a neighbour (which
/// would count as a person going there): it waits on the widget's parent instead.
void ShowOrHide(QWidget& widget, bool shown);
/// The same for a widget's enabled state.
void EnableOrDisable(QWidget& widget, bool enabled);

/// In characters, where the toolkit sets a limit: longer than anything that is typed or searched.
inline constexpr int kLongestTyped = 1 << 20;

/// True when the control is visible and not parked.
bool InSight(const Control& control);

/// Draws what every control has: whether it can be seen and used.
void DrawState(QWidget& widget, const Control& control);

/// True when a person moved the focus, and not the window system because of another window.
bool MovedByPerson(Qt::FocusReason reason);

}  // namespace tessel
