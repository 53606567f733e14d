// Browsing for a map file.
#include "models/CommonDialog.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

constexpr const char* kLevel = "definelevelname 0 7 [E1L8.map] 05:00 03:00 T";
constexpr const char* kLevelAtStart = "[]definelevelname 0 7 E1L8.map 05:00 03:00 T";

class MapDialog : public TesselTest {
 protected:
  void Browse(FakeFileDialogs::Answer answer) {
    SetDocument(kLevelAtStart);
    C().txtMap.SetText("e1l8.map");
    C().cmdInsert[1].SetEnabled(true);
    world_.fileDialogs.answers.push_back(std::move(answer));
    C().cmdMap.Press();
  }
};

TEST_F(MapDialog, AsksForAMapInTheFirstDirectory) {
  world_.settings.SaveSetting("Paths", "CONPath", "/cons");
  Browse(std::nullopt);
  ASSERT_EQ(world_.fileDialogs.requests.size(), 1U);
  const FileDialogRequest& request = world_.fileDialogs.requests[0];
  EXPECT_EQ(request.kind, FileDialogRequest::Kind::kOpen);
  EXPECT_EQ(request.filter, "MAP Files (*.map)|*.map");
  EXPECT_EQ(request.filterIndex, 1);
  EXPECT_EQ(request.flags, 4);
  EXPECT_TRUE(request.cancelError);
  EXPECT_EQ(request.initDir, "/cons");
}

TEST_F(MapDialog, PutsTheChosenNameIntoTheBoxAndTheFocusOnInsert) {
  Browse(std::vector<std::string>{"/maps/NEW.map"});
  EXPECT_EQ(C().txtMap.Text(), "NEW.map");
  EXPECT_EQ(world_.focus.moves, (std::vector<std::pair<std::string, int>>{{"cmdInsert", 0}}));
  EXPECT_EQ(Document(), kLevel);
  EXPECT_FALSE(Current().HideSelection());
  EXPECT_TRUE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
  C().cmdInsert[0].Press();
  EXPECT_EQ(Document(), "definelevelname 0 7 NEW.map[] 05:00 03:00 T");
}

TEST_F(MapDialog, CancelledLeavesTheBoxAndTheFocusButTheOldNameSelected) {
  Browse(std::nullopt);
  EXPECT_EQ(C().txtMap.Text(), "e1l8.map");
  EXPECT_TRUE(world_.focus.moves.empty());
  EXPECT_EQ(Document(), kLevel);
  EXPECT_TRUE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
  EXPECT_EQ(C().dlgCommon.Held().fileName, "");
}

TEST_F(MapDialog, SelectsTheOldNameBeforeItOpens) {
  std::string document;
  bool offered = false;
  world_.fileDialogs.meanwhile = [&] {
    document = Document();
    offered = C().cmdInsert[0].Enabled();
  };
  Browse(std::nullopt);
  EXPECT_EQ(document, kLevel);
  EXPECT_TRUE(offered);
}

TEST_F(MapDialog, GivesItsFileToTheNextSaveInPlace) {
  Open("/a.con", "A");
  Browse(std::vector<std::string>{"/maps/NEW.map"});
  C().mnuRtbPopup.Choose("mnuRtbPopupFileSave");
  EXPECT_EQ(TabOf(0).caption, "new.map");
  EXPECT_EQ(TabOf(0).tag, "/maps/NEW.map");
  EXPECT_FALSE(world_.files.files.contains("/maps/NEW.map"));
}

}  // namespace
}  // namespace tessel::test
