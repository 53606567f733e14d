// A text that is shown for reading only.
#include "qt/ScintillaViewFixture.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr Position kShown = 100;

struct ScintillaViewReading : ScintillaViewFixture {
  const QString why = "One line is too long.";
  const std::string text = std::string(500, 'x') + "\r\nshort";

  ScintillaViewReading() {
    model.SetText(text);
    view.SetReading(Reading{why, kShown});
  }
  /// Where a byte is drawn, in pixels from the left of the text.
  long XOf(long position) const {
    return view.SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, position) -
           view.SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, 0L);
  }
  void Draw() { view.viewport()->repaint(); }
};

TEST_F(ScintillaViewReading, RefusesKeysThatEdit) {
  Select(3, 2);
  for (const int key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Backspace}) {
    refusals.clear();
    Press(key, Qt::NoModifier, key == Qt::Key_A ? "a" : "");
    EXPECT_TRUE(refusals.contains(why)) << key;
    EXPECT_EQ(model.Text(), text);
    EXPECT_EQ(Displayed(), text);
  }
}

TEST_F(ScintillaViewReading, RefusesCommandsThatEdit) {
  clipboard.SetText("pasted");
  Select(3, 2);
  for (const int key : {Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y}) {
    Press(key, Qt::ControlModifier);
  }
  EXPECT_EQ(model.Text(), text);
  EXPECT_EQ(clipboard.GetText(), "pasted");
  EXPECT_EQ(refusals, QStringList({why, why, why, why}));
}

TEST_F(ScintillaViewReading, SelectsAndCopies) {
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), std::pair(Position{0}, Position{1}));
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard.GetText(), "x");
  EXPECT_EQ(refusals, QStringList());
}

TEST_F(ScintillaViewReading, ShowsWhatACommandOfTheControlChanges) {
  Select(0, 500);
  model.SetSelText("changed");
  EXPECT_EQ(Displayed(), "changed\r\nshort");
  Press(Qt::Key_A, Qt::NoModifier, "a");
  EXPECT_EQ(Displayed(), "changed\r\nshort");
}

TEST_F(ScintillaViewReading, DrawsTheBeginningOfALongLineOnly) {
  Draw();
  EXPECT_GT(XOf(kShown), XOf(kShown - 1));
  EXPECT_EQ(XOf(500), XOf(kShown));
  EXPECT_GT(XOf(507), XOf(506));
}

TEST_F(ScintillaViewReading, HidesTheSameTailWhenColouredFromTheMiddle) {
  Draw();
  Select(50, 1);
  model.SetSelColor(0x0000C8);
  Draw();
  EXPECT_GT(XOf(kShown), XOf(kShown - 1));
  EXPECT_EQ(XOf(500), XOf(kShown));
}

TEST_F(ScintillaViewReading, HidesTheTailInNewColoursToo) {
  Draw();
  view.clearFocus();
  EXPECT_EQ(XOf(500), XOf(kShown));
  QPalette dark = view.palette();
  dark.setColor(QPalette::Base, Qt::black);
  view.setPalette(dark);
  EXPECT_EQ(XOf(500), XOf(kShown));
}

TEST_F(ScintillaViewReading, EndsWhereItIsTakenBack) {
  Draw();
  view.SetReading(std::nullopt);
  Draw();
  EXPECT_GT(XOf(500), XOf(kShown));
  Press(Qt::Key_A, Qt::NoModifier, "a");
  EXPECT_EQ(model.Text(), "a" + text);
  EXPECT_EQ(refusals, QStringList());
}

}  // namespace
}  // namespace tessel
