#include "settings/SettingsPanel.h"

#include <span>

#include "settings/Defines.h"

namespace tessel {
namespace {

constexpr const char* kIgnoredText = "  ";  // a value box's text that is never written

void FillList(ListBox& list, std::span<const Item> items, bool newerDialect) {
  list.Clear();
  for (const Item& item : items) {
    if (newerDialect || !item.newerDialectOnly) list.AddItem(std::string(item.name));
  }
}

const Item* SelectedItem(const ListBox& list, std::span<const Item> items) {
  return list.ListIndex() == kNoSelection ? nullptr
                                          : &items[static_cast<std::size_t>(list.ListIndex())];
}

bool YesOrNoSelected(const RichTextBox& editor) {
  return editor.SelBytes() == "YES" || editor.SelBytes() == "NO";
}

}  // namespace

void SettingsPanel::FillSettingsLists(std::string_view versionToken) {
  const bool newerDialect = versionToken == kNewerDialect;
  FillList(controls_.lstPlayers, PlayerItemTable, newerDialect);
  controls_.lstWeapInfo.Clear();
  for (const WeaponCategory& category : WeaponCategoryTable) {
    controls_.lstWeapInfo.AddItem(std::string(category.name));
  }
  controls_.lstWeapon.Clear();
  FillList(controls_.lstEnemy, EnemyItemTable, newerDialect);
  FillList(controls_.lstConMisc, MiscItemTable, newerDialect);
  AddPresets();

  RichTextBox& editor = documents_.CurrentEditor();
  if (editor.Length() == 0) return;
  (ReadYesNo(editor, kCamerasDestructable) ? controls_.optCamYes : controls_.optCamNo)
      .SetValue(true);
  (ReadYesNo(editor, kFreezerHurtOwner) ? controls_.optFreezYes : controls_.optFreezNo)
      .SetValue(true);
  editor.SetSelStart(0);
  editor.SetSelLength(0);
  levels_.FillLevelList();
}

void SettingsPanel::AddPresets() {
  if (controls_.cmbweap[0].ListCount() > 0) return;
  for (const std::string& value : PresetValues()) {
    for (int i = 0; i < controls_.cmbweap.Count(); ++i) controls_.cmbweap[i].AddItem(value);
  }
}

void SettingsPanel::ShowSettingsPanel(bool show) {
  if (show) {
    tbsCon_Click();
    controls_.tbsCon.SetHeight(kSettingsStripHeight);
    controls_.tbsCon.SetLeft(0);
  } else {
    controls_.tbsCon.SetHeight(0);
    controls_.tbsCon.SetLeft(kParkedLeft);
    for (int page = 0; page < controls_.tbsCon.Count(); ++page) {
      controls_.picCon[page].SetLeft(kParkedLeft);
      controls_.picCon[page].SetEnabled(false);
    }
  }
  layOut_();
}

void SettingsPanel::BringIntoSight() {
  if (!Hidden()) return;
  controls_.tbToolBar.SetPressed("ShowTabs", true);
  ShowSettingsPanel(true);
}

void SettingsPanel::tbsCon_Click() {
  const int selected = controls_.tbsCon.Selected() - 1;
  for (int page = 0; page < controls_.tbsCon.Count(); ++page) {
    controls_.picCon[page].SetLeft(page == selected ? 120 : kParkedLeft);
    controls_.picCon[page].SetEnabled(page == selected);
  }
  controls_.tbToolBar.SetButtonEnabled("RandSec", selected < kValuePages);
  if (selected == kLevelPage && controls_.cboEpisode.ListCount() == 0) levels_.FillLevelList();
}

void SettingsPanel::EnableValue(int page) {
  controls_.cmbweap[page].SetEnabled(true);
  controls_.lblValue[page].SetEnabled(true);
}

void SettingsPanel::ShowValueOf(std::string_view key, bool wholeWord, int page) {
  RichTextBox& editor = documents_.CurrentEditor();
  EnableValue(page);
  editor.SetHideSelection(true);
  const Position position = FindDefine(editor, key, wholeWord);
  ShowDefineValue(editor, position, controls_.cmbweap[page], bSettingValueBox_);
}

void SettingsPanel::lstPlayers_Click() {
  if (const Item* item = SelectedItem(controls_.lstPlayers, PlayerItemTable)) {
    ShowValueOf(item->key, true, kPlayerPage);
  }
}

void SettingsPanel::lstEnemy_Click() {
  if (const Item* item = SelectedItem(controls_.lstEnemy, EnemyItemTable)) {
    ShowValueOf(item->key, true, kEnemyPage);
  }
}

void SettingsPanel::lstConMisc_Click() {
  if (const Item* item = SelectedItem(controls_.lstConMisc, MiscItemTable)) {
    ShowValueOf(item->key, false, kMiscPage);
  }
}

void SettingsPanel::lstWeapInfo_Click() {
  const int category = controls_.lstWeapInfo.ListIndex();
  if (category == kNoSelection) return;
  const WeaponCategory& rules = WeaponCategoryTable[static_cast<std::size_t>(category)];
  RichTextBox& editor = documents_.CurrentEditor();
  controls_.lstWeapon.Clear();
  EnableValue(kWeaponPage);
  controls_.cmbweap[kWeaponPage].SetText(kIgnoredText);
  editor.SetHideSelection(true);
  for (const Weapon& weapon : rules.weapons) controls_.lstWeapon.AddItem(std::string(weapon.name));
  FindDefine(editor, rules.sectionMarker, false);
}

void SettingsPanel::lstWeapon_Click() {
  const int weapon = controls_.lstWeapon.ListIndex();
  if (weapon == kNoSelection) return;
  const std::string key =
      WeaponKey(controls_.lstWeapInfo.ListIndex(), controls_.lstWeapon.List(weapon), weapon);
  ShowValueOf(key, false, kWeaponPage);
}

void SettingsPanel::cmbweap_Change(int index) {
  RichTextBox& editor = documents_.CurrentEditor();
  if (YesOrNoSelected(editor)) return;
  ComboBox& box = controls_.cmbweap[index];
  const std::string text = box.Text();
  if (text.empty() || text == " ") {
    box.SetText("0");  // comes back here, and is written then
  } else if (text != kIgnoredText) {
    WriteSelectedValue(editor, text, bSettingValueBox_, [this](std::string_view newText) {
      return mayWrite_(PanelWrite::kValue, newText);
    });
  }
}

void SettingsPanel::cmbweap_Click(int index) {
  RichTextBox& editor = documents_.CurrentEditor();
  const ComboBox& box = controls_.cmbweap[index];
  // The first preset, "0", writes nothing.
  if (YesOrNoSelected(editor) || box.ListIndex() < 1) return;
  const std::string value = box.List(box.ListIndex());
  if (mayWrite_(PanelWrite::kValue, value)) ReplaceValue(editor, value);
}

void SettingsPanel::WriteYesNo(std::string_view name, bool yes) {
  RichTextBox& editor = documents_.CurrentEditor();
  EnableValue(kMiscPage);
  editor.SetHideSelection(true);
  FindDefine(editor, name, true);
  SelectDefineValue(
      editor, yes ? YesNoWrite::kYes : YesNoWrite::kNo,
      [this](std::string_view value) { return mayWrite_(PanelWrite::kYesNo, value); });
}

void SettingsPanel::optCamYes_Click() { WriteYesNo(kCamerasDestructable, true); }
void SettingsPanel::optCamNo_Click() { WriteYesNo(kCamerasDestructable, false); }
void SettingsPanel::optFreezYes_Click() { WriteYesNo(kFreezerHurtOwner, true); }
void SettingsPanel::optFreezNo_Click() { WriteYesNo(kFreezerHurtOwner, false); }

}  // namespace tessel
