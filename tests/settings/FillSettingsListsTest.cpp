// Filling the panel, its pages, and hiding and showing it.
#include "control/Wiring.h"
#include "settings/SettingsPanel.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class FillSettingsLists : public TesselTest {
 protected:
  /// A panel of its own on the control's hosted controls.
  SettingsPanel& Panel() {
    if (!panel_) {
      levels_ = std::make_unique<Levels>(List(), LevelsControls(C()), LevelsServices(world_.Get()),
                                         conPath_);
      panel_ = std::make_unique<SettingsPanel>(List(), SettingsControls(C()), *levels_, [] {});
    }
    return *panel_;
  }
  std::string Options() {
    std::string on;
    if (C().optCamYes.Value()) on += "cameras yes ";
    if (C().optCamNo.Value()) on += "cameras no ";
    if (C().optFreezYes.Value()) on += "freezer yes ";
    if (C().optFreezNo.Value()) on += "freezer no ";
    return on;
  }

  std::string conPath_;
  std::unique_ptr<Levels> levels_;
  std::unique_ptr<SettingsPanel> panel_;
};

std::vector<std::string> NamesOf(std::span<const Item> items, bool newerDialect) {
  std::vector<std::string> names;
  for (const Item& item : items) {
    if (newerDialect || !item.newerDialectOnly) names.emplace_back(item.name);
  }
  return names;
}

TEST_F(FillSettingsLists, GivesTheNewerDialectItsRowsAlone) {
  for (const char* token : {"Zanth13", "zanth15", "Zanth15 ", "", "Zanth15"}) {
    Panel().FillSettingsLists(token);
    const bool newer = std::string_view(token) == "Zanth15";
    EXPECT_EQ(C().lstPlayers.List(), NamesOf(PlayerItemTable, newer)) << token;
    EXPECT_EQ(C().lstEnemy.List(), NamesOf(EnemyItemTable, newer)) << token;
    EXPECT_EQ(C().lstConMisc.List(), NamesOf(MiscItemTable, newer)) << token;
    EXPECT_EQ(C().lstWeapInfo.ListCount(), 4) << token;
  }
}

TEST_F(FillSettingsLists, FillsTheListsAnewAndThePresetsOnce) {
  C().lstWeapInfo.Pick(0);
  C().cmbweap[0].AddItem("mine");
  Panel().FillSettingsLists("Zanth15");
  EXPECT_EQ(C().lstWeapon.ListCount(), 0);
  EXPECT_EQ(C().lstWeapInfo.ListIndex(), kNoSelection);
  EXPECT_EQ(C().lstPlayers.ListCount(), std::ssize(PlayerItemTable));
  EXPECT_EQ(C().cmbweap[0].ListCount(), 24);
  EXPECT_EQ(C().cmbweap[1].ListCount(), 23);
}

TEST_F(FillSettingsLists, LooksOnlyAtTheFirstBoxForThePresets) {
  C().cmbweap[0].Clear();
  Panel().FillSettingsLists("Zanth15");
  EXPECT_EQ(C().cmbweap[0].ListCount(), 23);
  EXPECT_EQ(C().cmbweap[3].ListCount(), 46);
}

TEST_F(FillSettingsLists, LeavesOptionsAndLevelsAloneForAnEmptyDocument) {
  EXPECT_EQ(Options(), "");
  C().cboEpisode.AddItem("0 7");
  C().optCamYes.SetValue(true);
  Panel().FillSettingsLists("Zanth15");
  EXPECT_EQ(Options(), "cameras yes ");
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 7"));
}

TEST_F(FillSettingsLists, ReadsTheOptionsAndTheLevelsOfADocument) {
  SetDocument(
      "define [A] 1\r\ndefine CAMERASDESTRUCTABLE YES // x\r\ndefine FREEZERHURTOWNER NO\r\n"
      "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n");
  const std::string before = Current().Text();
  Panel().FillSettingsLists("Zanth15");
  EXPECT_EQ(Options(), "cameras yes freezer no ");
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 7"));
  EXPECT_EQ(Document(), "[]" + before);
  EXPECT_EQ(TabOf(0).image, kBlackDot);
  for (int page = 0; page < 4; ++page) EXPECT_FALSE(C().cmbweap[page].Enabled()) << page;
}

