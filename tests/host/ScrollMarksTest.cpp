// Marks of matches and changes beside the scroll bar.
#include <QHelpEvent>
#include <QToolTip>
#include <random>

#include "ScriptTest.h"
#include "host/find/FindBar.h"
#include "host/view/ChangedPlaces.h"
#include "host/view/MarkStrip.h"
#include "qt/editor/EditorTheme.h"
#include "qt/looks/Contrast.h"
#include "qt/looks/Theme.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

// --- Changed places of a text

using Places = std::vector<ChangedPlace>;

/// A text that is edited, and what the edits have changed.
struct EditedText {
  TextStore store;
  ChangedPlaces changes;
  Subscription edited = store.Edited.Connect([this](const TextEdit& edit) { changes.Add(edit); });

  explicit EditedText(const char* text) { store.Assign(text); }
  void Replace(Position at, Position length, std::string_view text) {
    store.Replace(at, length, text, kBlack);
  }
  Places All() const { return {changes.All().begin(), changes.All().end()}; }
};

TEST(ChangedPlacesOf, ARunOfTypingAreOne) {
  EditedText text("0123456789");
  text.Replace(3, 0, "a");
  text.Replace(4, 0, "b");
  EXPECT_EQ(text.All(), (Places{{3, 5}}));
}

TEST(ChangedPlacesOf, EditsApartShiftThoseBehindThem) {
  EditedText text("0123456789");
  text.Replace(8, 1, "xy");
  text.Replace(2, 0, "abc");
  EXPECT_EQ(text.All(), (Places{{2, 5}, {11, 13}}));
  text.Replace(0, 1, "");
  EXPECT_EQ(text.All(), (Places{{0, 0}, {1, 4}, {10, 12}}));
}

TEST(ChangedPlacesOf, AnEditOverSeveralAreOne) {
  EditedText text("0123456789");
  text.Replace(2, 1, "a");
  text.Replace(6, 1, "b");
  text.Replace(1, 7, "-");
  EXPECT_EQ(text.All(), (Places{{1, 2}}));
}

TEST(ChangedPlacesOf, AReplacementAreOnlyWhereItDiffers) {
  EditedText text("0123456789");
  text.Replace(0, 10, "01234x6789");
  EXPECT_EQ(text.All(), (Places{{5, 6}}));
  text.changes.Clear();
  text.Replace(2, 3, "234");
  EXPECT_EQ(text.All(), Places{});
}

TEST(ChangedPlacesOf, AnyEditsHoldEveryByteThatIsNew) {
  std::mt19937 random(3);
  for (int round = 0; round < 200; ++round) {
    EditedText text("................................");
    for (int edit = 0; edit < 20; ++edit) {
      const auto length = static_cast<unsigned>(text.store.Length());
      const Position at = random() % (length + 1);
      const Position removed = random() % 4;
      const std::string inserted(random() % 4, '#');
      text.Replace(at, std::min<Position>(removed, length - at), inserted);
    }
    Position before = -1;
    std::string marked(text.store.Bytes());
    for (const auto& [start, end] : text.All()) {
      EXPECT_GT(start, before) << "none touches another";
      ASSERT_LE(end, text.store.Length());
      std::fill(marked.begin() + start, marked.begin() + end, '.');
      before = end;
    }
    EXPECT_EQ(marked, std::string(marked.size(), '.')) << text.store.Bytes();
  }
}

// --- In the window

