// The view of what is different in two texts.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>

#include "HostFixture.h"
#include "host/BackupsDialog.h"
#include "host/ChangeNotice.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "host/changes/DifferenceWindow.h"
#include "support/BestSeconds.h"
#include "text/LineEnds.h"

namespace tessel::test {
namespace {

// --- Rows

char Sign(RowKind kind) {
  switch (kind) {
    case RowKind::kRemoved:
      return '-';
    case RowKind::kAdded:
      return '+';
    case RowKind::kLeftOut:
      return '.';
    case RowKind::kSame:
      break;
  }
  return ' ';
}

std::string RowsBetween(const std::string& before, const std::string& after) {
  const LineDifference difference(before, after);
  std::string rows;
  for (const DifferenceRow& row : difference.Rows()) {
    rows += Sign(row.kind);
    rows += row.kind == RowKind::kLeftOut ? std::to_string(row.leftOut)
                                          : std::string(WithoutBreak(difference.LineOf(row)));
    rows += '\n';
  }
  return rows;
}

TEST(DifferenceRows, HaveThreeEqualLinesAroundAChange) {
  EXPECT_EQ(RowsBetween("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n", "1\n2\n3\n4\n5\nsix\n7\n8\n9\n10\n"),
            ".2\n 3\n 4\n 5\n-6\n+six\n 7\n 8\n 9\n 10\n");
  EXPECT_EQ(RowsBetween("a\n", "a\n"), " a\n") << "a single line is not left out";
  EXPECT_EQ(RowsBetween("a\nb\n", "a\nb\n"), ".2\n");
  EXPECT_EQ(RowsBetween("", ""), "");
}

TEST(DifferenceRows, HaveChangedLinesInPairs) {
  EXPECT_EQ(RowsBetween("define A 1\ndefine B 2\n", "define A 5\ndefine B 6\n"),
            "-define A 1\n+define A 5\n-define B 2\n+define B 6\n");
  EXPECT_EQ(LineDifference("define A 1\ndefine B 2\n", "define A 5\ndefine B 6\n").Changes().size(),
            2U);
  EXPECT_EQ(RowsBetween("define A 1\nmusic 1\n", "state xyz\nends\n"),
            "-define A 1\n-music 1\n+state xyz\n+ends\n");
}

TEST(DifferenceRows, EndLinesAsTheEditorDoes) {
  EXPECT_EQ(RowsBetween("a\rb\r", "a\rc\r"), " a\n-b\n+c\n");
}

/// The text after, by the rows and the text before.
std::string AppliedTo(const std::string& before, const LineDifference& difference) {
  const auto lines = LinesWithBreaks(before);
  std::string text;
  for (const DifferenceRow& row : difference.Rows()) {
    if (row.kind == RowKind::kSame) text += lines[row.before];
    if (row.kind == RowKind::kAdded) text += difference.LineOf(row);
    for (std::uint32_t i = 0; i < row.leftOut; ++i) text += lines[row.before + i];
  }
  return text;
}

RC_GTEST_PROP(DifferenceRows, LeadFromTheTextBeforeToTheOneAfter, ()) {
  const auto text = rc::gen::container<std::string>(rc::gen::element('a', 'b', '\r', '\n'));
  const std::string before = *text;
  const std::string after = *text;
  const LineDifference difference(before, after);
  RC_ASSERT(AppliedTo(before, difference) == after);
  std::size_t changed = 0;
  for (const ChangeRows& change : difference.Changes()) {
    for (std::size_t i = 0; i < change.count; ++i, ++changed) {
      const RowKind kind = difference.Rows()[change.first + i].kind;
      RC_ASSERT(kind == RowKind::kRemoved || kind == RowKind::kAdded);
    }
  }
  for (const DifferenceRow& row : difference.Rows()) {
    if (row.kind == RowKind::kRemoved || row.kind == RowKind::kAdded) --changed;
  }
  RC_ASSERT(changed == 0U);
}

// --- Lines as they are drawn

/// The row's text with what is marked in brackets.
std::string Drawn(const LineDifference& difference, std::size_t row, int tabWidth = 8) {
  const ShownLine line = ShownLineOf(difference, difference.Rows().at(row), tabWidth);
  QString text = line.text;
  for (auto stretch = line.changed.rbegin(); stretch != line.changed.rend(); ++stretch) {
    text.insert(stretch->at + stretch->length, ']').insert(stretch->at, '[');
  }
  return text.toStdString();
}

TEST(ADrawnLine, HasItsChangedWordsMarked) {
  const LineDifference difference("define A 100 // x\r\n", "define A 7 // x\r\n");
  EXPECT_EQ(Drawn(difference, 0), "define A [100] // x");
  EXPECT_EQ(Drawn(difference, 1), "define A [7] // x");
}

TEST(ADrawnLine, ShowsBytesAsTheEditorDoes) {
  const LineDifference difference("\x80\t\x93 <b>&amp;\x01\x7f\n", "");
  EXPECT_EQ(Drawn(difference, 0), "€       “ <b>&amp;␁␡");
  EXPECT_EQ(Drawn(difference, 0, 4), "€   “ <b>&amp;␁␡");
}

TEST(ADrawnLine, NamesItsEndWhereThatAloneDiffers) {
  const LineDifference difference("define A 1\r\n", "define A 1\n");
  EXPECT_EQ(Drawn(difference, 0), "define A 1 [↵ CR LF]");
  EXPECT_EQ(Drawn(difference, 1), "define A 1 [↵ LF]");
  EXPECT_EQ(Drawn(LineDifference("define A 1", "define A 1\n"), 0), "define A 1 [↵ no line end]");
}

TEST(ADrawnLine, OfManyCharactersIsAPartWithTheChange) {
  const std::string lead(50'000, 'a');
  const LineDifference difference(lead + " 1 " + lead, lead + " 2 " + lead);
  const std::string drawn = Drawn(difference, 0);
  EXPECT_LT(drawn.size(), 2100U);
  EXPECT_TRUE(drawn.starts_with("…a"));
  EXPECT_NE(drawn.find(" [1] "), std::string::npos);
  EXPECT_TRUE(drawn.ends_with("a…"));
}

// --- The window

class Differences : public HostTest {
 protected:
  Differences() { QApplication::setActiveWindow(Run().window.get()); }

  void Show(const std::string& before, const std::string& after) {
    ShowDifferences(*Run().window, Run().window->Control().CurrentEditorView(),
                    {{.document = "x",
                      .nameBefore = "<b>was</b>",
                      .nameAfter = "is",
                      .before = before,
                      .after = after}});
  }
  DifferenceWindow& Window() { return *Run().window->findChild<DifferenceWindow*>(); }
  DifferenceView& View() { return *Window().findChild<DifferenceView*>(); }
  std::string Label(const char* name) {
    const auto* label = Window().findChild<QLabel*>(name);
    return label->isVisible() ? label->text().toStdString() : "";
  }
  bool Says(const std::string& place) {
    return QTest::qWaitFor([&] { return Label("place") == place; }, kPatience);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&View(), key, modifiers);
  }
  std::string CurrentLine() {
    return View().currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
  }
  /// `count` values of which each has 10 lines around it.
  static std::string Values(int count, const std::string& value) {
    std::string text;
    for (int i = 0; i < count; ++i) {
      text += "define A" + std::to_string(i) + " " + value + "\n";
      for (int line = 0; line < 10; ++line) text += "line\n";
    }
    return text;
  }
  void Click(QWidget& parent, const QString& caption) {
    for (auto* button : parent.findChildren<QPushButton*>()) {
      if (button->text() == caption) return button->click();
    }
    FAIL() << caption.toStdString();
  }
};

TEST_F(Differences, AreGoneThroughByKeys) {
  Show(Values(3, "1"), Values(3, "2"));
  ASSERT_TRUE(Says("1 of 3"));
  EXPECT_EQ(CurrentLine(), "Removed: define A0 1");
  Press(Qt::Key_F8);
  EXPECT_EQ(Label("place"), "2 of 3");
  EXPECT_EQ(CurrentLine(), "Removed: define A1 1");
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Added: define A1 2");
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Label("place"), "3 of 3");
  Press(Qt::Key_F8);
  EXPECT_EQ(Label("place"), "3 of 3") << "it is the last one";
  Press(Qt::Key_F8, Qt::ShiftModifier);
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Label("place"), "1 of 3");
}

