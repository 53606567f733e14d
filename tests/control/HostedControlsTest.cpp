// The hosted controls as the control's design has them, against tables written down on their own.
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

using HostedControlsTest = TesselTest;

struct Button {
  std::string key, toolTip;
  ButtonStyle style;
  bool pressed;

  friend bool operator==(const Button&, const Button&) = default;
};

TEST_F(HostedControlsTest, HaveTheseToolbarButtons) {
  using enum ButtonStyle;
  std::vector<Button> buttons;
  for (const ToolbarButton& button : C().tbToolBar.Buttons()) {
    buttons.push_back({button.key, button.toolTip, button.style, button.pressed});
    EXPECT_TRUE(button.enabled) << button.key;
  }
  EXPECT_EQ(buttons,
            (std::vector<Button>{{"FileNew", "New con file", kDropDown, false},
                                 {"FileOpen", "Open con file", kButton, false},
                                 {"FileClose", "Close con file", kButton, false},
                                 {"FileSave", "Save con file", kButton, false},
                                 {"", "", kSeparator, false},
                                 {"Cut", "Cut", kButton, false},
                                 {"Copy", "Copy", kButton, false},
                                 {"Paste", "Paste", kButton, false},
                                 {"Find", "Find...", kButton, false},
                                 {"Tools", "Tools", kDropDown, false},
                                 {"RandAll", "Randomize all sections", kButton, false},
                                 {"RandSec", "Randomize current section", kDropDown, false},
                                 {"Convert", "Convert con to Version 1.5", kButton, false},
                                 {"Colorize", "Colorize code editor", kTwoState, true},
                                 {"ShowTabs", "Show/Hide Tabs", kTwoState, true}}));
}

TEST_F(HostedControlsTest, HaveTheseDropDownItems) {
  const auto items = [&](const char* key) {
    std::vector<std::pair<std::string, std::string>> result;
    for (const ButtonMenuItem& item : C().tbToolBar.Find(key)->menu) {
      result.emplace_back(item.text, item.key);
      EXPECT_EQ(item.tag, "");
    }
    return result;
  };
  using Items = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(items("FileNew"), (Items{{"User.con: 1.3D", "13DU"},
                                     {"User.con: 1.4/1.5 ", "15AU"},
                                     {"-", ""},
                                     {"Defs.con: 1.3D ", "13DD"},
                                     {"Defs.con: 1.4/1.5", "15AD"},
                                     {"-", ""},
                                     {"Game.con: 1.3D ", "13DG"},
                                     {"Game.con: 1.4/1.5", "15AG"},
                                     {"-", ""}}));
  EXPECT_EQ(items("Tools"), (Items{{"Comment Block /* */", "CommentBlock"},
                                   {"Comment Line //", "CommentLine"},
                                   {"Uppercase Selected Text", "Uppercase"},
                                   {"Lowercase Selected Text", "Lowercase"},
                                   {"Indent Selected Text", "Indent"},
                                   {"-", "spc2"},
                                   {"Parameter Info", "Parameter"}}));
  EXPECT_EQ(items("RandSec"), (Items{{"Randomize Player Items", "Player"},
                                     {"Randomize Weapon Items", "Weapon"},
                                     {"Randomize Enemy Items", "Enemy"},
                                     {"Randomize Misc Items", "Misc"}}));
  EXPECT_TRUE(items("FileOpen").empty());
}

TEST_F(HostedControlsTest, HaveTheseCategories) {
  std::vector<std::pair<std::string, std::string>> tabs;
  for (int tab = 1; tab <= C().tbsCon.Count(); ++tab) {
    tabs.emplace_back(C().tbsCon.At(tab).caption, C().tbsCon.At(tab).key);
  }
  EXPECT_EQ(tabs, (std::vector<std::pair<std::string, std::string>>{{"Player Items", "Player"},
                                                                    {"Weapon Items", "Weapon"},
                                                                    {"Enemy Items", "Enemy"},
                                                                    {"Misc Items", "Misc"},
                                                                    {"Levels/Maps", "Level"},
                                                                    {"Functions", "Functions"}}));
  EXPECT_EQ(C().tbsCon.Selected(), 1);
}

void Flatten(const std::vector<MenuItem>& items, const std::string& indent,
             std::vector<std::string>& lines) {
  for (const MenuItem& item : items) {
    lines.push_back(indent + item.caption + (item.name.empty() ? "" : " " + item.name));
    Flatten(item.children, indent + "  ", lines);
  }
}

