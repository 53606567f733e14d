// The word list editor.
#pragma once

#include "models/Buttons.h"
#include "models/Form.h"
#include "models/Lists.h"
#include "models/TextBox.h"

namespace tessel {

/// The form's controls. What they do is WordEditor's.
class frmAddParam : public Form {
 public:
  frmAddParam() : Form("frmAddParam", "Edit or add words/parameters") {
    txtParams.SetMultiLine(true);
    cmdNew.SetCaption("&New");
    cmdSave.SetCaption("&Save");
    cmdDelete.SetCaption("&Delete");
    cmdExit.SetCaption("E&xit");
  }

  CommandButton* CancelButton() override { return &cmdExit; }

  ListBox lstWords{controls, "lstWords"};
  TextBox txtParam{controls, "txtParam"};
  TextBox txtParams{controls, "txtParams"};
  CommandButton cmdNew{controls, "cmdNew"};
  CommandButton cmdSave{controls, "cmdSave"};
  CommandButton cmdDelete{controls, "cmdDelete"};
  CommandButton cmdExit{controls, "cmdExit"};
};

}  // namespace tessel
