// Closing one document, and all of them.
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const FakeMessageBox::Shown kQuestionForA = {"Save changes to /a.con?", MessageIcon::kNone, "",
                                             MessageButtons::kYesNoCancel};

class Close : public TesselTest {
 protected:
  void OpenThree() {
    Open("/a.con", "define A 1");
    Open("/b.con", "define B 1");
    Open("/c.con", "define C 1");
  }
  void CloseSlot(int slot) {
    C().tbsRtb.Press(slot + 1);
    C().tbToolBar.Press("FileClose");
  }
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (int i = 0; i < C().rtbCon.Count(); ++i) texts.push_back(Editor(i).Text());
    return texts;
  }
};

TEST_F(Close, OfTheOnlyDocumentGoesBackToTheStart) {
  Open("/a.con", "A");
  C().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(C().rtbCon.Count(), 1);
  EXPECT_EQ(Current().Text(), "");
  EXPECT_EQ(Current().Tag(), "");
  EXPECT_EQ(TabOf(0).caption, "");
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_EQ(TabOf(0).image, "");
  EXPECT_THAT(world_.messages.shown, IsEmpty());
  Open("/b.con", "B");
  EXPECT_EQ(C().tbsRtb.Count(), 1);
}

TEST_F(Close, OfTheStartTabChangesNothing) {
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(TabOf(0).image, "");
}

TEST_F(Close, OfTheLastDocumentSelectsTheOneBefore) {
  OpenThree();
  CloseSlot(2);
  EXPECT_THAT(Captions(), ElementsAre("a.con", "b.con"));
  EXPECT_THAT(Texts(), ElementsAre("define A 1", "define B 1"));
  EXPECT_EQ(CurrentDocIndex(C()), Slot{1});
  EXPECT_EQ(Current().Left(), 0);
  EXPECT_EQ(Current().FileName(), "/b.con");
}

TEST_F(Close, OfTheFirstMovesTheOthersUp) {
  OpenThree();
  Editor(2).SetText("changed");
  C().tbsRtb.SetTabImage(3, kRedDot);
  CloseSlot(0);
  EXPECT_THAT(Captions(), ElementsAre("b.con", "c.con"));
  EXPECT_THAT(Texts(), ElementsAre("define B 1", "changed"));
  EXPECT_EQ(TabOf(0).tag, "/b.con");
  EXPECT_EQ(TabOf(1).tag, "/c.con");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(TabOf(1).image, "RedDot");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{0});
  EXPECT_EQ(Editor(0).Left(), 0);
  EXPECT_EQ(Editor(1).Left(), -20000);
}

TEST_F(Close, MovesPlainTextOnly) {
  OpenThree();
  Editor(1).SetTag("COLOR");
  Editor(1).SetSelStart(0);
  Editor(1).SetSelLength(6);
  Editor(1).SetSelColor(0x0000C8);
  CloseSlot(0);
  EXPECT_EQ(Editor(0).Tag(), "");
  EXPECT_EQ(Editor(1).Tag(), "COLOR");
  EXPECT_EQ(Editor(0).Store().ColourAt(0), kBlack);
  EXPECT_EQ(Editor(1).Store().ColourAt(0), kBlack);
  EXPECT_EQ(Editor(0).FileName(), "/a.con");
  EXPECT_EQ(Editor(1).FileName(), "/b.con");
  EXPECT_FALSE(Editor(0).CanUndo());
  EXPECT_FALSE(C().tbToolBar.Pressed("Colorize"));
}

TEST_F(Close, OfTheMiddleKeepsTheFirst) {
  OpenThree();
  CloseSlot(1);
  EXPECT_THAT(Texts(), ElementsAre("define A 1", "define C 1"));
  EXPECT_EQ(Editor(0).Tag(), "COLOR");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{1});
}

TEST_F(Close, AsksForAModifiedDocumentByTheLoadedFile) {
  Open("/a.con", "A");
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/else.con"});
  C().tbToolBar.Press("FileSave");
  Current().Type("x");
  C().tbToolBar.Press("FileClose");
  EXPECT_THAT(world_.messages.shown, ElementsAre(kQuestionForA));
}

TEST_F(Close, AsksForTheTemplateOfAnUntitledDocument) {
  world_.files.files["/host/zmuser.dat"] = "T";
  C().tbToolBar.PressMenuItem("FileNew", 1);
  Current().Type("x");
  C().tbToolBar.Press("FileClose");
  ASSERT_EQ(world_.messages.shown.size(), 1U);
  EXPECT_EQ(world_.messages.shown[0].text, "Save changes to /host/zmuser.dat?");
}

