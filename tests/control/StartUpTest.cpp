// Start-up, layout, keys and the automation interface.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "settings/ItemTables.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StartUp : public TesselTest {};

TEST_F(StartUp, ReadsTheFirstDirectoryOfTheDialogs) {
  world_.settings.SaveSetting("Paths", "CONPath", "/my/cons");
  EXPECT_EQ(Control().CONPath(), "/my/cons");
}

TEST_F(StartUp, TakesTheHostsDirectoryWithoutOne) { EXPECT_EQ(Control().CONPath(), "/host"); }

TEST_F(StartUp, ReadsTheFirstDirectoryOnce) {
  EXPECT_EQ(Control().CONPath(), "/host");
  world_.settings.SaveSetting("Paths", "CONPath", "/late");
  C().tbToolBar.Press("FileOpen");
  EXPECT_EQ(world_.fileDialogs.requests[0].initDir, "/host");
}

TEST_F(StartUp, GoesOnWithoutAnythingFromAStoreThatCannotBeRead) {
  world_.settings.SaveSetting("PreviousCons", "A", "/A");
  world_.settings.SaveSetting("Paths", "CONPath", "/cons");
  store_.failsReading = true;
  EXPECT_EQ(Control().CONPath(), "/host");
  EXPECT_THAT(RecentNames(), IsEmpty());
  EXPECT_THAT(world_.messages.shown, IsEmpty());
  EXPECT_EQ(C().lstEnemy.ListCount(), std::ssize(EnemyItemTable));
  EXPECT_EQ(C().tbsCon.Width(), 12000 - 20);
  store_.failsReading = false;
  Open("/b.con", "B");
  EXPECT_THAT(RecentNames(), ElementsAre("b.con"));
}

TEST_F(StartUp, WritesNothing) {
  Control();
  control_.reset();
  EXPECT_THAT(world_.settings.GetAllSettings("PreviousCons"), IsEmpty());
  EXPECT_THAT(world_.settings.GetAllSettings("ConWords"), IsEmpty());
  EXPECT_THAT(world_.settings.GetAllSettings("Paths"), IsEmpty());
  EXPECT_THAT(world_.files.written, IsEmpty());
}

TEST_F(StartUp, LeavesTheDefaultPointer) {
  Control();
  EXPECT_EQ(world_.pointer.Shape(), PointerShape::kDefault);
}

void ExpectLaidOut(HostedControls& c, double w, double h) {
  const auto size = [](double value) { return std::max(value, 0.0); };
  const double con = c.tbsCon.Height();
  EXPECT_DOUBLE_EQ(c.tbsCon.Width(), size(w - 20));
  EXPECT_DOUBLE_EQ(c.tbsCon.Top(), 420);
  EXPECT_DOUBLE_EQ(c.tbsRtb.Top(), 420 + con);
  EXPECT_DOUBLE_EQ(c.tbsRtb.Height(), size(h - 420 - con));
  EXPECT_DOUBLE_EQ(c.tbsRtb.Width(), size(w - 20));
  for (int page = 0; page < 6; ++page) {
    EXPECT_DOUBLE_EQ(c.picCon[page].Top(), 420 + 350);
    EXPECT_DOUBLE_EQ(c.picCon[page].Width(), size(w - 220));
    EXPECT_DOUBLE_EQ(c.fraCon[page].Width(), size(w - 250));
  }
  EXPECT_DOUBLE_EQ(c.picRtb.Width(), size(w - 160));
  EXPECT_DOUBLE_EQ(c.picRtb.Top(), 420 + con + 60);
  EXPECT_DOUBLE_EQ(c.picRtb.Height(), size(c.tbsRtb.Height() - 400));
  RichTextBox& editor = CurrentEditor(c);
  EXPECT_DOUBLE_EQ(editor.Width(), size(w - 200));
  EXPECT_DOUBLE_EQ(editor.Left(), 0);
  EXPECT_DOUBLE_EQ(editor.Height(), size(c.picRtb.Height() - 60));
}

class LayoutTest : public TesselTest {};

TEST_F(LayoutTest, IsRunAtTheStart) { ExpectLaidOut(C(), 12000, 9000); }

TEST_F(LayoutTest, FollowsEverySize) {
  for (const auto& [w, h] : {std::pair{15000.0, 10000.0}, {9000.0, 5000.5}, {20000.0, 420.0}}) {
    Control().Resize(w, h);
    ExpectLaidOut(C(), w, h);
  }
  C().tbToolBar.Press("ShowTabs");
  Control().Resize(8000, 6000);
  ExpectLaidOut(C(), 8000, 6000);
  EXPECT_DOUBLE_EQ(C().tbsRtb.Top(), 420);
}

