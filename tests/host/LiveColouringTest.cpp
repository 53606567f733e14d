// Live colours in the window: for every document at first, as the user wishes afterwards.
#include <gtest/gtest.h>

#include "HostFixture.h"
#include "posix/PosixFiles.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::test {
namespace {

class LiveColoursOfTheWindow : public HostTest {
 protected:
  ScintillaView& View(int slot) {
    return *qobject_cast<ScintillaView*>(Run().window->Control().WidgetFor(Run().Editor(slot)));
  }
  std::vector<bool> Live() {
    std::vector<bool> live;
    for (int slot = 0; slot < Run().Tabs().Count(); ++slot) {
      live.push_back(View(slot).LiveColours());
    }
    return live;
  }
  /// The colour of the first byte as it is drawn.
  Colour Drawn(int slot) {
    View(slot).viewport()->grab();
    const long style = View(slot).SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, 0L);
    return View(slot).mirror().ColourOfStyle(static_cast<unsigned char>(style));
  }
  QAction& Item() {
    return Run().window->findChild<MainMenu*>()->Action(WindowCommand::kLiveColours);
  }
  void PressColorize() { Run().Controls().tbToolBar.Press("Colorize"); }
  void OpenThree() {
    Run().window->OpenFiles({a_, b_, c_});
    Run().Tabs().Select(1);
  }

  std::string a_ = directory_.Put("a.con", "define A 1\r\n");
  std::string b_ = directory_.Put("b.con", "define B 1\r\n");
  std::string c_ = directory_.Put("c.con", "define C 1\r\n");
};

using Flags = std::vector<bool>;
constexpr Colour kRed = 0x0000C8;

TEST_F(LiveColoursOfTheWindow, AreOnAtFirst) {
  EXPECT_TRUE(Item().isChecked());
  EXPECT_EQ(Live(), Flags{true});
  OpenThree();
  EXPECT_EQ(Live(), (Flags{true, true, true}));
}

TEST_F(LiveColoursOfTheWindow, ColourTheOpenedFilesThatTheControlLeavesBlack) {
  OpenThree();
  Run().Tabs().Select(3);
  EXPECT_EQ(Drawn(2), kRed);
  EXPECT_EQ(Run().Editor(2).Store().ColourAt(0), kBlack);
  QTest::keyClicks(&View(2), "actor ");
  EXPECT_EQ(Drawn(2), kRed);
  EXPECT_EQ(Run().Editor(2).Store().ColourAt(0), kBlack);
}

TEST_F(LiveColoursOfTheWindow, AreOffForAllDocumentsWhenTheUserWishesThat) {
  OpenThree();
  Item().trigger();
  EXPECT_EQ(Live(), (Flags{false, false, false}));
  EXPECT_EQ(Drawn(0), kRed);
  Run().Tabs().Select(3);
  EXPECT_EQ(Drawn(2), kBlack);
  Item().trigger();
  EXPECT_EQ(Live(), (Flags{true, true, true}));
  EXPECT_EQ(Drawn(2), kRed);
}

TEST_F(LiveColoursOfTheWindow, AreRememberedAsTheyAreWished) {
  Item().trigger();
  Restart();
  EXPECT_FALSE(Item().isChecked());
  OpenThree();
  EXPECT_EQ(Live(), (Flags{false, false, false}));
  Item().trigger();
  Restart();
  EXPECT_TRUE(Item().isChecked());
  EXPECT_EQ(Live(), Flags{true});
}

TEST_F(LiveColoursOfTheWindow, EndForTheDocumentForWhichColorizeIsReleased) {
  OpenThree();
  PressColorize();
  EXPECT_EQ(Live(), (Flags{false, true, true}));
  EXPECT_EQ(Drawn(0), kBlack);
  PressColorize();
  EXPECT_EQ(Live(), (Flags{true, true, true}));
  EXPECT_EQ(Drawn(0), kRed);
}

TEST_F(LiveColoursOfTheWindow, HaveColorizeStandPressedWhereTheyAreDrawn) {
  const auto pressed = [&] { return Run().Controls().tbToolBar.Pressed("Colorize"); };
  OpenThree();
  Run().Tabs().Select(2);
  EXPECT_TRUE(pressed());
  PressColorize();
  EXPECT_FALSE(pressed());
  Run().Tabs().Select(3);
  EXPECT_TRUE(pressed());
  Run().Tabs().Select(2);
  EXPECT_FALSE(pressed());
  Run().Tabs().Select(3);
  Item().trigger();
  EXPECT_FALSE(pressed());
  Item().trigger();
  EXPECT_TRUE(pressed());
}

TEST_F(LiveColoursOfTheWindow, StayWithTheDocumentThatMovesUp) {
  OpenThree();
  Run().Tabs().Select(3);
  PressColorize();
  ASSERT_EQ(Live(), (Flags{true, true, false}));
  Run().Tabs().Select(1);
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_EQ(Live(), (Flags{true, false}));
  Run().Tabs().Select(2);
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_EQ(Live(), Flags{true});
  Run().window->OpenFiles({c_});
  EXPECT_EQ(Live(), (Flags{true, true}));
}

TEST_F(LiveColoursOfTheWindow, StayAsTheyAreWhenTheFileIsReadAgain) {
  OpenThree();
  PressColorize();
  Run().window->Control().Tessel().ReloadDocument();
  EXPECT_EQ(Live(), (Flags{false, true, true}));
}

TEST_F(LiveColoursOfTheWindow, AreOnForTheStartTabWhenTheOnlyDocumentIsClosed) {
  Run().window->OpenFiles({a_});
  PressColorize();
  ASSERT_EQ(Live(), Flags{false});
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_EQ(Live(), Flags{true});
  Run().window->OpenFiles({a_});
  EXPECT_EQ(Live(), Flags{true});
}

}  // namespace
}  // namespace tessel::test
