// The controls that stand on ucTessel, as its design has them.
#pragma once

#include <string>

#include "models/Buttons.h"
#include "models/CommonDialog.h"
#include "models/ControlArray.h"
#include "models/Lists.h"
#include "models/PopupMenu.h"
#include "models/RichTextBox.h"
#include "models/TabStrip.h"
#include "models/TextBox.h"
#include "models/Toolbar.h"

namespace tessel {

/// Pages of the settings panel, by the 0-based index of their tab on tbsCon and of their picCon.
enum SettingsPage { kPlayerPage, kWeaponPage, kEnemyPage, kMiscPage, kLevelPage, kFunctionsPage };
inline constexpr int kSettingsPages = 6;
/// The first pages hold an item list with a value box each.
inline constexpr int kValuePages = 4;

/// Images of the document tabs.
inline constexpr const char* kRedDot = "RedDot";      ///< changed since load or save
inline constexpr const char* kBlackDot = "BlackDot";  ///< unchanged

/// Height of the settings strip while it is shown.
inline constexpr Twips kSettingsStripHeight = 2055;

/// All hosted controls in their design-time state: one empty document tab, the first category
/// selected, "ShowTabs" and "Colorize" pressed.
struct HostedControls {
  HostedControls();

  ControlSet all;

  /// Inner size of the control.
  Twips scaleWidth = 12000;
  Twips scaleHeight = 9000;

  Toolbar tbToolBar{all, "tbToolBar"};

  TabStrip tbsCon{all, "tbsCon"};
  ControlArray<PictureBox> picCon{all, "picCon", kSettingsPages};
  ControlArray<Frame> fraCon{all, "fraCon", kSettingsPages};

  ListBox lstPlayers{all, "lstPlayers"};
  ListBox lstWeapInfo{all, "lstWeapInfo"};
  ListBox lstWeapon{all, "lstWeapon"};
  ListBox lstEnemy{all, "lstEnemy"};
  ListBox lstConMisc{all, "lstConMisc"};
  ControlArray<ComboBox> cmbweap{all, "cmbweap", kValuePages};
  ControlArray<Label> lblValue{all, "lblValue", kValuePages};
  OptionButton optCamYes{all, "optCamYes"};
  OptionButton optCamNo{all, "optCamNo"};
  OptionButton optFreezYes{all, "optFreezYes"};
  OptionButton optFreezNo{all, "optFreezNo"};

  ComboBox cboEpisode{all, "cboEpisode"};
  TextBox txtMap{all, "txtMap"};
  CommandButton cmdMap{all, "cmdMap"};
  TextBox txtTitle{all, "txtTitle"};
  ControlArray<CommandButton> cmdInsert{all, "cmdInsert", 3};

  TextBox txtSearch{all, "txtSearch"};
  ListBox lstWords{all, "lstWords"};
  Label lblParams{all, "lblParams"};
  CommandButton cmdAddword{all, "cmdAddword"};

  TabStrip tbsRtb{all, "tbsRtb"};
  PictureBox picRtb{all, "picRtb"};
  ControlArray<RichTextBox> rtbCon{all, "rtbCon", 1};

  CommonDialog dlgCommon{all, "dlgCommon"};
  Timer tmrColor{all, "tmrColor"};
  PopupMenu mnuRtbPopup{all, "mnuRtbPopup"};
};

}  // namespace tessel