TEST_F(LayoutTest, RoundsTheWidthAndNotTheHeight) {
  Control().Resize(10000.4, 9000.4);
  EXPECT_DOUBLE_EQ(C().tbsCon.Width(), 9980);
  EXPECT_DOUBLE_EQ(C().tbsRtb.Height(), 9000.4 - 420 - 2055);
  Control().Resize(10000.6, 9000);
  EXPECT_DOUBLE_EQ(C().tbsCon.Width(), 9981);
}

TEST_F(LayoutTest, NeverMakesASizeNegative) {
  for (const auto& [w, h] : {std::pair{0.0, 0.0}, {1.0, 1.0}, {230.0, 2600.0}, {30.0, 2900.0}}) {
    Control().Resize(w, h);
    ExpectLaidOut(C(), w, h);
    for (const tessel::Control* control : C().all.All()) {
      EXPECT_GE(control->Width(), 0) << control->Name();
      EXPECT_GE(control->Height(), 0) << control->Name();
    }
  }
}

TEST_F(LayoutTest, SizesTheCurrentEditorAlone) {
  Open("/a.con", "A");
  Open("/b.con", "B");
  Editor(0).SetWidth(77);
  Editor(0).SetHeight(78);
  Control().Resize(9000, 8000);
  EXPECT_EQ(Editor(0).Width(), 77);
  EXPECT_EQ(Editor(0).Height(), 78);
  EXPECT_EQ(Editor(0).Left(), -20000);
  EXPECT_EQ(Editor(1).Width(), 8800);
}

TEST_F(LayoutTest, MakesTheEditorTwentyTwipsWiderThanATabClickDoes) {
  Open("/a.con", "A");
  Control().Resize(9000, 8000);
  EXPECT_EQ(Current().Width(), 9000 - 200);
  C().tbsRtb.Press(1);
  EXPECT_EQ(Current().Width(), 9000 - 160 - 60);
}

RC_GTEST_FIXTURE_PROP(LayoutTest, HoldsForAnySize, ()) {
  const double w = *rc::gen::inRange(0, 40000);
  const double h = *rc::gen::inRange(0, 40000) / 4.0;
  Control().Resize(w, h);
  ExpectLaidOut(C(), w, h);
  RC_ASSERT(!testing::Test::HasFailure());
}

class Keys : public TesselTest {};

TEST_F(Keys, CtrlFIsSwallowedAndFinds) {
  EXPECT_TRUE(Control().KeyDown(70, 2));
  EXPECT_THAT(world_.forms.shown, ElementsAre("frmFind"));
}

TEST_F(Keys, FWithOtherShiftsDoesNothing) {
  for (int shift : {0, 1, 3, 4, 5, 6, 7}) EXPECT_FALSE(Control().KeyDown(70, shift)) << shift;
  EXPECT_THAT(world_.forms.shown, IsEmpty());
  EXPECT_THAT(world_.messages.shown, IsEmpty());
}

TEST_F(Keys, F3FindsNextWithAnyShift) {
  for (int shift = 0; shift < 8; ++shift) EXPECT_FALSE(Control().KeyDown(114, shift));
  EXPECT_EQ(world_.messages.shown.size(), 8U);
  EXPECT_EQ(world_.messages.shown[0].text, " not found.");
  EXPECT_THAT(world_.forms.shown, IsEmpty());
}

TEST_F(Keys, OthersDoNothing) {
  for (int key : {0, 13, 69, 71, 113, 115}) EXPECT_FALSE(Control().KeyDown(key, 2)) << key;
  EXPECT_THAT(world_.forms.shown, IsEmpty());
  EXPECT_THAT(world_.messages.shown, IsEmpty());
}

class Automation : public TesselTest {};

TEST_F(Automation, SetTesselVersionChangesNothing) {
  std::string version = "Zanth13";
  std::string fallback = "Zanth15";
  Control().SetTesselVersion(version, fallback);
  EXPECT_EQ(version, "Zanth13");
  EXPECT_EQ(fallback, "Zanth15");
  EXPECT_EQ(C().lstEnemy.ListCount(), std::ssize(EnemyItemTable));
}

TEST_F(Automation, ConvertDoesWhatTheButtonDoes) {
  const std::string text = "define A 1 // nothing to convert\r\n";
  Open("/a.con", text);
  Control().Convert();
  const auto byMethod = world_.messages.shown;
  const std::string converted = Current().Text();
  world_.messages.shown.clear();
  C().rtbCon[0].SetText(text);
  C().tbToolBar.Press("Convert");
  EXPECT_EQ(world_.messages.shown, byMethod);
  EXPECT_EQ(Current().Text(), converted);
}

TEST_F(Automation, RaisesTheStatusTextWhileColouring) {
  std::vector<std::string> texts;
  const Subscription status =
      Control().SettingTextColor.Connect([&](const std::string& text) { texts.push_back(text); });
  Open("/a.con", "A");
  EXPECT_THAT(texts, ElementsAre("Colorizing, please wait...", "Zanth Manager Version 4.0"));
}

}  // namespace
}  // namespace tessel::test
