// Blocks fold away, by keys and by the margin.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "ScriptTest.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

constexpr const char* kScript =
    "state a\r\n  {\r\n    x\r\n  }\r\nends\r\ndefine B 1\r\nactor C\r\n  y\r\nenda\r\n";

class FoldedBlocks : public ScriptTest {
 protected:
  /// The first word of each line that is seen; "+" where something is folded under it.
  std::string Seen() {
    std::istringstream lines(Text().Text());
    std::string seen;
    std::string word;
    unsigned long number = 0;
    for (std::string line; std::getline(lines, line); ++number) {
      if (View().SendScintilla(Sci::SCI_GETLINEVISIBLE, number) == 0) continue;
      word.clear();
      std::istringstream(line) >> word;
      const bool folded = View().SendScintilla(Sci::SCI_GETFOLDEXPANDED, number) == 0;
      seen += word + (folded ? "+ " : " ");
    }
    return seen;
  }
  bool IsHeader(unsigned long line) {
    return (View().SendScintilla(Sci::SCI_GETFOLDLEVEL, line) & Sci::SC_FOLDLEVELHEADERFLAG) != 0;
  }
  bool BecomesHeader(unsigned long line) {
    return QTest::qWaitFor([&] { return IsHeader(line); }, kPatience);
  }
  void OpenScript() {
    Open(std::string(kScript));
    ASSERT_TRUE(BecomesHeader(6));
  }
  void FoldAll() { Press(Qt::Key_F9, Qt::ControlModifier); }
};

TEST_F(FoldedBlocks, FoldAndUnfoldAllTogether) {
  OpenScript();
  EXPECT_EQ(Seen(), "state { x } ends define actor y enda ");
  FoldAll();
  EXPECT_EQ(Seen(), "state+ define actor+ ");
  Press(Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Seen(), "state { x } ends define actor y enda ");
}

TEST_F(FoldedBlocks, ChangeNoText) {
  OpenScript();
  FoldAll();
  EXPECT_EQ(Text().Text(), kScript);
  EXPECT_FALSE(Documents().Current().Modified());
  EXPECT_FALSE(Text().CanUndo());
}

TEST_F(FoldedBlocks, AreThoseAroundTheCaret) {
  OpenScript();
  PutCaretBehind("    x");
  Press(Qt::Key_F9);
  EXPECT_EQ(Seen(), "state {+ ends define actor y enda ");
  EXPECT_EQ(Selected(), "  {[]");
  Press(Qt::Key_F9);
  EXPECT_EQ(Seen(), "state { x } ends define actor y enda ");
  PutCaretBehind("define");
  Press(Qt::Key_F9);
  EXPECT_EQ(Seen(), "state { x } ends define actor y enda ");
}

TEST_F(FoldedBlocks, LeaveTheCaretWhereItIsSeen) {
  OpenScript();
  PutCaretBehind("    x");
  FoldAll();
  EXPECT_EQ(Selected(), "state a[]");
}

TEST_F(FoldedBlocks, UnfoldWhereSomethingIsSelected) {
  OpenScript();
  FoldAll();
  Text().Find("y", 0);
  EXPECT_EQ(Seen(), "state+ define actor y enda ");
  Shown().Control().Tessel().Run([&] { Text().SelectByHand(12, 0); });
  EXPECT_EQ(Seen(), "state { x } ends define actor y enda ");
}

TEST_F(FoldedBlocks, UnfoldWhereADefinitionIsThatSomebodyGoesTo) {
  Open("actor A\r\n  state b\r\nenda\r\nstate b\r\nends\r\nstate b\r\nends\r\n", "x\r\n");
  Select(0);
  ASSERT_TRUE(BecomesHeader(3));
  PutCaretBehind("state b");
  Select(1);
  Select(0);
  FoldAll();
  EXPECT_EQ(Seen(), "actor+ state+ state+ ");
  Text().SelectByHand(12, 0);
  EXPECT_EQ(Seen(), "actor state enda state+ state+ ");
}

TEST_F(FoldedBlocks, StayFoldedWhileSomethingElseIsTyped) {
  OpenScript();
  PutCaretBehind("actor C");
  Press(Qt::Key_F9);
  PutCaretBehind("define B 1");
  QTest::keyClicks(&View(), "2");
  QTest::qWait(500);
  EXPECT_EQ(Seen(), "state { x } ends define actor+ ");
}

TEST_F(FoldedBlocks, FollowWhatIsTyped) {
  OpenScript();
  PutCaretBehind("define B 1");
  Press(Qt::Key_Return);
  QTest::keyClicks(&View(), "state n");
  Press(Qt::Key_Return);
  QTest::keyClicks(&View(), "ends");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return IsHeader(6) && !IsHeader(7) && IsHeader(8); }, kPatience));
}

TEST_F(FoldedBlocks, FoldByAClickInTheMargin) {
  OpenScript();
  const long left = View().SendScintilla(Sci::SCI_GETMARGINWIDTHN, 0UL) +
                    View().SendScintilla(Sci::SCI_GETMARGINWIDTHN, 1UL);
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(static_cast<int>(left) + 6, 6));
  EXPECT_EQ(Seen(), "state+ define actor y enda ");
  EXPECT_EQ(Text().SelLength(), 0);
}

TEST_F(FoldedBlocks, OfADocumentThatIsShownLaterAreMarkedToo) {
  Open(std::string(kScript), "x");
  Select(0);
  EXPECT_TRUE(BecomesHeader(6));
}

TEST_F(FoldedBlocks, DoNotKeepTextFromBeingUndone) {
  OpenScript();
  PutCaretBehind("    x");
  QTest::keyClicks(&View(), "yz");
  ASSERT_TRUE(BecomesHeader(6));
  FoldAll();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), kScript);
  EXPECT_EQ(Seen().substr(0, 12), "state { x } ");
}

}  // namespace
}  // namespace tessel::test
