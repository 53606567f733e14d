#include "surface/HostedControls.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace tessel {
namespace {

struct Button {
  std::string_view key;
  std::string_view toolTip;
  ButtonStyle style = ButtonStyle::kButton;
  bool pressed = false;
};

constexpr Button kButtons[] = {
    {"FileNew", "New con file", ButtonStyle::kDropDown},
    {"FileOpen", "Open con file"},
    {"FileClose", "Close con file"},
    {"FileSave", "Save con file"},
    {"", "", ButtonStyle::kSeparator},
    {"Cut", "Cut"},
    {"Copy", "Copy"},
    {"Paste", "Paste"},
    {"Find", "Find..."},
    {"Tools", "Tools", ButtonStyle::kDropDown},
    {"RandAll", "Randomize all sections"},
    {"RandSec", "Randomize current section", ButtonStyle::kDropDown},
    {"Convert", "Convert con to Version 1.5"},
    {"Colorize", "Colorize code editor", ButtonStyle::kTwoState, true},
    {"ShowTabs", "Show/Hide Tabs", ButtonStyle::kTwoState, true},
};

constexpr std::string_view kLine = "-";

struct DropDownItem {
  std::string_view button;
  std::string_view text;
  std::string_view key = {};
};

constexpr DropDownItem kDropDownItems[] = {
    {"FileNew", "User.con: 1.3D", "13DU"},
    {"FileNew", "User.con: 1.4/1.5 ", "15AU"},
    {"FileNew", kLine},
    {"FileNew", "Defs.con: 1.3D ", "13DD"},
    {"FileNew", "Defs.con: 1.4/1.5", "15AD"},
    {"FileNew", kLine},
    {"FileNew", "Game.con: 1.3D ", "13DG"},
    {"FileNew", "Game.con: 1.4/1.5", "15AG"},
    {"FileNew", kLine},
    {"Tools", "Comment Block /* */", "CommentBlock"},
    {"Tools", "Comment Line //", "CommentLine"},
    {"Tools", "Uppercase Selected Text", "Uppercase"},
    {"Tools", "Lowercase Selected Text", "Lowercase"},
    {"Tools", "Indent Selected Text", "Indent"},
    {"Tools", kLine, "spc2"},
    {"Tools", "Parameter Info", "Parameter"},
    {"RandSec", "Randomize Player Items", "Player"},
    {"RandSec", "Randomize Weapon Items", "Weapon"},
    {"RandSec", "Randomize Enemy Items", "Enemy"},
    {"RandSec", "Randomize Misc Items", "Misc"},
};

struct PopupItem {
  std::string_view subMenu;  ///< where it stands; empty: in the menu itself
  std::string_view caption;
  std::string_view name = {};
};

// A sub-menu stands in front of its items.
constexpr PopupItem kPopupItems[] = {
    {"", "&File...", "mnuRtbPopupFile"},
    {"mnuRtbPopupFile", "&Open", "mnuRtbPopupFileOpen"},
    {"mnuRtbPopupFile", "&Close", "mnuRtbPopupFileClose"},
    {"mnuRtbPopupFile", "&Save", "mnuRtbPopupFileSave"},
    {"mnuRtbPopupFile", "Save &As...", "mnuRtbPopupFileSaveAs"},
    {"", "&Edit", "mnuRtbPopupEdit"},
    {"mnuRtbPopupEdit", "&Undo", "mnuRtbPopupEditUndo"},
    {"mnuRtbPopupEdit", kLine},
    {"mnuRtbPopupEdit", "C&ut", "mnuRtbPopupEditCut"},
    {"mnuRtbPopupEdit", "&Copy", "mnuRtbPopupEditCopy"},
    {"mnuRtbPopupEdit", "&Paste", "mnuRtbPopupEditPaste"},
    {"mnuRtbPopupEdit", "&Delete", "mnuRtbPopupEditDelete"},
    {"mnuRtbPopupEdit", "&Select All", "mnuRtbPopupEditSel"},
    {"", kLine},
    {"", "&Tools", "mnuRtbPopupTools"},
    {"mnuRtbPopupTools", "&Uppercase", "mnuRtbPopupToolsUpper"},
    {"mnuRtbPopupTools", "&Lowercase", "mnuRtbPopupToolsLower"},
    {"mnuRtbPopupTools", kLine},
    {"mnuRtbPopupTools", "Re&mark (/* */)", "mnuRtbPopupToolsMremark"},
    {"mnuRtbPopupTools", "Remar&k (//)", "mnuRtbPopupToolsRremark"},
    {"mnuRtbPopupTools", "Remo&ve Remark", "mnuRtbPopupToolsUnremark"},
    {"mnuRtbPopupTools", "&Indent", "mnuRtbPopupToolsIndent"},
    {"mnuRtbPopupTools", kLine},
    {"mnuRtbPopupTools", "&Parameter Info", "mnuRtbPopupToolsParameters"},
    {"", "&Find...", "mnuRtbPopupFind"},
    {"", "Find &Next", "mnuRtbPopupFindNext"},
};

void AddToolbarButtons(Toolbar& toolbar) {
  for (const Button& row : kButtons) {
    ToolbarButton button = {std::string(row.key), std::string(row.toolTip), row.style};
    button.pressed = row.pressed;
    for (const DropDownItem& item : kDropDownItems) {
      if (item.button == row.key) {
        button.menu.push_back({std::string(item.text), std::string(item.key), {}});
      }
    }
    toolbar.Add(std::move(button));
  }
}

std::vector<MenuItem> EditorPopupItems() {
  std::vector<MenuItem> items;
  for (const PopupItem& row : kPopupItems) {
    const auto subMenu = std::ranges::find(items, row.subMenu, &MenuItem::name);
    (row.subMenu.empty() ? items : subMenu->children)
        .push_back({std::string(row.name), std::string(row.caption), {}});
  }
  return items;
}

}  // namespace

