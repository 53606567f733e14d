// The dialog of frmRand.
#pragma once

#include "qt/panel/FormDialog.h"
#include "randomizer/frmRand.h"

namespace tessel {

class RandDialog : public FormDialog {
  Q_OBJECT

 public:
  RandDialog(frmRand& form, WidgetMap& widgets, QWidget* parent);

 protected:
  QWidget* FirstWidget() override { return first_; }

 private:
  QWidget* first_ = nullptr;
};

}  // namespace tessel
