// Going to where a name is defined, and back, by keyboard.
#include <gtest/gtest.h>

#include "ScriptTest.h"
#include "host/script/PlaceHistory.h"

namespace tessel::test {
namespace {

class GoingToADefinition : public ScriptTest {
 protected:
  void GoFrom(const std::string& caretBehind) {
    PutCaretBehind(caretBehind);
    Press(Qt::Key_F12);
  }
};

TEST_F(GoingToADefinition, SelectsTheNameInTheSameDocument) {
  Open("define MAX 5\r\nactor A MAX enda\r\n");
  GoFrom("actor A MA");
  EXPECT_EQ(Selected(), "define [MAX] 5");
  EXPECT_EQ(Said().find("efin"), std::string::npos) << Said();
  EXPECT_EQ(
      View().mirror().OffsetOf(View().SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART)), 7);
}

TEST_F(GoingToADefinition, PrefersTheCurrentDocument) {
  Open("define X 1\r\n", "x define X 2\r\n", "define X 3\r\n");
  Select(1);
  GoFrom("x");
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Selected(), "x define [X] 2");
  EXPECT_EQ(Said(), "Definition 1 of 3 of \"x\"");
}

TEST_F(GoingToADefinition, GoesToTheOtherOpenDocuments) {
  Open("state hurt ends\r\n", "actor A state hurt enda\r\n");
  GoFrom("state hur");
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(Selected(), "state [hurt] ends");
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(GoingToADefinition, GoesOnFromOneDefinitionToTheNext) {
  Open("define X 1\r\n", "define X 2\r\n");
  GoFrom("define X");
  EXPECT_EQ(Current(), 0);
  Press(Qt::Key_F12);
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Selected(), "define [X] 2");
}

TEST_F(GoingToADefinition, TellsStatesFromActionsOfOneName) {
  Open("action A 1\r\nstate A ends\r\nactor B state A enda\r\n");
  GoFrom("actor B state A");
  EXPECT_EQ(Selected(), "state [A] ends");
}

TEST_F(GoingToADefinition, SaysWhereThereIsNone) {
  Open("spawn NOTHING { }\r\n");
  GoFrom("NOTH");
  EXPECT_EQ(Said(), "\"NOTHING\" is not defined in an open document.");
  GoFrom("{ ");
  EXPECT_EQ(Said(), "There is no name at the caret.");
  EXPECT_EQ(Text().SelLength(), 0);
  EXPECT_FALSE(Documents().Current().Modified());
}

TEST_F(GoingToADefinition, KnowsWhatWasJustTyped) {
  Open("A\r\n");
  PutCaretBehind("A");
  QTest::keyClicks(&View(), " NEW");
  Press(Qt::Key_F12);
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&View(), "define NEW 2");
  Press(Qt::Key_Return);
  GoFrom("A N");
  EXPECT_EQ(Selected(), "define [NEW] 2");
}

TEST_F(GoingToADefinition, LeadsBackAndForward) {
  Open("define X 1\r\nX\r\n", "define Y 1\r\nX\r\n");
  GoFrom("1\r\nX");
  ASSERT_EQ(Current(), 0);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Text().SelStart(), 13);
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(Text().SelStart(), 7);
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Current(), 0);
}

TEST_F(GoingToADefinition, LeadsBackToAPlaceThatMovedWithTheText) {
  Open("define X 1\r\nX here\r\n");
  GoFrom("1\r\nX");
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&View(), "// ");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Selected(), "X[] here");
}

TEST_F(GoingToADefinition, LeadsBackToADocumentThatMovedUp) {
  Open("first\r\n", "define X 1\r\n", "X\r\n");
  GoFrom("X");
  ASSERT_EQ(Current(), 1);
  Select(0);
  Run().Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Documents().Count(), 2);
  Select(0);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Selected(), "X[]");
}

TEST(PlaceHistory, ForgetsTheWayForwardWhenSomebodyGoesElsewhere) {
  PlaceHistory history;
  history.Leave({Slot{0}, 1});
  EXPECT_EQ(history.Back({Slot{0}, 2}), (Place{Slot{0}, 1}));
  history.Leave({Slot{0}, 1});
  EXPECT_EQ(history.Forward({Slot{0}, 5}), std::nullopt);
  EXPECT_EQ(history.Back({Slot{0}, 5}), (Place{Slot{0}, 1}));
}

TEST(PlaceHistory, SkipsWhereSomebodyIs) {
  PlaceHistory history;
  history.Leave({Slot{0}, 1});
  history.Leave({Slot{0}, 2});
  EXPECT_EQ(history.Back({Slot{0}, 2}), (Place{Slot{0}, 1}));
}

TEST(PlaceHistory, ForgetsTheOldestOfTooMany) {
  PlaceHistory history;
  for (Position at = 0; at <= static_cast<Position>(PlaceHistory::kMost); ++at) {
    history.Leave({Slot{0}, at});
  }
  std::optional<Place> last;
  Place here{Slot{0}, -1};
  while (const auto place = history.Back(here)) last = here = *place;
  EXPECT_EQ(last, (Place{Slot{0}, 1}));
}

TEST(PlaceHistory, DropsThePlacesOfADocumentThatGoes) {
  PlaceHistory history;
  history.Leave({Slot{0}, 1});
  history.Leave({Slot{1}, 2});
  history.Dropped(Slot{1});
  EXPECT_EQ(history.Back({Slot{0}, 3}), (Place{Slot{0}, 1}));
}

}  // namespace
}  // namespace tessel::test
