// Saving documents.
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Save : public TesselTest {
 protected:
  void WithDialog(const std::string& path) {
    world_.fileDialogs.answers.push_back(std::vector<std::string>{path});
    C().tbToolBar.Press("FileSave");
  }
  void InPlace() { C().mnuRtbPopup.Choose("mnuRtbPopupFileSave"); }
  std::string OnDisk(const std::string& path) { return world_.files.files.at(path); }
};

TEST_F(Save, AsksForTheNameInTheFirstDirectory) {
  world_.settings.SaveSetting("Paths", "CONPath", "/cons");
  Open("/a.con", "A");
  C().tbToolBar.Press("FileSave");
  ASSERT_EQ(world_.fileDialogs.requests.size(), 1U);
  const FileDialogRequest& request = world_.fileDialogs.requests[0];
  EXPECT_EQ(request.kind, FileDialogRequest::Kind::kSave);
  EXPECT_EQ(request.filter, "CON Files (*.con)|*.con");
  EXPECT_EQ(request.filterIndex, 1);
  EXPECT_EQ(request.flags, 6);
  EXPECT_EQ(request.initDir, "/cons");
  EXPECT_EQ(request.fileName, "");
  EXPECT_TRUE(request.cancelError);
}

TEST_F(Save, UnderAChosenNameGivesTheDocumentThatName) {
  Open("/a.con", "A");
  Current().Type("new ");
  WithDialog("/cons/OTHER.con");
  EXPECT_EQ(OnDisk("/cons/OTHER.con"), "new A");
  EXPECT_EQ(OnDisk("/a.con"), "A");
  EXPECT_EQ(TabOf(0).caption, "other.con");
  EXPECT_EQ(TabOf(0).tag, "/cons/OTHER.con");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(Current().FileName(), "/a.con");
  EXPECT_THAT(RecentNames(), ElementsAre("OTHER.con", "a.con"));
}

TEST_F(Save, UnderAChosenNameLeavesAFileOfAnotherSpellingAlone) {
  Open("/User.con", "A");
  Current().Type("new ");
  WithDialog("/user.con");
  EXPECT_EQ(OnDisk("/User.con"), "A");
  EXPECT_EQ(OnDisk("/user.con"), "new A");
}

TEST_F(Save, InPlaceWritesIntoTheFileThatWasOpenedByAnotherSpelling) {
  world_.files.files["/User.con"] = "A";
  Control().OpenFile("/USER.CON");
  Current().Type("new ");
  InPlace();
  EXPECT_EQ(OnDisk("/User.con"), "new A");
  EXPECT_FALSE(world_.files.files.contains("/USER.CON"));
}

TEST_F(Save, UnderItsOwnNameAddsNoRecentFile) {
  Open("/a.con", "A");
  C().tbToolBar.RemoveMenuItem("FileNew", FirstRecentFile(C().tbToolBar));
  WithDialog("/a.con");
  EXPECT_THAT(RecentNames(), IsEmpty());
  EXPECT_EQ(TabOf(0).tag, "/a.con");
}

TEST_F(Save, CancelledWritesNothing) {
  Open("/a.con", "A");
  Current().Type("x");
  C().tbToolBar.Press("FileSave");
  C().mnuRtbPopup.Choose("mnuRtbPopupFileSaveAs");
  EXPECT_EQ(world_.fileDialogs.requests.size(), 2U);
  EXPECT_THAT(world_.files.written, IsEmpty());
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(TabOf(0).tag, "/a.con");
}

TEST_F(Save, InPlaceWritesToThePathOfTheTab) {
  world_.files.files["/a.con"] = "A";
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/a.con"});
  C().tbToolBar.Press("FileOpen");
  Current().Type("x");
  InPlace();
  EXPECT_EQ(OnDisk("/a.con"), "xA");
  EXPECT_EQ(TabOf(0).caption, "a.con");
  EXPECT_EQ(TabOf(0).tag, "/a.con");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
  EXPECT_EQ(world_.fileDialogs.requests.size(), 1U);
  EXPECT_THAT(RecentNames(), ElementsAre("a.con"));
}

