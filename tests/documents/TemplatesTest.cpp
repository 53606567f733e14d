// New documents from templates.
#include "documents/Templates.h"
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

const std::vector<std::pair<std::string, std::string>> kFiles = {
    {"13DU", "zmuser.dat"},  {"15AU", "zmuserp.dat"}, {"13DD", "zmdefs.dat"},
    {"15AD", "zmdefsp.dat"}, {"13DG", "zmgame.dat"},  {"15AG", "zmgamep.dat"}};

class NewFromTemplate : public TesselTest {
 protected:
  void SetUp() override {
    for (const auto& [code, file] : kFiles) {
      world_.files.files["/host/" + file] = "define " + code + " 1\r\n";
    }
  }
  /// Chooses an item of the "FileNew" drop-down by its key.
  void New(const std::string& code) {
    for (int k = 1; k <= 9; ++k) {
      if (C().tbToolBar.MenuItem("FileNew", k).key == code) {
        return C().tbToolBar.PressMenuItem("FileNew", k);
      }
    }
    FAIL() << "no item " << code;
  }
};

TEST_F(NewFromTemplate, LoadsTheFileOfEachCode) {
  for (const auto& [code, file] : kFiles) {
    EXPECT_EQ(TemplateFile(code), file);
    New(code);
    EXPECT_EQ(Current().Text(), "define " + code + " 1\r\n");
    EXPECT_EQ(Current().FileName(), "/host/" + file);
    EXPECT_EQ(TabOf(Index(CurrentDocIndex(C()))).caption, "Untitled");
    EXPECT_EQ(TabOf(Index(CurrentDocIndex(C()))).tag, "Untitled");
    EXPECT_EQ(TabOf(Index(CurrentDocIndex(C()))).image, "BlackDot");
  }
  EXPECT_EQ(C().tbsRtb.Count(), 6);
  EXPECT_EQ(C().rtbCon.Count(), 6);
  EXPECT_TRUE(world_.messages.shown.empty());
  EXPECT_TRUE(RecentNames().empty());
}

TEST_F(NewFromTemplate, KnowsNoOtherCode) {
  for (const char* code : {"15A", "13du", "", "13DU "}) EXPECT_EQ(TemplateFile(code), "") << code;
}

TEST_F(NewFromTemplate, OfTheButtonItselfFindsNoFile) {
  C().tbToolBar.Press("FileNew");
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("File  not found.")));
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(TabOf(0).tag, "");
}

TEST_F(NewFromTemplate, TellsThePathOfAMissingFile) {
  world_.files.files.erase("/host/zmgame.dat");
  New("13DG");
  EXPECT_THAT(world_.messages.shown, ElementsAre(Exclamation("File /host/zmgame.dat not found.")));
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(C().rtbCon.Count(), 1);
}

TEST_F(NewFromTemplate, JoinsADirectoryThatEndsWithASeparator) {
  world_.hostDirectory = "/host/";
  New("13DU");
  EXPECT_EQ(Current().FileName(), "/host/zmuser.dat");
}

TEST_F(NewFromTemplate, OpensNothingForAFileThatCannotBeRead) {
  world_.files.unreadable.insert("/host/zmuser.dat");
  New("13DU");
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("Cannot open /host/zmuser.dat: Permission denied.")));
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(C().rtbCon.Count(), 1);
  EXPECT_EQ(TabOf(0).tag, "");
  EXPECT_EQ(TabOf(0).image, "");
}

TEST_F(NewFromTemplate, FillsTheStartTabColoured) {
  New("13DU");
  EXPECT_EQ(C().tbsRtb.Count(), 1);
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(Current().Store().ColourAt(0), 0x0000C8U);
  EXPECT_TRUE(C().tbToolBar.Pressed("Colorize"));
}

TEST_F(NewFromTemplate, LeavesTheColourModeThatTheStartTabHasAlready) {
  Current().SetTag("COLOR");
  New("13DU");
  EXPECT_EQ(Current().Tag(), "COLOR");
  EXPECT_EQ(Current().Store().ColourAt(0), kBlack) << "it was not coloured for this text";
}

TEST_F(NewFromTemplate, ColoursTheDocumentThatWasCurrentAndSetsNoColourMode) {
  Open("/a.con", "define A 1");
  Editor(0).SetTag("");
  Editor(0).SetText("define B 1");
  New("13DU");
  EXPECT_EQ(Editor(0).Tag(), "COLOR");
  EXPECT_EQ(Editor(0).Store().ColourAt(0), 0x0000C8U);
  EXPECT_EQ(Editor(1).Tag(), "");
  EXPECT_EQ(Editor(1).Store().ColourAt(0), kBlack);
  EXPECT_FALSE(C().tbToolBar.Pressed("Colorize"));
}

TEST_F(NewFromTemplate, ShowsTheNewDocumentAndParksTheOther) {
  Open("/a.con", "A");
  New("13DU");
  EXPECT_EQ(CurrentDocIndex(C()), Slot{1});
  EXPECT_EQ(Editor(0).Left(), -20000);
  EXPECT_EQ(Editor(1).Left(), 0);
  EXPECT_TRUE(Editor(1).Visible());
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(NewFromTemplate, LoadsBeforeItHidesAndParks) {
  EditorTrace trace(Editor(0), world_.pointer);
  New("13DU");
  const auto steps = trace.Take();
  ASSERT_GE(steps.size(), 4U);
  EXPECT_THAT(std::vector(steps.begin(), steps.begin() + 4),
              ElementsAre("change", "hidden", "left -20000", "pointer 11"));
  EXPECT_EQ(TabOf(0).image, "BlackDot");
}

TEST_F(NewFromTemplate, ListsTheLevelsOnTheirPageOnly) {
  world_.files.files["/host/zmuser.dat"] = "definelevelname 0 1 A.map 00:00 00:00 A";
  C().txtMap.SetText("old");
  New("13DU");
  EXPECT_EQ(C().cboEpisode.ListCount(), 0);
  EXPECT_EQ(C().txtMap.Text(), "old");
  C().tbsCon.Press(5);
  C().cmdInsert[0].SetEnabled(true);
  C().txtTitle.SetText("old");
  New("13DU");
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 1"));
  EXPECT_EQ(C().cboEpisode.ListIndex(), kNoSelection);
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_EQ(C().txtTitle.Text(), "");
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
}

}  // namespace
}  // namespace tessel::test
