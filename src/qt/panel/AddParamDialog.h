// The dialog of frmAddParam.
#pragma once

#include "qt/panel/FormDialog.h"
#include "words/frmAddParam.h"

namespace tessel {

class AddParamDialog : public FormDialog {
  Q_OBJECT

 public:
  AddParamDialog(frmAddParam& form, WidgetMap& widgets, QWidget* parent);
};

}  // namespace tessel