class ScrollMarksOfTheWindow : public ScriptTest {
 protected:
  void SetUp() override {
    Shown().resize(1000, 700);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Shown()));
    View().setFocus();
  }
  MarkStrip& Strip() { return *View().findChild<MarkStrip*>(); }
  static std::string Lines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) text += "line " + std::to_string(line) + "\r\n";
    return text;
  }
  void PutCaretInLine(int line) {
    const long at = View().SendScintilla(Sci::SCI_POSITIONFROMLINE, static_cast<long>(line));
    Text().SelectByHand(View().mirror().OffsetOf(at), 0);
  }
  /// Rows come a moment later.
  bool Changes(std::size_t runs) {
    return QTest::qWaitFor([&] { return RunsOf(Strip().ChangeRows()) == runs; }, 5000);
  }
  static std::size_t RunsOf(const std::vector<int>& rows) {
    std::size_t runs = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (i == 0 || rows[i] > rows[i - 1] + 1) ++runs;
    }
    return runs;
  }
  /// The lines in sight, from 0, that have a bar in the margin.
  std::vector<int> Bars() {
    Shown().grab();
    const long top = View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
    const long rows = View().SendScintilla(Sci::SCI_LINESONSCREEN);
    std::vector<int> lines;
    for (auto line = static_cast<int>(top); line <= top + rows; ++line) {
      if (View().SendScintilla(Sci::SCI_MARKERGET, line) & 1 << 8) lines.push_back(line);
    }
    return lines;
  }
  void Find(const QString& text) {
    QTest::keyClick(&View(), Qt::Key_E, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), text);
  }
  QString TipAt(int row) {
    const QPoint at(3, row);
    QHelpEvent help(QEvent::ToolTip, at, Strip().mapToGlobal(at));
    QApplication::sendEvent(&Strip(), &help);
    return QToolTip::text();
  }
};

TEST_F(ScrollMarksOfTheWindow, StandBetweenTheTextAndTheScrollBar) {
  Open(Lines(1000));
  Shown().grab();
  const QRect text = View().viewport()->geometry();
  EXPECT_TRUE(Strip().isVisible());
  EXPECT_EQ(Strip().geometry().left(), text.right() + 1);
  EXPECT_EQ(Strip().height(), text.height());
  EXPECT_LE(Strip().geometry().right(), View().width() - 10);
}

TEST_F(ScrollMarksOfTheWindow, ShowTheLinesThatWereChangedSinceTheFileWasOpened) {
  Open(Lines(1000));
  EXPECT_TRUE(Changes(0));
  PutCaretInLine(500);
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  EXPECT_NEAR(Strip().ChangeRows().front(), Strip().height() / 2, 4);
  PutCaretInLine(10);
  QTest::keyClicks(&View(), "x");
  EXPECT_TRUE(Changes(2));
  EXPECT_EQ(Bars(), std::vector<int>{10});
  PutCaretInLine(505);
  EXPECT_EQ(Bars(), std::vector<int>{500});
}

TEST_F(ScrollMarksOfTheWindow, MoveWithTheirLines) {
  Open(Lines(100));
  PutCaretInLine(90);
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  const int before = Strip().ChangeRows().front();
  PutCaretInLine(0);
  Text().Type(Lines(100));
  ASSERT_TRUE(Changes(2));
  EXPECT_GT(Strip().ChangeRows().back(), before);
}

TEST_F(ScrollMarksOfTheWindow, GoWhenTheDocumentIsSaved) {
  Open(Lines(100));
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  EXPECT_EQ(Bars(), std::vector<int>{0});
  Run().SaveInPlace();
  EXPECT_TRUE(Changes(0));
  EXPECT_EQ(Bars(), std::vector<int>{});
}

TEST_F(ScrollMarksOfTheWindow, BelongToTheirDocument) {
  Open(Lines(100), Lines(50));
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  Select(0);
  EXPECT_TRUE(Changes(0));
  QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(Text().Text().substr(0, 5), "xline");
  EXPECT_TRUE(Changes(1)) << "it has moved up";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bars() == std::vector<int>{0}; }, 5000));
}

TEST_F(ScrollMarksOfTheWindow, MarkANewLineAlone) {
  Open("a\r\nb\r\nc\r\n");
  Text().SelectByHand(4, 0);
  QTest::keyClick(&View(), Qt::Key_Return);
  QTest::keyClicks(&View(), "new");
  ASSERT_EQ(Text().Text(), "a\r\nb\r\nnew\r\nc\r\n");
  ASSERT_TRUE(Changes(1));
  EXPECT_EQ(Bars(), std::vector<int>{2});
}

TEST_F(ScrollMarksOfTheWindow, ShowWhatTheFindBarHasFound) {
  Open(Lines(1000) + "needle\r\n" + Lines(1000) + "needle\r\n");
  Find("needle");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Strip().MatchRows().size() == 2; }, 5000));
  EXPECT_NEAR(Strip().MatchRows().front(), Strip().height() / 2, 4);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(Strip().MatchRows().empty());
}

