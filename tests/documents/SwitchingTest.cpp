// Document slots, the switch between them, and the modified marker.
#include <algorithm>

#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class DocumentSlots : public TesselTest {};

TEST_F(DocumentSlots, BeginWithOneEmptyTabAndOneEmptyEditor) {
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(TabOf(0).caption, "");
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_EQ(TabOf(0).image, "");
  EXPECT_EQ(C().rtbCon.Count(), 1);
  EXPECT_EQ(Editor(0).Text(), "");
  EXPECT_EQ(Editor(0).Left(), 0);
  EXPECT_EQ(Editor(0).Tag(), "");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{0});
}

TEST_F(DocumentSlots, FillTheStartTabFirst) {
  EXPECT_EQ(List().GetFreeEditorIndex(), Slot{0});
  EXPECT_EQ(C().rtbCon.Count(), 1);
  C().tbsRtb.SetTabTag(1, "Untitled");
  EXPECT_EQ(List().GetFreeEditorIndex(), Slot{1});
  EXPECT_EQ(C().rtbCon.Count(), 2);
  EXPECT_EQ(C().tbsRtb.Count(), 1);
}

TEST_F(DocumentSlots, AreLoadedParkedWithTheTopAndWidthOfTheFirst) {
  Editor(0).SetTop(33);
  Editor(0).SetWidth(4444);
  EXPECT_EQ(List().LoadNewEditor(), Slot{1});
  EXPECT_EQ(Editor(1).Top(), 33);
  EXPECT_EQ(Editor(1).Width(), 4444);
  EXPECT_EQ(Editor(1).Left(), -20000);
  EXPECT_EQ(List().LoadNewEditor(), Slot{2});
}

TEST_F(DocumentSlots, GetTabsWithTheLowerCasedName) {
  List().AddDocumentTab("GAME.Con");
  EXPECT_EQ(C().tbsRtb.Count(), 2);
  EXPECT_EQ(TabOf(1).caption, "game.con");
  EXPECT_EQ(TabOf(1).image, "BlackDot");
  EXPECT_EQ(TabOf(1).tag, "");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{0});
}

class Switching : public TesselTest {
 protected:
  void SetUp() override {
    Open("/a.con", "definelevelname 0 1 A.map 00:00 00:00 A");
    Open("/b.con", "definelevelname 0 2 B.map 00:00 00:00 B");
    Open("/c.con", "C");
  }
};

TEST_F(Switching, ShowsTheChosenEditorAndParksTheRest) {
  for (int shown : {0, 2, 1, 1}) {
    C().tbsRtb.Press(shown + 1);
    EXPECT_EQ(CurrentDocIndex(C()), Slot{shown});
    for (int slot = 0; slot < 3; ++slot) {
      EXPECT_EQ(Editor(slot).Left(), slot == shown ? 0 : -20000);
      EXPECT_TRUE(Editor(slot).Visible());
    }
  }
}

TEST_F(Switching, SizesTheEditorByItsHost) {
  Editor(0).SetWidth(1);
  Editor(0).SetHeight(1);
  Editor(1).SetWidth(2);
  C().tbsRtb.Press(1);
  EXPECT_EQ(Editor(0).Width(), C().picRtb.Width() - 60);
  EXPECT_EQ(Editor(0).Height(), C().picRtb.Height() - 60);
  EXPECT_EQ(Editor(1).Width(), 2);
}

TEST_F(Switching, PressesColorizeForColouredDocumentsOnly) {
  for (const auto& [tag, pressed] :
       {std::pair{"BW", false}, {"COLOR", true}, {"color", false}, {"", false}}) {
    Editor(0).SetTag(tag);
    C().tbToolBar.SetPressed("Colorize", !pressed);
    C().tbsRtb.Press(1);
    EXPECT_EQ(C().tbToolBar.Pressed("Colorize"), pressed) << tag;
    EXPECT_EQ(Editor(0).Tag(), tag);
  }
}

TEST_F(Switching, ClearsTheLevelsOnOtherPages) {
  C().tbsRtb.Press(1);
  C().txtMap.SetText("A.map");
  C().cmdInsert[0].SetEnabled(true);
  C().cboEpisode.AddItem("9 9");
  C().tbsRtb.Press(2);
  EXPECT_EQ(C().cboEpisode.ListCount(), 0);
  EXPECT_EQ(C().txtMap.Text(), "A.map");
  EXPECT_TRUE(C().cmdInsert[0].Enabled());
}

TEST_F(Switching, ListsTheLevelsAnewOnTheirPage) {
  C().tbsCon.Press(5);
  C().tbsRtb.Press(1);
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));
  C().txtMap.SetText("A.map");
  C().txtTitle.SetText("A");
  C().cmdInsert[0].SetEnabled(true);
  C().cmdInsert[1].SetEnabled(true);
  C().tbsRtb.Press(2);
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 2"));
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_EQ(C().txtTitle.Text(), "");
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
}

