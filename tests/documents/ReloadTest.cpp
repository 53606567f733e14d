// Taking a document's text from its file again.
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class Reload : public TesselTest {
 protected:
  void ChangeOnDisk(const std::string& path, const std::string& text) {
    world_.files.files.at(path) = text;
  }
};

TEST_F(Reload, TakesTheTextOfTheFileAndKeepsTheCaret) {
  Open("/a.con", "define A 1");
  Current().SelectByHand(7, 1);
  ChangeOnDisk("/a.con", "define A 2 // new");
  Control().ReloadDocument();
  EXPECT_EQ(Document(), "define []A 2 // new");
  EXPECT_FALSE(Current().CanUndo());
}

TEST_F(Reload, GivesUpWhatWasTyped) {
  Open("/a.con", "A");
  Current().Type("typed ");
  ASSERT_EQ(TabOf(0).image, kRedDot);
  Control().ReloadDocument();
  EXPECT_EQ(Current().Text(), "A");
  EXPECT_EQ(TabOf(0).image, kBlackDot);
}

TEST_F(Reload, ColoursADocumentThatWasColoured) {
  Open("/a.con", "A");
  ASSERT_EQ(Current().Tag(), "COLOR");
  ChangeOnDisk("/a.con", "// B");
  Control().ReloadDocument();
  EXPECT_EQ(Current().Store().ColourAt(0), 0x008000U);
  EXPECT_EQ(Current().Tag(), "COLOR");
}

TEST_F(Reload, LeavesAPlainDocumentPlain) {
  Open("/a.con", "A");
  C().tbToolBar.Press("Colorize");
  ChangeOnDisk("/a.con", "// B");
  Control().ReloadDocument();
  EXPECT_EQ(Current().Store().ColourAt(0), kBlack);
  EXPECT_EQ(Current().Tag(), "BW");
}

TEST_F(Reload, ListsTheLevelsAnew) {
  Open("/a.con", "definelevelname 0 1 A.map 00:10 00:20 T");
  ChangeOnDisk("/a.con", "definelevelname 0 2 B.map 00:10 00:20 T");
  Control().ReloadDocument();
  EXPECT_THAT(C().cboEpisode.List(), ElementsAre("0 2"));
}

TEST_F(Reload, KeepsTheTextWhenTheFileCannotBeRead) {
  Open("/a.con", "A");
  Current().Type("typed ");
  world_.files.unreadable.insert("/a.con");
  Control().ReloadDocument();
  EXPECT_THAT(world_.messages.shown,
              ElementsAre(Exclamation("Cannot open /a.con: Permission denied.")));
  EXPECT_EQ(Current().Text(), "typed A");
  EXPECT_EQ(TabOf(0).image, kRedDot);
}

}  // namespace
}  // namespace tessel::test
