// The dialog of frmFind.
#pragma once

#include "qt/panel/FormDialog.h"
#include "tools/frmFind.h"

namespace tessel {

class FindDialog : public FormDialog {
  Q_OBJECT

 public:
  FindDialog(frmFind& form, WidgetMap& widgets, QWidget* parent);

 protected:
  QWidget* FirstWidget() override { return first_; }

 private:
  QWidget* first_ = nullptr;
};

}  // namespace tessel
