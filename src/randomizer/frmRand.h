// The dialog that asks for the randomizer's range.
#pragma once

#include "models/Buttons.h"
#include "models/ControlArray.h"
#include "models/Form.h"
#include "models/Lists.h"

namespace tessel {

/// The form's controls. cmbChoose(0) holds the lower bound, cmbChoose(1) the upper one.
class frmRand : public Form {
 public:
  frmRand() : Form("frmRand", "User Con Randomizer") {
    lblRange.SetCaption("Select Numeric Range");
    lblLower.SetCaption("Lower Bounds");
    lblUpper.SetCaption("Upper Bounds");
    chkLvLw.SetCaption("If value encountered is less than Lower Bounds, leave as is.");
    chkLvUp.SetCaption("If value encountered is greater than Upper Bounds, leave as is.");
    cmdOk.SetCaption("OK");
    cmdCancel.SetCaption("Cancel");
  }

  CommandButton* DefaultButton() override { return &cmdOk; }
  CommandButton* CancelButton() override { return &cmdCancel; }

  Label lblRange{controls, "lblRange"};
  Label lblLower{controls, "lblLower"};
  Label lblUpper{controls, "lblUpper"};
  ControlArray<ComboBox> cmbChoose{controls, "cmbChoose", 2};
  CheckBox chkLvLw{controls, "chkLvLw"};
  CheckBox chkLvUp{controls, "chkLvUp"};
  CommandButton cmdOk{controls, "cmdOk"};
  CommandButton cmdCancel{controls, "cmdCancel"};
};

}  // namespace tessel
