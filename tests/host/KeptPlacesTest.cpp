// Caret and scroll place come back.
#include <QMenu>

#include "ScriptTest.h"
#include "host/view/PlaceList.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

TEST(PlacesOfFiles, AreReadAsTheyWereStored) {
  PlaceList list("");
  list.Put("/a b/\n%c\x80.con", {12, 100, 3});
  list.Put("/b.con", {0, 0, 0});
  const PlaceList read(list.Stored());
  EXPECT_EQ(read.Of("/a b/\n%c\x80.con"), (DocumentPlace{12, 100, 3}));
  EXPECT_EQ(read.Of("/b.con"), (DocumentPlace{0, 0, 0}));
  EXPECT_EQ(read.Of("/c.con"), std::nullopt);
}

TEST(PlacesOfFiles, AreThoseOfTheLastFifty) {
  PlaceList list("");
  for (int i = 0; i < 60; ++i) list.Put("/" + std::to_string(i), {i, 0, 0});
  list.Put("/10", {1000, 0, 0});
  const PlaceList read(list.Stored());
  EXPECT_FALSE(read.Of("/9"));
  EXPECT_EQ(read.Of("/10")->caret, 1000);
  EXPECT_TRUE(read.Of("/59"));
}

TEST(PlacesOfFiles, AreNoneWhereNonsenseIsStored) {
  EXPECT_EQ(PlaceList("what is this").Stored(), "");
  EXPECT_EQ(PlaceList("1 2 3 /a\nx").Of("/a"), (DocumentPlace{1, 2, 3}));
}

class PlacesComeBack : public ScriptTest {
 protected:
  void SetUp() override {
    Shown().resize(1000, 700);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Shown()));
  }
  std::string Lines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) text += "line " + std::to_string(line) + "\r\n";
    return text;
  }
  long Top() { return View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE); }
  void GoTo(Position caret, long top) {
    Text().SelectByHand(caret, 0);
    View().SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, static_cast<unsigned long>(top));
  }
  void CloseTab() { QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier); }

  std::string path_ = directory_.Put("a.con", Lines(1000));
};

TEST_F(PlacesComeBack, WithAFileThatIsOpenedAgain) {
  Shown().OpenFiles({path_});
  GoTo(5000, 480);
  CloseTab();
  Shown().OpenFiles({path_});
  EXPECT_EQ(Text().SelStart(), 5000);
  EXPECT_EQ(Top(), 480);
}

TEST_F(PlacesComeBack, WithARecentFile) {
  Shown().OpenFiles({path_});
  GoTo(5000, 480);
  CloseTab();
  QMenu* recent = Run().MenuItem("Open &Recent")->menu();
  emit recent->aboutToShow();
  recent->actions().first()->trigger();
  EXPECT_EQ(Text().SelStart(), 5000);
  EXPECT_EQ(Top(), 480);
}

TEST_F(PlacesComeBack, WithTheDocumentsOfTheLastRun) {
  Run().MenuItem("Reopen &Documents at Start")->setChecked(true);
  const std::string other = directory_.Put("b.con", Lines(500));
  Shown().OpenFiles({path_, other});
  GoTo(701, 60);
  Select(0);
  GoTo(5000, 480);
  Run().MenuItem("Zoom &In")->trigger();
  CloseAndStartAgain();
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(Text().SelStart(), 5000);
  EXPECT_EQ(Top(), 480);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETZOOM), 1);
  Select(1);
  EXPECT_EQ(Text().SelStart(), 701);
  EXPECT_EQ(Top(), 60);
}

TEST_F(PlacesComeBack, AsNearAsAShorterFileAllows) {
  Shown().OpenFiles({path_});
  GoTo(5000, 480);
  CloseTab();
  directory_.Put("a.con", "short\r\n");
  Shown().OpenFiles({path_});
  EXPECT_EQ(Text().SelStart(), 7);
  EXPECT_EQ(Top(), 0);
}

TEST_F(PlacesComeBack, WithTheCaretInSightWhereTheFileHasGrown) {
  Shown().OpenFiles({path_});
  GoTo(5000, 100);
  CloseTab();
  directory_.Put("a.con", "a new line\r\n" + Lines(2000));
  Shown().OpenFiles({path_});
  EXPECT_EQ(Text().SelStart(), 5000);
  const long caret = View().SendScintilla(Sci::SCI_LINEFROMPOSITION, 5000L);
  EXPECT_GE(caret, Top());
  EXPECT_LT(caret, Top() + View().SendScintilla(Sci::SCI_LINESONSCREEN));
}

TEST_F(PlacesComeBack, AfterADocumentInFrontOfItWasClosed) {
  const std::string other = directory_.Put("b.con", Lines(500));
  Shown().OpenFiles({path_, other});
  GoTo(701, 60);
  Select(0);
  CloseTab();
  EXPECT_EQ(Text().SelStart(), 701);
  EXPECT_EQ(Top(), 60);
}

TEST_F(PlacesComeBack, OfADocumentThatMovedAndWasNotLookedAtSince) {
  const std::string b = directory_.Put("b.con", Lines(500));
  const std::string c = directory_.Put("c.con", Lines(500));
  Shown().OpenFiles({path_, b, c});
  GoTo(701, 60);
  Select(0);
  CloseTab();
  Shown().close();
  Restart();
  Shown().resize(1000, 700);
  Shown().OpenFiles({c});
  EXPECT_EQ(Text().SelStart(), 701);
  EXPECT_EQ(Top(), 60);
}

TEST_F(PlacesComeBack, NotWithANewDocument) {
  Shown().OpenFiles({path_});
  GoTo(5000, 480);
  CloseTab();
  Run().Controls().tbToolBar.PressMenuItem("FileNew", 1);
  EXPECT_EQ(Text().SelStart(), 0);
}

}  // namespace
}  // namespace tessel::test