TEST_F(HostedControlsTest, HaveThisPopupMenu) {
  std::vector<std::string> lines;
  Flatten(C().mnuRtbPopup.Items(), "", lines);
  EXPECT_THAT(lines, ElementsAre("&File... mnuRtbPopupFile",                      //
                                 "  &Open mnuRtbPopupFileOpen",                   //
                                 "  &Close mnuRtbPopupFileClose",                 //
                                 "  &Save mnuRtbPopupFileSave",                   //
                                 "  Save &As... mnuRtbPopupFileSaveAs",           //
                                 "&Edit mnuRtbPopupEdit",                         //
                                 "  &Undo mnuRtbPopupEditUndo",                   //
                                 "  -",                                           //
                                 "  C&ut mnuRtbPopupEditCut",                     //
                                 "  &Copy mnuRtbPopupEditCopy",                   //
                                 "  &Paste mnuRtbPopupEditPaste",                 //
                                 "  &Delete mnuRtbPopupEditDelete",               //
                                 "  &Select All mnuRtbPopupEditSel",              //
                                 "-",                                             //
                                 "&Tools mnuRtbPopupTools",                       //
                                 "  &Uppercase mnuRtbPopupToolsUpper",            //
                                 "  &Lowercase mnuRtbPopupToolsLower",            //
                                 "  -",                                           //
                                 "  Re&mark (/* */) mnuRtbPopupToolsMremark",     //
                                 "  Remar&k (//) mnuRtbPopupToolsRremark",        //
                                 "  Remo&ve Remark mnuRtbPopupToolsUnremark",     //
                                 "  &Indent mnuRtbPopupToolsIndent",              //
                                 "  -",                                           //
                                 "  &Parameter Info mnuRtbPopupToolsParameters",  //
                                 "&Find... mnuRtbPopupFind",                      //
                                 "Find &Next mnuRtbPopupFindNext"));
}

TEST_F(HostedControlsTest, StandAsDesigned) {
  EXPECT_EQ(C().scaleWidth, 12000);
  EXPECT_EQ(C().scaleHeight, 9000);
  EXPECT_EQ(C().tbToolBar.Top(), 0);
  EXPECT_EQ(C().tbToolBar.Height(), 420);
  EXPECT_EQ(C().tbsCon.Height(), 2055);
  EXPECT_EQ(C().tbsCon.Left(), 0);
  EXPECT_EQ(C().picCon.Count(), 6);
  EXPECT_EQ(C().fraCon.Count(), 6);
  EXPECT_EQ(C().cmbweap.Count(), 4);
  EXPECT_EQ(C().lblValue.Count(), 4);
  EXPECT_EQ(C().cmdInsert.Count(), 3);
  EXPECT_EQ(C().picCon[0].Left(), 120);
  EXPECT_TRUE(C().picCon[0].Enabled());
  for (int page = 1; page < 6; ++page) EXPECT_EQ(C().picCon[page].Left(), -20000) << page;
  EXPECT_TRUE(C().tbToolBar.Find("RandSec")->enabled);
}

TEST_F(HostedControlsTest, StartWithTheseEnabled) {
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(C().cmbweap[i].Enabled());
    EXPECT_FALSE(C().lblValue[i].Enabled());
  }
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
  EXPECT_TRUE(C().cmdInsert[2].Enabled());
  EXPECT_FALSE(C().cmdAddword.Enabled());
  EXPECT_TRUE(Current().HideSelection());
  EXPECT_FALSE(C().optCamYes.Value() || C().optCamNo.Value() || C().optFreezYes.Value() ||
               C().optFreezNo.Value());
}

TEST_F(HostedControlsTest, OfAParkedPageOrStripCannotBeUsed) {
  C().cmbweap[0].SetEnabled(true);
  C().lstEnemy.SetEnabled(true);
  EXPECT_TRUE(C().cmbweap[0].Usable());
  EXPECT_FALSE(C().lstEnemy.Usable());
  C().tbsCon.Press(3);
  EXPECT_FALSE(C().cmbweap[0].Usable());
  EXPECT_TRUE(C().lstEnemy.Usable());
  C().tbToolBar.Press("ShowTabs");
  EXPECT_FALSE(C().lstEnemy.Usable());
}

TEST_F(HostedControlsTest, AreFoundByName) {
  for (const char* name :
       {"tbToolBar", "tbsCon",      "picCon",     "fraCon",      "tbsRtb",     "picRtb",
        "rtbCon",    "dlgCommon",   "tmrColor",   "mnuRtbPopup", "lstPlayers", "lstWeapInfo",
        "lstWeapon", "lstEnemy",    "lstConMisc", "cmbweap",     "lblValue",   "optCamYes",
        "optCamNo",  "optFreezYes", "optFreezNo", "cboEpisode",  "txtMap",     "cmdMap",
        "txtTitle",  "cmdInsert",   "txtSearch",  "lstWords",    "lblParams",  "cmdAddword"}) {
    EXPECT_NE(C().all.Find(name), nullptr) << name;
  }
  EXPECT_EQ(C().cmdInsert[0].Caption(), "Insert");
  EXPECT_EQ(C().cmdInsert[1].Caption(), "Insert");
}

}  // namespace
}  // namespace tessel::test