TEST_F(Differences, HaveTheNumbersOfBothTextsAndASign) {
  Show("a\nb\n", "a\nx\nb\n");
  ASSERT_TRUE(Says("1 of 1"));
  std::vector<std::string> cells;
  for (int row = 0; row < View().model()->rowCount(); ++row) {
    std::string text;
    for (int column = 0; column < 4; ++column) {
      text += View().model()->index(row, column).data().toString().toStdString() + "|";
    }
    cells.push_back(text);
  }
  EXPECT_EQ(cells, (std::vector<std::string>{"1|1||a|", "|2|+|x|", "2|3||b|"}));
}

TEST_F(Differences, AreNoneBetweenEqualTexts) {
  Show("a\n", "a\n");
  EXPECT_TRUE(Says("No difference"));
}

TEST_F(Differences, ShowNamesAsTheyStand) {
  Show("a\n", "b\n");
  bool plain = false;
  for (const auto* label : Window().findChildren<QLabel*>()) {
    if (!label->text().contains("<b>was</b>")) continue;
    plain = label->textFormat() == Qt::PlainText;
  }
  EXPECT_TRUE(plain);
}

TEST_F(Differences, AreCopiedWithTheirSigns) {
  Show("a\nb\n", "a\nc\n");
  ASSERT_TRUE(Says("1 of 1"));
  View().selectAll();
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), " a\n-b\n+c\n");
}

