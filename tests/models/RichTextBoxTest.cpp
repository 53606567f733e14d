#include <string>

#include "RichTextBoxFixture.h"
#include "base/RuntimeError.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// --- Text

TEST_F(RichTextBoxTest, StartsEmptyAndBlack) {
  EXPECT_EQ(Now(), "[]");
  EXPECT_EQ(editor.SelColor(), kBlack);
  EXPECT_TRUE(editor.HideSelection());
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(RichTextBoxTest, KeepsAllBytesAndLineEndsAsTheyAre) {
  std::string bytes = "a\r\nb\nc\rd\n\r";
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  editor.SetText(bytes);
  EXPECT_EQ(editor.Text(), bytes);
  editor.SetSelStart(0);
  editor.SetSelLength(editor.Length());
  EXPECT_EQ(editor.SelText(), bytes);
}

TEST_F(RichTextBoxTest, PutsTheCaretAtTheStartAndBlackensWhenTextIsAssigned) {
  Set("define [A] 1");
  Paint(0, 6, kRed);
  editor.SetText("define B");
  EXPECT_EQ(Now(), "[]define B");
  EXPECT_THAT(editor.Store().Runs(0, editor.Length()), ElementsAre(ColourRun{0, 8, kBlack}));
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextBoxTest, EmptiesTheUndoBufferWhenTextIsAssigned) {
  Set("a[]");
  editor.SetSelText("b");
  editor.SetText("c");
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(RichTextBoxTest, TakesNameAndBytesOfALoadedFile) {
  Set("old[]");
  editor.SetSelText("er");
  changes = 0;
  editor.LoadFile("/games/User.con", "new");
  EXPECT_EQ(editor.FileName(), "/games/User.con");
  EXPECT_EQ(Now(), "[]new");
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_EQ(changes, 1);
}

// --- Selection

TEST_F(RichTextBoxTest, CollapsesTheSelectionWhenItsStartIsAssigned) {
  Set("define [A] 1");
  editor.SetSelStart(2);
  EXPECT_EQ(Now(), "de[]fine A 1");
}

TEST_F(RichTextBoxTest, ClampsStartAndLengthToTheText) {
  Set("[]abc");
  editor.SetSelStart(99);
  EXPECT_EQ(Now(), "abc[]");
  editor.SetSelStart(1);
  editor.SetSelLength(99);
  EXPECT_EQ(Now(), "a[bc]");
}

TEST_F(RichTextBoxTest, RejectsANegativeStartOrLengthAndKeepsTheSelection) {
  Set("a[b]c");
  EXPECT_THROW(editor.SetSelStart(-1), RuntimeError);
  EXPECT_THROW(editor.SetSelLength(-1), RuntimeError);
  EXPECT_EQ(Now(), "a[b]c");
  try {
    editor.SetSelLength(-7);
  } catch (const RuntimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr("-7"));
  }
}

TEST_F(RichTextBoxTest, StandsBeforeTheBreakWhenTheStartIsAssignedInsideIt) {
  Set("[]ab\r\ncd");
  editor.SetSelStart(3);
  EXPECT_EQ(Now(), "ab[]\r\ncd");
  editor.SetSelStart(4);
  EXPECT_EQ(Now(), "ab\r\n[]cd");
}

TEST_F(RichTextBoxTest, EntersWhatIsNoCrLf) {
  for (const char* text : {"a\r\rb", "a\n\nb", "a\n\rb"}) {
    editor.SetText(text);
    editor.SetSelStart(2);
    EXPECT_EQ(editor.SelStart(), 2) << text;
  }
}

TEST_F(RichTextBoxTest, EndsASelectionInsideABreakWhenTheLengthSaysSo) {
  Set("[]ab\r\ncd");
  editor.SetSelLength(3);
  EXPECT_EQ(editor.SelText(), "ab\r");
}

TEST_F(RichTextBoxTest, ReplacesTheSelectionAndStandsBehindTheNewText) {
  Set("define A [100] // x");
  editor.SetSelText("2500");
  EXPECT_EQ(Now(), "define A 2500[] // x");
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextBoxTest, DeletesTheSelectionWhenNothingReplacesIt) {
  Set("define A [100 ]// x");
  editor.SetSelText("");
  EXPECT_EQ(Now(), "define A []// x");
}

TEST_F(RichTextBoxTest, SelectsByHandWithinTheText) {
  Set("[]abc");
  editor.SelectByHand(1, 99);
  EXPECT_EQ(Now(), "a[bc]");
  editor.SelectByHand(-5, 2);
  EXPECT_EQ(Now(), "[ab]c");
}

TEST_F(RichTextBoxTest, TellsAViewThatCodeMovedTheSelection) {
  Set("abc[]");
  int moves = 0;
  const Subscription moved = editor.SelectionMoved.Connect([&] { ++moves; });
  editor.SetSelStart(1);
  editor.SetSelLength(1);
  editor.Find("a", 0);
  editor.SetSelText("x");
  EXPECT_EQ(moves, 4);
  editor.Find("gone", 0);
  EXPECT_EQ(moves, 4);
}

// --- Change

TEST_F(RichTextBoxTest, RaisesChangeForEveryAssignmentOfTextAlsoAnEqualOne) {
  Set("[]abc");
  editor.SetText("abc");
  EXPECT_EQ(changes, 1);
  editor.SetSelText("");
  EXPECT_EQ(changes, 2);
}

TEST_F(RichTextBoxTest, RaisesNoChangeForSelectingOrReading) {
  Set("[]abc");
  editor.SetSelStart(1);
  editor.SetSelLength(1);
  editor.Find("a", 0);
  editor.Span("abc", true, false);
  static_cast<void>(editor.SelText());
  editor.SetHideSelection(false);
  EXPECT_EQ(changes, 0);
}

TEST_F(RichTextBoxTest, ReportsTheMouseButton) {
  MouseButton seen = MouseButton::kLeft;
  const Subscription up = editor.MouseUp.Connect([&](MouseButton button) { seen = button; });
  editor.ReleaseMouse(MouseButton::kRight);
  EXPECT_EQ(seen, MouseButton::kRight);
}

}  // namespace
}  // namespace tessel::test
