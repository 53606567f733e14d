// The control that a command names.
#pragma once

#include "drive/Fields.h"
#include "drive/Stage.h"

namespace tessel::drive {

/// The control named by "control" and "index", of the open form if that has one of the name, else
/// of the surface behind it. Without "index": element 0, of rtbCon the current document's editor. A
/// Refusal when there is none.
Control& NamedControl(Stage& stage, const Fields& fields);

/// The same for a gesture: a Refusal "modal" for a control behind an open form, and "disabled" for
/// one that a person cannot use.
Control& GestureTarget(Stage& stage, const Fields& fields);

/// The editor by "index"; without it the current document's. A Refusal when there is none.
RichTextBox& NamedEditor(Stage& stage, const Fields& fields);
/// The same for a gesture.
RichTextBox& GestureEditor(Stage& stage, const Fields& fields);

/// A Refusal "modal" while a form is open.
void RefuseBehindForm(Stage& stage);
/// A Refusal "disabled" when a person cannot use the control.
void RefuseUnusable(const Control& control);

}  // namespace tessel::drive