TEST_F(Switching, KeepsTextSelectionColoursAndUndoOfHiddenDocuments) {
  C().tbsRtb.Press(1);
  Current().SelectByHand(3, 0);
  Current().Type("xyz");
  Current().SetSelStart(0);
  Current().SetSelLength(2);
  Current().SetSelColor(0x0000C8);
  C().tbsRtb.Press(3);
  C().tbsRtb.Press(1);
  EXPECT_TRUE(Current().CanUndo());
  EXPECT_EQ(Current().Store().ColourAt(0), 0x0000C8U);
  EXPECT_EQ(Document(), "[de]fxyzinelevelname 0 1 A.map 00:00 00:00 A");
}

class ModifiedMarker : public Switching {};

TEST_F(ModifiedMarker, ComesWithAChangeOfTheEditorInSightOnce) {
  int refreshes = 0;
  EXPECT_EQ(TabOf(2).image, "BlackDot");
  Current().Type("x");
  EXPECT_EQ(TabOf(2).image, "RedDot");
  const Subscription counting = C().tbsRtb.Refresh.Connect([&] { ++refreshes; });
  Current().Type("y");
  EXPECT_EQ(TabOf(2).image, "RedDot");
  EXPECT_EQ(refreshes, 0);
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(TabOf(1).image, "BlackDot");
}

TEST_F(ModifiedMarker, StaysAwayFromParkedEditors) {
  Editor(0).SetText("other");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  Editor(0).SetLeft(0.5);
  Editor(0).SetText("another");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(ModifiedMarker, ComesWithAChangeByThePanel) {
  Open("/d.con", "define MAXPLAYERHEALTH 100");
  const auto names = C().lstPlayers.List();
  C().lstPlayers.Pick(
      static_cast<int>(std::ranges::find(names, "Max Regular Health") - names.begin()));
  EXPECT_EQ(TabOf(3).image, "BlackDot");
  C().cmbweap[0].Type("175");
  EXPECT_EQ(Current().Text(), "define MAXPLAYERHEALTH 175");
  EXPECT_EQ(TabOf(3).image, "RedDot");
  EXPECT_EQ(TabOf(2).image, "BlackDot");
}

TEST_F(ModifiedMarker, ComesWithColoursToo) {
  Current().SetSelStart(0);
  Current().SetSelLength(1);
  Current().SetSelColor(0x0000FF);
  EXPECT_EQ(TabOf(2).image, "RedDot");
}

TEST_F(ModifiedMarker, ComesToTheFreeStartTabAsWell) {
  C().tbToolBar.Press("FileClose");
  C().tbToolBar.Press("FileClose");
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(TabOf(0).image, "");
  Current().Type("x");
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(TabOf(0).tag, "");
}

class ColourMode : public TesselTest {};

TEST_F(ColourMode, PlainPaintsTheParkedEditorBlackInThisOrder) {
  Open("/a.con", "define A 1");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(Current().Store().ColourAt(0), 0x0000C8U);
  Current().SelectByHand(4, 0);
  Current().SetHideSelection(false);
  EditorTrace trace(Current(), world_.pointer);
  C().tbToolBar.Press("Colorize");
  EXPECT_THAT(trace.Take(),
              ElementsAre("pointer 11", "hidden", "left -20000", "selection hidden", "select 0+0",
                          "select 0+10", "change", "select 0+0", "tag BW", "selection shown",
                          "left 0", "visible", "pointer 0"));
  EXPECT_FALSE(C().tbToolBar.Pressed("Colorize"));
  EXPECT_EQ(Current().Store().UniformColour(0, 10), kBlack);
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(ColourMode, ColouredRunsThePassUnderTheHourglass) {
  Open("/a.con", "define A 1");
  C().tbToolBar.Press("Colorize");
  std::vector<std::string> texts;
  const Subscription status =
      Control().SettingTextColor.Connect([&](const std::string& text) { texts.push_back(text); });
  EditorTrace trace(Current(), world_.pointer);
  C().tbToolBar.Press("Colorize");
  const auto steps = trace.Take();
  EXPECT_EQ(steps.front(), "pointer 11");
  EXPECT_EQ(steps.back(), "pointer 0");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(Current().Store().ColourAt(0), 0x0000C8U);
  EXPECT_EQ(texts.size(), 2U);
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(ColourMode, OfAnEmptyDocumentIsRemembered) {
  C().tbToolBar.Press("Colorize");
  EXPECT_EQ(Current().Tag(), "BW");
  C().tbToolBar.Press("Colorize");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(TabOf(0).image, "");
}

}  // namespace
}  // namespace tessel::test
