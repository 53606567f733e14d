// The settings panel: its lists, value boxes, option pairs and pages.
#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include "settings/ItemTables.h"
#include "settings/Levels.h"
#include "settings/PanelWrite.h"
#include "surface/DocumentList.h"

namespace tessel {

class SettingsPanel {
 public:
  /// The controls of the pages. They outlive it.
  struct Controls {
    Toolbar& tbToolBar;
    TabStrip& tbsCon;
    ControlArray<PictureBox>& picCon;
    ListBox& lstPlayers;
    ListBox& lstWeapInfo;
    ListBox& lstWeapon;
    ListBox& lstEnemy;
    ListBox& lstConMisc;
    ControlArray<ComboBox>& cmbweap;
    ControlArray<Label>& lblValue;
    OptionButton& optCamYes;
    OptionButton& optCamNo;
    OptionButton& optFreezYes;
    OptionButton& optFreezNo;
    const ComboBox& cboEpisode;
  };

  /// `layOut` places all parts of the surface anew.
  SettingsPanel(const DocumentList& documents, const Controls& controls, Levels& levels,
                std::function<void()> layOut, MayPanelWrite mayWrite = MayAlwaysWrite)
      : documents_(documents),
        controls_(controls),
        levels_(levels),
        layOut_(std::move(layOut)),
        mayWrite_(std::move(mayWrite)) {}

  /// Fills the lists and the presets; rows of the newer dialect only for kNewerDialect. Reads the
  /// YES/NO settings and the levels of the current document unless that is empty.
  void FillSettingsLists(std::string_view versionToken);
  /// Shows or hides the settings strip.
  void ShowSettingsPanel(bool show);
  /// True when the strip is out of sight.
  bool Hidden() const { return controls_.tbsCon.Left() < 0; }
  /// Presses "ShowTabs" and shows the strip when it is out of sight.
  void BringIntoSight();

  void tbsCon_Click();
  void lstPlayers_Click();
  void lstEnemy_Click();
  void lstConMisc_Click();
  void lstWeapInfo_Click();
  void lstWeapon_Click();
  void cmbweap_Change(int index);
  void cmbweap_Click(int index);
  void optCamYes_Click();
  void optCamNo_Click();
  void optFreezYes_Click();
  void optFreezNo_Click();

 private:
  void EnableValue(int page);
  void ShowValueOf(std::string_view key, bool wholeWord, int page);
  void WriteYesNo(std::string_view name, bool yes);
  void AddPresets();

  const DocumentList& documents_;
  Controls controls_;
  Levels& levels_;
  std::function<void()> layOut_;
  MayPanelWrite mayWrite_;
  bool bSettingValueBox_ = false;  // a value box is being set from the text: do not write it back
};

}  // namespace tessel
