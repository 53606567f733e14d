#include "surface/HostedControls.h"

#include <vector>

namespace tessel {
namespace {

ButtonMenuItem Separator(std::string key = {}) { return {"-", std::move(key), {}}; }

void AddToolbarButtons(Toolbar& toolbar) {
  using enum ButtonStyle;
  toolbar.Add({"FileNew",
               "New con file",
               kDropDown,
               {{"User.con: 1.3D", "13DU", {}},
                {"User.con: 1.4/1.5 ", "15AU", {}},
                Separator(),
                {"Defs.con: 1.3D ", "13DD", {}},
                {"Defs.con: 1.4/1.5", "15AD", {}},
                Separator(),
                {"Game.con: 1.3D ", "13DG", {}},
                {"Game.con: 1.4/1.5", "15AG", {}},
                Separator()}});
  toolbar.Add({"FileOpen", "Open con file"});
  toolbar.Add({"FileClose", "Close con file"});
  toolbar.Add({"FileSave", "Save con file"});
  toolbar.Add({"", "", kSeparator});
  toolbar.Add({"Cut", "Cut"});
  toolbar.Add({"Copy", "Copy"});
  toolbar.Add({"Paste", "Paste"});
  toolbar.Add({"Find", "Find..."});
  toolbar.Add({"Tools",
               "Tools",
               kDropDown,
               {{"Comment Block /* */", "CommentBlock", {}},
                {"Comment Line //", "CommentLine", {}},
                {"Uppercase Selected Text", "Uppercase", {}},
                {"Lowercase Selected Text", "Lowercase", {}},
                {"Indent Selected Text", "Indent", {}},
                Separator("spc2"),
                {"Parameter Info", "Parameter", {}}}});
  toolbar.Add({"RandAll", "Randomize all sections"});
  toolbar.Add({"RandSec",
               "Randomize current section",
               kDropDown,
               {{"Randomize Player Items", "Player", {}},
                {"Randomize Weapon Items", "Weapon", {}},
                {"Randomize Enemy Items", "Enemy", {}},
                {"Randomize Misc Items", "Misc", {}}}});
  toolbar.Add({"Convert", "Convert con to Version 1.5"});
  toolbar.Add({"Colorize", "Colorize code editor", kTwoState, {}, true, true});
  toolbar.Add({"ShowTabs", "Show/Hide Tabs", kTwoState, {}, true, true});
}

MenuItem Item(std::string name, std::string caption, std::vector<MenuItem> children = {}) {
  return {std::move(name), std::move(caption), std::move(children)};
}

std::vector<MenuItem> EditorPopupItems() {
  return {
      Item("mnuRtbPopupFile", "&File...",
           {Item("mnuRtbPopupFileOpen", "&Open"), Item("mnuRtbPopupFileClose", "&Close"),
            Item("mnuRtbPopupFileSave", "&Save"), Item("mnuRtbPopupFileSaveAs", "Save &As...")}),
      Item("mnuRtbPopupEdit", "&Edit",
           {Item("mnuRtbPopupEditUndo", "&Undo"), Item("", "-"), Item("mnuRtbPopupEditCut", "C&ut"),
            Item("mnuRtbPopupEditCopy", "&Copy"), Item("mnuRtbPopupEditPaste", "&Paste"),
            Item("mnuRtbPopupEditDelete", "&Delete"), Item("mnuRtbPopupEditSel", "&Select All")}),
      Item("", "-"),
      Item(
          "mnuRtbPopupTools", "&Tools",
          {Item("mnuRtbPopupToolsUpper", "&Uppercase"), Item("mnuRtbPopupToolsLower", "&Lowercase"),
           Item("", "-"), Item("mnuRtbPopupToolsMremark", "Re&mark (/* */)"),
           Item("mnuRtbPopupToolsRremark", "Remar&k (//)"),
           Item("mnuRtbPopupToolsUnremark", "Remo&ve Remark"),
           Item("mnuRtbPopupToolsIndent", "&Indent"), Item("", "-"),
           Item("mnuRtbPopupToolsParameters", "&Parameter Info")}),
      Item("mnuRtbPopupFind", "&Find..."),
      Item("mnuRtbPopupFindNext", "Find &Next"),
  };
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
