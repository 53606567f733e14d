// Which page each control of the settings panel stands on, and which options belong together.
#include <utility>

#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using PageControlsTest = TesselTest;

TEST_F(PageControlsTest, StandInTheFrameOfTheirPage) {
  const auto expectOn = [this](SettingsPage page, std::initializer_list<class Control*> controls) {
    for (const class Control* control : controls) {
      EXPECT_EQ(control->Container(), &C().fraCon[page]) << control->Name() << control->Index();
    }
  };
  expectOn(kPlayerPage, {&C().lstPlayers, &C().cmbweap[kPlayerPage], &C().lblValue[kPlayerPage]});
  expectOn(kWeaponPage, {&C().lstWeapInfo, &C().lstWeapon, &C().cmbweap[kWeaponPage]});
  expectOn(kEnemyPage, {&C().lstEnemy, &C().cmbweap[kEnemyPage], &C().lblValue[kEnemyPage]});
  expectOn(kMiscPage, {&C().lstConMisc, &C().optCamYes, &C().optCamNo, &C().optFreezYes,
                       &C().optFreezNo, &C().cmbweap[kMiscPage]});
  expectOn(kLevelPage, {&C().cboEpisode, &C().txtMap, &C().cmdMap, &C().txtTitle, &C().cmdInsert[0],
                        &C().cmdInsert[1]});
  expectOn(kFunctionsPage,
           {&C().txtSearch, &C().lstWords, &C().lblParams, &C().cmdInsert[2], &C().cmdAddword});
}

TEST_F(PageControlsTest, TheEditorsStandInTheFrameOfTheDocumentTabs) {
  Open("/a.con", "a");
  Open("/b.con", "b");
  EXPECT_EQ(C().picRtb.Container(), &C().tbsRtb);
  for (int slot = 0; slot < C().rtbCon.Count(); ++slot) {
    EXPECT_EQ(Editor(slot).Container(), &C().picRtb) << slot;
  }
}

TEST_F(PageControlsTest, AllPagesAreOutOfReachWhileThePanelIsHidden) {
  for (int page = 0; page < C().tbsCon.Count(); ++page) {
    C().tbToolBar.SetPressed("ShowTabs", true);
    C().tbsCon.Press(page + 1);
    if (C().tbToolBar.Pressed("ShowTabs")) C().tbToolBar.Press("ShowTabs");
    for (int other = 0; other < C().tbsCon.Count(); ++other) {
      EXPECT_EQ(C().picCon[other].Left(), kParkedLeft) << page << other;
      EXPECT_FALSE(C().picCon[other].Enabled()) << page << other;
    }
    C().tbToolBar.Press("ShowTabs");
    EXPECT_TRUE(C().picCon[page].Enabled());
  }
}

TEST_F(PageControlsTest, TakeTurnsInPairsOfYesAndNo) {
  for (const auto& [yes, no] :
       {std::pair{&C().optCamYes, &C().optCamNo}, std::pair{&C().optFreezYes, &C().optFreezNo}}) {
    EXPECT_EQ(yes->Caption(), "Yes");
    EXPECT_EQ(no->Caption(), "No");
    yes->SetValue(true);
    no->SetValue(true);
    EXPECT_FALSE(yes->Value());
    yes->SetValue(true);
    EXPECT_FALSE(no->Value());
  }
}

}  // namespace
}  // namespace tessel::test