TEST_F(Save, InPlaceTakesOverWhatTheDialogHolds) {
  world_.files.files["/b.CON"] = "B";
  Open("/a.con", "A");
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/b.CON"});
  C().tbToolBar.Press("FileOpen");
  C().tbsRtb.Press(1);
  Current().Type("x");
  InPlace();
  EXPECT_EQ(OnDisk("/a.con"), "xA");
  EXPECT_EQ(OnDisk("/b.CON"), "B");
  EXPECT_EQ(TabOf(0).caption, "b.con");
  EXPECT_EQ(TabOf(0).tag, "/b.CON");
}

TEST_F(Save, InPlaceWithoutAnyDialogYetEmptiesCaptionAndTag) {
  Open("/a.con", "A");
  Current().Type("x");
  InPlace();
  EXPECT_EQ(OnDisk("/a.con"), "xA");
  EXPECT_EQ(TabOf(0).caption, "");
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(Save, InPlaceClearsReadOnlyAndLeavesItCleared) {
  Open("/a.con", "A");
  world_.files.readOnly.insert("/a.con");
  InPlace();
  EXPECT_THAT(world_.messages.shown, IsEmpty());
  EXPECT_THAT(world_.files.readOnly, IsEmpty());
  EXPECT_THAT(world_.files.written, ElementsAre("/a.con"));
}

TEST_F(Save, InPlaceWritesAFileAnewThatIsGone) {
  Open("/a.con", "A");
  world_.files.files.clear();
  InPlace();
  EXPECT_EQ(OnDisk("/a.con"), "A");
}

TEST_F(Save, InPlaceAsksForTheNameOfUntitledDocuments) {
  world_.files.files["/host/zmuser.dat"] = "T";
  C().tbToolBar.PressMenuItem("FileNew", 1);
  InPlace();
  EXPECT_EQ(world_.fileDialogs.requests.size(), 1U);
  EXPECT_EQ(TabOf(0).tag, "Untitled");
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/mine.con"});
  InPlace();
  EXPECT_EQ(OnDisk("/mine.con"), "T");
  EXPECT_EQ(TabOf(0).tag, "/mine.con");
  EXPECT_THAT(RecentNames(), ElementsAre("mine.con"));
}

TEST_F(Save, InPlaceOfTheFreeStartTabAsksAndMakesItADocument) {
  Current().Type("typed");
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/mine.con"});
  InPlace();
  EXPECT_EQ(OnDisk("/mine.con"), "typed");
  EXPECT_EQ(TabOf(0).caption, "mine.con");
  EXPECT_EQ(TabOf(0).tag, "/mine.con");
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(Save, KeepsEveryByte) {
  std::string bytes("\0\r\n\n\r\xff\x80 /", 9);
  Open("/a.con", bytes);
  WithDialog("/b.con");
  EXPECT_EQ(OnDisk("/b.con"), bytes);
}

TEST_F(Save, ThatFailsLeavesMarkerTagCaptionAndHeldFile) {
  world_.files.files["/b.con"] = "B";
  Open("/a.con", "A");
  world_.fileDialogs.answers.push_back(std::vector<std::string>{"/b.con"});
  C().tbToolBar.Press("FileOpen");
  C().tbsRtb.Press(1);
  Current().Type("x");
  world_.files.diskFull = true;

  WithDialog("/c.con");
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("Cannot save /c.con: No space left on device.")));
  InPlace();
  EXPECT_EQ(world_.messages.shown.size(), 2U);
  EXPECT_EQ(TabOf(0).caption, "a.con");
  EXPECT_EQ(TabOf(0).tag, "/a.con");
  EXPECT_EQ(TabOf(0).image, "RedDot");
  EXPECT_EQ(Current().Text(), "xA");
  EXPECT_EQ(C().dlgCommon.Held().fileName, "/b.con");
  EXPECT_EQ(C().dlgCommon.Held().fileTitle, "b.con");
  EXPECT_EQ(OnDisk("/a.con"), "A");
  EXPECT_FALSE(world_.files.files.contains("/c.con"));
  EXPECT_THAT(RecentNames(), ElementsAre("b.con", "a.con"));
}

TEST_F(Save, WithTheDialogDoesNotClearReadOnly) {
  Open("/a.con", "A");
  world_.files.readOnly.insert("/a.con");
  WithDialog("/a.con");
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("Cannot save /a.con: the file is read-only.")));
}

}  // namespace
}  // namespace tessel::test