TEST_F(FillSettingsLists, TakesAnythingButYesForNo) {
  SetDocument("[]// x\r\ndefine FREEZERHURTOWNER yes\r\n");
  Panel().FillSettingsLists("Zanth15");
  EXPECT_EQ(Options(), "cameras no freezer no ");
}

TEST_F(FillSettingsLists, IsNotRepeatedWhenAnotherDocumentComes) {
  Open("/a.con", "define CAMERASDESTRUCTABLE YES\r\ndefine FREEZERHURTOWNER YES");
  EXPECT_EQ(Options(), "");
  C().optCamNo.Press();
  Open("/b.con", "define CAMERASDESTRUCTABLE YES");
  C().tbsRtb.Press(1);
  EXPECT_EQ(Options(), "cameras no ");
}

using SettingsPages = FillSettingsLists;

TEST_F(SettingsPages, ShowTheSelectedOneAndParkTheRest) {
  for (int selected = 0; selected < 6; ++selected) {
    C().tbsCon.Press(selected + 1);
    for (int page = 0; page < 6; ++page) {
      EXPECT_EQ(C().picCon[page].Left(), page == selected ? 120 : -20000) << selected << page;
      EXPECT_EQ(C().picCon[page].Enabled(), page == selected) << selected << page;
    }
    EXPECT_EQ(C().tbToolBar.Find("RandSec")->enabled, selected < 4) << selected;
  }
}

TEST_F(SettingsPages, FillTheLevelsWhenTheirPageIsShownWithoutAny) {
  SetDocument("[]definelevelname 0 1 A.map 00:00 00:00 A\n");
  C().tbsCon.Press(6);
  EXPECT_EQ(C().cboEpisode.ListCount(), 0);
  C().tbsCon.Press(5);
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));

  SetDocument("[]definelevelname 0 2 A.map 00:00 00:00 A\n");
  C().tbsCon.Press(1);
  C().tbsCon.Press(5);
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));
}

using SettingsStrip = FillSettingsLists;

TEST_F(SettingsStrip, IsHiddenWithAllItsPages) {
  C().tbsCon.Press(2);
  C().tbToolBar.Press("ShowTabs");
  EXPECT_FALSE(C().tbToolBar.Pressed("ShowTabs"));
  EXPECT_EQ(C().tbsCon.Height(), 0);
  EXPECT_EQ(C().tbsCon.Left(), -20000);
  for (int page = 0; page < 6; ++page) {
    EXPECT_EQ(C().picCon[page].Left(), -20000) << page;
    EXPECT_FALSE(C().picCon[page].Enabled()) << page;
  }
  EXPECT_EQ(C().tbsRtb.Top(), 420);
  EXPECT_EQ(C().tbsRtb.Height(), 9000 - 420);
  EXPECT_EQ(Current().Height(), 9000 - 420 - 400 - 60);
}

TEST_F(SettingsStrip, ComesBackAtItsHeightWithItsPage) {
  C().tbsCon.Press(2);
  C().tbsCon.SetHeight(1234);
  C().tbToolBar.Press("ShowTabs");
  C().tbToolBar.Press("ShowTabs");
  EXPECT_EQ(C().tbsCon.Height(), 2055);
  EXPECT_EQ(C().tbsCon.Left(), 0);
  EXPECT_EQ(C().picCon[1].Left(), 120);
  EXPECT_TRUE(C().picCon[1].Enabled());
  EXPECT_EQ(C().tbsRtb.Top(), 420 + 2055);
  EXPECT_EQ(C().tbsRtb.Height(), 9000 - 420 - 2055);
}

TEST_F(SettingsStrip, RefreshesTheLevelsPageWhenItComesBack) {
  C().tbsCon.Press(5);
  C().tbToolBar.Press("ShowTabs");
  SetDocument("[]definelevelname 0 1 A.map 00:00 00:00 A\n");
  C().tbToolBar.Press("ShowTabs");
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));
  EXPECT_FALSE(C().tbToolBar.Find("RandSec")->enabled);
}

}  // namespace
}  // namespace tessel::test
