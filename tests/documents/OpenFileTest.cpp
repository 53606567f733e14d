// Opening files, by path, from the dialog and from the recent list.
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OpenFile : public TesselTest {};

TEST_F(OpenFile, FillsTheStartTab) {
  Open("/cons/USER.Con", "define A 1");
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(C().rtbCon.Count(), 1);
  EXPECT_EQ(TabOf(0).caption, "user.con");
  EXPECT_EQ(TabOf(0).tag, "/cons/USER.Con");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(Current().FileName(), "/cons/USER.Con");
  EXPECT_EQ(Current().Text(), "define A 1");
  EXPECT_EQ(Current().Left(), 0);
  EXPECT_TRUE(Current().Visible());
  EXPECT_FALSE(Current().CanUndo());
}

TEST_F(OpenFile, AddsATabAndAnEditorForTheNext) {
  Open("/a.con", "A");
  Open("/b.con", "B");
  EXPECT_THAT(Captions(), ElementsAre("a.con", "b.con"));
  EXPECT_EQ(CurrentDocIndex(C()), Slot{1});
  EXPECT_EQ(Editor(0).Left(), -20000);
  EXPECT_EQ(Editor(1).Left(), 0);
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(TabOf(1).image, "BlackDot");
  EXPECT_EQ(Editor(0).Text(), "A");
}

TEST_F(OpenFile, KeepsEveryByte) {
  std::string bytes;
  for (int i = 0; i < 512; ++i) bytes += static_cast<char>(i * 7);
  bytes += "\r\r\n\n\r";
  Open("/a.con", bytes);
  EXPECT_EQ(Current().Text(), bytes);
}

TEST_F(OpenFile, TellsThatAFileIsMissing) {
  Control().OpenFile("/none.con");
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("File /none.con not found.")));
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_THAT(RecentNames(), IsEmpty());
}

TEST_F(OpenFile, OpensNothingWhenTheFileCannotBeRead) {
  Open("/a.con", "A");
  world_.files.unreadable.insert("/b.con");
  Open("/b.con", "B");
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("Cannot open /b.con: Permission denied.")));
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(C().rtbCon.Count(), 1);
  EXPECT_THAT(RecentNames(), ElementsAre("a.con"));
}

TEST_F(OpenFile, SelectsTheTabOfAFileThatIsOpen) {
  Open("/a.con", "A");
  Open("/b.con", "B");
  Open("/a.con", "changed meanwhile");
  EXPECT_EQ(C().tbsRtb.Count(), 2);
  EXPECT_EQ(CurrentDocIndex(C()), Slot{0});
  EXPECT_EQ(Current().Text(), "A");
  EXPECT_EQ(Current().Left(), 0);
  EXPECT_THAT(RecentNames(), ElementsAre("b.con", "a.con"));
}

TEST_F(OpenFile, OpensASecondTabForAnotherSpellingOfThePath) {
  Open("/a.con", "A");
  Control().OpenFile("/A.CON");
  EXPECT_THAT(Captions(), ElementsAre("a.con", "a.con"));
  EXPECT_EQ(Current().Text(), "A");
  EXPECT_EQ(TabOf(1).tag, "/A.CON");
}

TEST_F(OpenFile, ComparesTheCaptionToo) {
  Open("/a.con", "A");
  C().tbsRtb.SetTabCaption(1, "else.con");
  Open("/a.con", "A");
  EXPECT_EQ(C().tbsRtb.Count(), 2);
}

TEST_F(OpenFile, TakesTheNameBehindTheLastSeparatorOfThePlatform) {
  Open("a\\b.con", "A");
  EXPECT_EQ(TabOf(0).caption, "a\\b.con");
}

TEST_F(OpenFile, ColoursTheFirstDocument) {
  Open("/a.con", "define A 1");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(Current().Store().ColourAt(0), 0x0000C8U);
  EXPECT_TRUE(C().tbToolBar.Pressed("Colorize"));
}

TEST_F(OpenFile, AppliesTheColourModeToTheDocumentThatWasCurrent) {
  Open("/a.con", "define A 1");
  Open("/b.con", "define B 1");
  EXPECT_EQ(Editor(0).Tag(), "COLOR");
  EXPECT_EQ(Editor(1).Tag(), "BW");
  EXPECT_EQ(Editor(1).Store().ColourAt(0), kBlack);
  EXPECT_FALSE(C().tbToolBar.Pressed("Colorize"));
  Open("/c.con", "define C 1");
  EXPECT_EQ(Editor(1).Tag(), "BW");
  EXPECT_EQ(Editor(2).Tag(), "BW");
}

TEST_F(OpenFile, HidesAndParksTheEditorBeforeItLoads) {
  C().tbToolBar.SetPressed("Colorize", false);
  EditorTrace trace(Editor(0), world_.pointer);
  Open("/a.con", "A");
  const auto steps = trace.Take();
  ASSERT_GE(steps.size(), 5U);
  EXPECT_THAT(std::vector(steps.begin(), steps.begin() + 5),
              ElementsAre("hidden", "left -20000", "change", "tag BW", "pointer 11"));
}