TEST_F(ScrollMarksOfTheWindow, ShowTheCaret) {
  Open(Lines(1000));
  EXPECT_EQ(Strip().CaretRow(), 0);
  PutCaretInLine(999);
  EXPECT_NEAR(Strip().CaretRow(), Strip().height(), 6);
}

TEST_F(ScrollMarksOfTheWindow, LeadToWhatTheyMark) {
  Open(Lines(1000) + "needle\r\n" + Lines(1000));
  Find("needle");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Strip().MatchRows().size() == 1; }, 5000));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  PutCaretInLine(1500);
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  PutCaretInLine(0);
  QTest::mouseClick(&Strip(), Qt::LeftButton, {}, QPoint(3, Strip().ChangeRows().front() + 1));
  EXPECT_EQ(Selected(), "[]xline 499");
  EXPECT_TRUE(View().hasFocus());
  const long top = View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
  EXPECT_GT(top, 1400);
  EXPECT_LT(top, 1500);
}

TEST_F(ScrollMarksOfTheWindow, ScrollWhereThereIsNoMark) {
  Open(Lines(1000));
  QTest::mouseClick(&Strip(), Qt::LeftButton, {}, QPoint(3, Strip().height() / 2));
  EXPECT_NEAR(View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), 500, 40);
  EXPECT_EQ(Text().SelStart(), 0) << "the caret stays";
}

TEST_F(ScrollMarksOfTheWindow, SayWhatTheyAre) {
  Open(Lines(1000) + "needle\r\n" + Lines(1000) + "needle\r\n");
  Find("needle");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Strip().MatchRows().size() == 2; }, 5000));
  EXPECT_EQ(TipAt(Strip().MatchRows().back() + 1), "Match 2 of 2, line 2002");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  PutCaretInLine(500);
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  EXPECT_EQ(TipAt(Strip().ChangeRows().front() + 1), "Line 501, changed");
  EXPECT_EQ(TipAt(0), "Line 1");
}

TEST_F(ScrollMarksOfTheWindow, AreSwitchedOffAndOnForGood) {
  Open(Lines(100));
  QTest::keyClicks(&View(), "x");
  ASSERT_TRUE(Changes(1));
  Shown().grab();
  const int narrow = View().viewport()->width();
  Run().MenuItem("Scroll Bar &Marks")->trigger();
  EXPECT_TRUE(Strip().isHidden());
  EXPECT_GT(View().viewport()->width(), narrow);
  EXPECT_EQ(Bars(), std::vector<int>{});
  CloseAndStartAgain();
  EXPECT_TRUE(Strip().isHidden());
  Run().MenuItem("Scroll Bar &Marks")->trigger();
  EXPECT_TRUE(Strip().isVisible());
}

TEST_F(ScrollMarksOfTheWindow, StandOutOnLightAndDark) {
  for (const auto scheme : {ColourScheme::kLight, ColourScheme::kDark}) {
    ApplyTheme(*qApp, scheme);
    const MarkColours colours = MarkColoursOf(QApplication::palette());
    const EditorTheme theme = ThemeOf(QApplication::palette(), QPalette::Active);
    for (const QColor& mark : {colours.change, colours.match, colours.caret}) {
      EXPECT_GE(ContrastOf(mark, colours.ground), 3.0) << mark.name().toStdString();
      EXPECT_GE(ContrastOf(mark, theme.background), 3.0) << mark.name().toStdString();
    }
  }
  ApplyTheme(*qApp, ColourScheme::kDesktop);
}

TEST_F(ScrollMarksOfTheWindow, AConversionThatFailsLeavesAsTheyAre) {
  Open("define MAXPLAYERHEALTH 100\r\n");
  QTest::keyClicks(&View(), "// ");
  ASSERT_TRUE(Changes(1));
  Run().Controls().tbToolBar.Press("Convert");
  EXPECT_EQ(Text().Text(), "// define MAXPLAYERHEALTH 100\r\n");
  EXPECT_TRUE(Changes(1));
  EXPECT_EQ(Bars(), std::vector<int>{0});
}

}  // namespace
}  // namespace tessel::test
