// The dialogs of the control's forms.
#pragma once

#include "qt/panel/FormDialog.h"

namespace tessel {

/// The dialog for that form, by what it is. Its controls are entered in `widgets`.
FormDialog* MakeFormDialog(Form& form, WidgetMap& widgets, QWidget* parent);

}  // namespace tessel