TEST_F(OpenFile, StartsTheLevelsPageAnewWhateverPageIsShown) {
  C().txtMap.SetText("old");
  C().txtTitle.SetText("old");
  C().cmdInsert[0].SetEnabled(true);
  C().cmdInsert[1].SetEnabled(true);
  Open("/a.con", "definelevelname 0 1 A.map 00:00 00:00 A");
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));
  EXPECT_EQ(C().cboEpisode.ListIndex(), kNoSelection);
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_EQ(C().txtTitle.Text(), "");
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
}

TEST_F(OpenFile, LeavesNoEditorOutOfSightWhenTheRecentListCannotBeWritten) {
  Open("/a.con", "A");
  store_.failsWriting = true;
  Open("/b.con", "B");
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("The settings cannot be used: damaged.")));
  for (int tab = 1; tab <= C().tbsRtb.Count(); ++tab) {
    C().tbsRtb.Press(tab);
    EXPECT_TRUE(Current().Visible()) << tab;
    EXPECT_EQ(Current().Left(), 0) << tab;
  }
}

class OpenDialog : public TesselTest {
 protected:
  void Choose(FakeFileDialogs::Answer answer) {
    world_.fileDialogs.answers.push_back(std::move(answer));
    C().tbToolBar.Press("FileOpen");
  }
};

TEST_F(OpenDialog, AsksForConFilesInTheFirstDirectory) {
  world_.settings.SaveSetting("Paths", "CONPath", "/cons");
  Choose(std::nullopt);
  ASSERT_EQ(world_.fileDialogs.requests.size(), 1U);
  const FileDialogRequest& request = world_.fileDialogs.requests[0];
  EXPECT_EQ(request.kind, FileDialogRequest::Kind::kOpen);
  EXPECT_EQ(request.filter, "CON Files (*.con)|*.con");
  EXPECT_EQ(request.filterIndex, 1);
  EXPECT_EQ(request.flags, 524804);
  EXPECT_EQ(request.initDir, "/cons");
  EXPECT_EQ(request.fileName, "");
  EXPECT_TRUE(request.cancelError);
}

TEST_F(OpenDialog, CancelledDoesNothing) {
  Choose(std::nullopt);
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_THAT(world_.messages.shown, IsEmpty());
}

TEST_F(OpenDialog, OpensEveryChosenFileInTheirOrder) {
  for (const char* path : {"/b.con", "/a.con", "/c.con"}) world_.files.files[path] = path;
  Choose(std::vector<std::string>{"/b.con", "/a.con", "/c.con"});
  EXPECT_THAT(Captions(), ElementsAre("b.con", "a.con", "c.con"));
  EXPECT_THAT(RecentNames(), ElementsAre("c.con", "a.con", "b.con"));
  EXPECT_EQ(CurrentDocIndex(C()), Slot{2});
  EXPECT_EQ(C().dlgCommon.Held().fileName, "/c.con");
  EXPECT_EQ(C().dlgCommon.Held().fileTitle, "c.con");
}

TEST_F(OpenDialog, GoesOnAfterAMissingFile) {
  world_.files.files["/b.con"] = "B";
  Choose(std::vector<std::string>{"/none.con", "/b.con"});
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("File /none.con not found.")));
  EXPECT_THAT(Captions(), ElementsAre("b.con"));
}

TEST_F(OpenDialog, EndsAtAFileThatCannotBeRead) {
  for (const char* path : {"/a.con", "/b.con", "/c.con"}) world_.files.files[path] = path;
  world_.files.unreadable.insert("/b.con");
  Choose(std::vector<std::string>{"/a.con", "/b.con", "/c.con"});
  EXPECT_THAT(Captions(), ElementsAre("a.con"));
  EXPECT_EQ(world_.messages.shown.size(), 1U);
}

TEST_F(OpenDialog, IsShownForAnEmptyPath) {
  Control().OpenFile("");
  C().mnuRtbPopup.Choose("mnuRtbPopupFileOpen");
  EXPECT_EQ(world_.fileDialogs.requests.size(), 2U);
}

TEST(OpenDialogPaths, AreSplitAtTheBackslashWhereThatIsTheSeparator) {
  FakeServices world('\\');
  world.hostDirectory = "C:\\zanth";
  ucTessel control(world.Get());
  control.Initialize();
  world.files.files["C:\\cons\\User.con"] = "A";
  world.files.files["C:\\zanth\\zmuser.dat"] = "T";
  control.OpenFile("C:\\cons\\User.con");
  EXPECT_EQ(control.Controls().tbsRtb.At(1).caption, "user.con");
  control.Controls().tbToolBar.PressMenuItem("FileNew", 1);
  EXPECT_EQ(control.Controls().rtbCon[1].Text(), "T");
}

}  // namespace
}  // namespace tessel::test