TEST_F(Differences, ShareOneWindowThatHoldsUpNobody) {
  Show("a\n", "b\n");
  Show("a\n", "a\n");
  EXPECT_EQ(Run().window->findChildren<DifferenceWindow*>().size(), 1);
  EXPECT_TRUE(Says("No difference"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Differences, OfAnotherKindOfTextAreRoughAndSaySo) {
  std::string before;
  std::string after;
  for (int i = 0; i < 5000; ++i) before += "a" + std::to_string(i) + "\n";
  for (int i = 0; i < 4000; ++i) after += "b" + std::to_string(i) + "\n";
  Show(before, after);
  ASSERT_TRUE(Says("1 of 1"));
  EXPECT_NE(Label("remark"), "");
  Show("a\n", "b\n");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Label("remark").empty(); }, kPatience));
}

/// For how long at most nothing else can happen in the window, in seconds of its processor time.
double LongestPause(const std::function<bool()>& done) {
  QElapsedTimer whole;
  whole.start();
  double longest = 0;
  while (!done() && whole.elapsed() < kPatience) {
    longest = std::max(longest, BestSecondsOf(1, [] {
                         QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
                       }));
  }
  return longest;
}

TEST_F(Differences, OfTwoLargeTextsDoNotHoldUpTheWindow) {
  std::string before;
  std::string after;
  while (before.size() < 10'000'000) {
    const std::string number = std::to_string(before.size());
    before += "define NAME" + number + " " + number + " // a value of the game\r\n";
    after += "sound S" + number + " is another text altogether, with other lines\r\n";
  }
  after += "end\r\n";
  const double asked = BestSecondsOf(1, [&] { Show(before, after); });
  const double longest = LongestPause([&] { return Label("place") == "1 of 1"; });
  EXPECT_EQ(Label("place"), "1 of 1");
  RecordProperty("milliseconds", static_cast<int>(1000 * std::max(asked, longest)));
#ifndef TESSEL_SANITIZED
  EXPECT_LT(asked, 0.2);
  EXPECT_LT(longest, 0.2);
#endif
}

TEST_F(Differences, OfABackupAreThoseFromTheTextNow) {
  const std::string path = directory_.Put("user.con", "define A 1\r\n");
  Run().window->OpenFiles({path});
  Run().Editor(0).Type("// ");
  Run().SaveInPlace();
  Run().Editor(0).Type("more ");
  Run().MenuItem("&Backups...")->trigger();
  auto* dialog = Run().window->findChild<BackupsDialog*>();
  ASSERT_NE(dialog, nullptr);
  Click(*dialog, "Co&mpare");
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_TRUE(Says("1 of 1"));
  EXPECT_EQ(CurrentLine(), "Removed: define A 1");
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Added: // more define A 1");
}

TEST_F(Differences, OfABackupOfAFileThatIsNotOpenAreThoseFromTheDisk) {
  const std::string path = directory_.Put("user.con", "define A 1\r\n");
  Run().window->OpenFiles({path});
  Run().Editor(0).Type("// ");
  Run().SaveInPlace();
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  Run().MenuItem("&Backups...")->trigger();
  Click(*Run().window->findChild<BackupsDialog*>(), "Co&mpare");
  ASSERT_TRUE(Says("1 of 1"));
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Added: // define A 1");
}

TEST_F(Differences, FromAFileThatOthersChangedAreShownAndAcceptNothing) {
  const std::string path = directory_.Put("user.con", "define A 1\r\n");
  Run().window->OpenFiles({path});
  directory_.Put("user.con", "define A 200\r\n");
  auto& notice = *Run().window->findChild<ChangeNotice*>();
  notice.Check();
  ASSERT_TRUE(Run().Press<ChangeNotice>("Show D&ifferences"));
  ASSERT_TRUE(Says("1 of 1"));
  EXPECT_EQ(CurrentLine(), "Removed: define A 1");
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Added: define A 200");
  notice.Check();
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(Run().Editor(0).Text(), "define A 1\r\n");
}

TEST_F(Differences, OfAnUnsavedTextAreShownBeforeItIsRecovered) {
  const std::string path = directory_.Put("user.con", "define A 1\r\n");
  Run().window->OpenFiles({path});
  Run().Editor(0).Type("// ");
  ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow());
  Restart();
  ASSERT_TRUE(Run().Press<RecoveryOffer>("Show Differen&ces"));
  ASSERT_TRUE(Says("1 of 1"));
  EXPECT_EQ(CurrentLine(), "Removed: define A 1");
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Added: // define A 1");
  EXPECT_TRUE(Run().window->findChild<RecoveryOffer*>()->isVisible());
}

}  // namespace
}  // namespace tessel::test