TEST_F(Close, CancelledKeepsTheDocument) {
  Open("/a.con", "A");
  Current().Type("x");
  world_.messages.answers = {MessageAnswer::kCancel};
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(Current().Text(), "xA");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_THAT(world_.fileDialogs.requests, IsEmpty());
}

TEST_F(Close, WithoutSavingLeavesTheFile) {
  Open("/a.con", "A");
  Current().Type("x");
  world_.messages.answers = {MessageAnswer::kNo};
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(world_.files.files.at("/a.con"), "A");
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_EQ(TabOf(0).image, "");
}

TEST_F(Close, SavesWithTheDialogEvenWhereAPathIsKnown) {
  Open("/a.con", "A");
  Current().Type("x");
  world_.messages.answers = {MessageAnswer::kYes};
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/b.con"});
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(world_.files.files.at("/b.con"), "xA");
  EXPECT_EQ(world_.files.files.at("/a.con"), "A");
  EXPECT_EQ(TabOf(0).tag, "");
}

TEST_F(Close, KeepsTheDocumentWhenItsSaveDialogIsCancelled) {
  Open("/a.con", "A");
  Current().Type("x");
  world_.messages.answers = {MessageAnswer::kYes};
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(TabOf(0).tag, "/a.con");
  EXPECT_EQ(TabOf(0).image, "RedDot");
}

TEST_F(Close, KeepsTheDocumentWhenItsSaveFails) {
  Open("/a.con", "A");
  Current().Type("x");
  world_.files.diskFull = true;
  world_.messages.answers = {MessageAnswer::kYes};
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/b.con"});
  C().tbToolBar.Press("FileClose");
  EXPECT_EQ(TabOf(0).tag, "/a.con");
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(Current().Text(), "xA");
  EXPECT_THAT(
      world_.messages.shown,
      ElementsAre(kQuestionForA, Exclamation("Cannot save /b.con: No space left on device.")));
}

using CloseAll = Close;

TEST_F(CloseAll, OfUnchangedDocumentsAsksNothing) {
  OpenThree();
  EXPECT_TRUE(Control().CloseAll());
  EXPECT_THAT(world_.messages.shown, IsEmpty());
  EXPECT_THAT(Captions(), ElementsAre(""));
  EXPECT_THAT(Texts(), ElementsAre(""));
  EXPECT_EQ(TabOf(0).image, "");
}

TEST_F(CloseAll, AsksForEveryModifiedDocumentAndSavesIt) {
  OpenThree();
  for (int slot : {0, 2}) {
    C().tbsRtb.Press(slot + 1);
    Current().Type("x");
  }
  world_.messages.answers = {MessageAnswer::kYes, MessageAnswer::kNo};
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/a.con"});
  EXPECT_TRUE(Control().CloseAll());
  ASSERT_EQ(world_.messages.shown.size(), 2U);
  EXPECT_EQ(world_.messages.shown[0].text, "Save changes to /a.con?");
  EXPECT_EQ(world_.messages.shown[1].text, "Save changes to /c.con?");
  EXPECT_EQ(world_.files.files.at("/a.con"), "xdefine A 1");
  EXPECT_EQ(world_.files.files.at("/c.con"), "define C 1");
  EXPECT_THAT(Captions(), ElementsAre(""));
}

TEST_F(CloseAll, ClosesNothingWhenOneIsCancelled) {
  OpenThree();
  for (int slot : {0, 2}) {
    C().tbsRtb.Press(slot + 1);
    Current().Type("x");
  }
  world_.messages.answers = {MessageAnswer::kNo, MessageAnswer::kCancel};
  EXPECT_FALSE(Control().CloseAll());
  EXPECT_THAT(Captions(), ElementsAre("a.con", "b.con", "c.con"));
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(TabOf(2).image, "RedDot");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{2});
}

TEST_F(CloseAll, ClosesNothingWhenASaveFails) {
  OpenThree();
  Current().Type("x");
  world_.files.diskFull = true;
  world_.messages.answers = {MessageAnswer::kYes};
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/x.con"});
  EXPECT_FALSE(Control().CloseAll());
  EXPECT_EQ(C().tbsRtb.Count(), 3);
  EXPECT_EQ(TabOf(2).image, "RedDot");
}

}  // namespace
}  // namespace tessel::test