HostedControls::HostedControls() {
  tbToolBar.SetHeight(420);
  AddToolbarButtons(tbToolBar);

  for (const auto& [caption, key] : {std::pair{"Player Items", "Player"},
                                     {"Weapon Items", "Weapon"},
                                     {"Enemy Items", "Enemy"},
                                     {"Misc Items", "Misc"},
                                     {"Levels/Maps", "Level"},
                                     {"Functions", "Functions"}}) {
    tbsCon.Add({caption, key, {}, {}});
  }
  tbsCon.SetHeight(kSettingsStripHeight);

  for (int page = 0; page < kSettingsPages; ++page) {
    picCon[page].SetHeight(kSettingsStripHeight - 350 - 60);
    picCon[page].SetContainer(&tbsCon);
    fraCon[page].SetHeight(picCon[page].Height());
    fraCon[page].SetContainer(&picCon[page]);
  }
  for (int page = 0; page < kValuePages; ++page) {
    cmbweap[page].SetContainer(&fraCon[page]);
    cmbweap[page].SetEnabled(false);
    lblValue[page].SetContainer(&fraCon[page]);
    lblValue[page].SetCaption("Current Value:");
    lblValue[page].SetEnabled(false);
  }
  const auto place = [this](SettingsPage page, std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->SetContainer(&fraCon[page]);
  };
  place(kPlayerPage, {&lstPlayers});
  place(kWeaponPage, {&lstWeapInfo, &lstWeapon});
  place(kEnemyPage, {&lstEnemy});
  place(kMiscPage, {&lstConMisc, &optCamYes, &optCamNo, &optFreezYes, &optFreezNo});
  place(kLevelPage, {&cboEpisode, &txtMap, &cmdMap, &txtTitle, &cmdInsert[0], &cmdInsert[1]});
  place(kFunctionsPage, {&txtSearch, &lstWords, &lblParams, &cmdInsert[2], &cmdAddword});

  OptionButton::Pair(optCamYes, optCamNo);
  OptionButton::Pair(optFreezYes, optFreezNo);
  optCamYes.SetCaption("Yes");
  optCamNo.SetCaption("No");
  optFreezYes.SetCaption("Yes");
  optFreezNo.SetCaption("No");

  cboEpisode.SetEditable(false);
  cmdMap.SetCaption("Browse...");
  for (int i = 0; i < cmdInsert.Count(); ++i) cmdInsert[i].SetCaption("Insert");
  cmdInsert[0].SetEnabled(false);
  cmdInsert[1].SetEnabled(false);
  cmdAddword.SetCaption("Add/Edit...");
  cmdAddword.SetEnabled(false);

  tbsRtb.Add({});
  picRtb.SetContainer(&tbsRtb);
  picRtb.SetLeft(70);  // in the middle of the strip
  rtbCon[0].SetContainer(&picRtb);

  mnuRtbPopup.SetItems(EditorPopupItems());
}

}  // namespace tessel
