// Caret and current line while a panel has the focus.
#include <QImage>
#include <QLineEdit>

#include "ScriptTest.h"
#include "qt/editor/EditorSetUp.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

class RestingCaret : public ScriptTest {
 protected:
  void SetUp() override {
    Shown().resize(1000, 700);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Shown()));
    Open("one\r\ntwo three\r\nfour\r\n");
    View().setFocus();
    PutCaretBehind("two ");
  }
  void GoToPanel() { Shown().Control().WidgetFor(Run().Controls().lstPlayers)->setFocus(); }
  QImage Picture() { return View().viewport()->grab().toImage(); }
  int LineHeight() { return static_cast<int>(View().SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL)); }
  /// How many pixels of a colour there are in a line, from 0.
  int PixelsIn(int line, const QColor& colour) {
    const QImage image = Picture();
    int count = 0;
    for (int y = line * LineHeight(); y < (line + 1) * LineHeight(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
  }
  /// The columns of pixels that are the text's colour from the top of a line to its bottom.
  std::vector<int> UprightLinesIn(int line) {
    const QImage image = Picture();
    const QColor ink = ThemeOfWidget(View()).text;
    std::vector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
      bool upright = true;
      for (int y = line * LineHeight(); y < (line + 1) * LineHeight(); ++y) {
        upright = upright && image.pixelColor(x, y) == ink;
      }
      if (upright) columns.push_back(x);
    }
    return columns;
  }
};

TEST_F(RestingCaret, IsHollowAndItsLineIsMarked) {
  GoToPanel();
  ASSERT_FALSE(View().hasFocus());
  EXPECT_GT(PixelsIn(1, ThemeOfWidget(View()).currentLine), 1000);
  const auto caret = UprightLinesIn(1);
  ASSERT_EQ(caret.size(), 2U) << "two edges, and nothing between them";
  EXPECT_EQ(caret[1] - caret[0], 3);
}

TEST_F(RestingCaret, GoesWithTheSelection) {
  GoToPanel();
  Picture();
  Text().SelectByHand(0, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(UprightLinesIn(0).size(), 2U);
  EXPECT_EQ(UprightLinesIn(1).size(), 0U);
}

TEST_F(RestingCaret, IsNoneWhereTheTextHasTheFocus) {
  View().SendScintilla(Sci::SCI_SETCARETPERIOD, 0UL);
  const auto caret = UprightLinesIn(1);
  ASSERT_EQ(caret.size(), 2U);
  EXPECT_EQ(caret[1] - caret[0], 1) << "Scintilla's own is as wide as two pixels";
}

}  // namespace
}  // namespace tessel::test
