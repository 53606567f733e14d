// The find dialog.
#pragma once

#include "models/Buttons.h"
#include "models/Control.h"
#include "models/Form.h"
#include "models/Lists.h"

namespace tessel {

/// The form's controls, in tab order. What they do is Search's.
class frmFind : public Form {
 public:
  frmFind() : Form("frmFind", "Find") {
    lblFind.SetCaption("Find What:");
    chkFindWholeWord.SetCaption("Find Whole Word &Only");
    chkMatchCase.SetCaption("Match Ca&se");
    cmdFind.SetCaption("&Find");
    cmdCancel.SetCaption("Cancel");
  }

  CommandButton* DefaultButton() override { return &cmdFind; }
  CommandButton* CancelButton() override { return &cmdCancel; }

  Label lblFind{controls, "lblFind"};
  ComboBox cboFind{controls, "cboFind"};
  CheckBox chkFindWholeWord{controls, "chkFindWholeWord"};
  CheckBox chkMatchCase{controls, "chkMatchCase"};
  CommandButton cmdFind{controls, "cmdFind"};
  CommandButton cmdCancel{controls, "cmdCancel"};
};

}  // namespace tessel
