#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "support/SelectionText.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr Colour kRed = 0x0000C8;
constexpr Colour kGreen = 0x008000;
constexpr Colour kBlue = 0xC00000;

class RichTextBoxTest : public testing::Test {
 protected:
  RichTextBoxTest() : editor(controls, "rtbCon") {
    changeSubscription = editor.Change.Connect([this] { ++changes; });
  }

  void Set(std::string_view marked) {
    SetMarked(editor, marked);
    changes = 0;
  }
  std::string Now() const { return Marked(editor); }

  /// Paints a range and puts the selection back.
  void Paint(Position start, Position length, Colour colour) {
    const Position selStart = editor.SelStart();
    const Position selLength = editor.SelLength();
    editor.SetSelStart(start);
    editor.SetSelLength(length);
    editor.SetSelColor(colour);
    editor.SetSelStart(selStart);
    editor.SetSelLength(selLength);
    changes = 0;
  }
  Colour ColourAt(Position at) const { return editor.Store().ColourAt(at); }

  /// What a person types, key by key.
  void TypeKeys(std::string_view keys) {
    for (const char key : keys) {
      const RichTextBox::Gesture gesture(editor, true);
      editor.EditByHand(editor.SelStart(), editor.SelLength(), std::string(1, key));
    }
  }

  ControlSet controls;
  RichTextBox editor;
  Subscription changeSubscription;
  int changes = 0;
};

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

// --- Find

TEST_F(RichTextBoxTest, SelectsAHitAndReturnsItsPosition) {
  Set("[]define MAXHEALTH 100");
  EXPECT_EQ(editor.Find("maxhealth", 0), 7);
  EXPECT_EQ(Now(), "define [MAXHEALTH] 100");
}

TEST_F(RichTextBoxTest, LeavesTheSelectionWhenNothingIsFound) {
  Set("define [A] 1");
  EXPECT_EQ(editor.Find("gone", 0), kNotFound);
  EXPECT_EQ(editor.Find("", 0), kNotFound);
  EXPECT_EQ(editor.Find("define", 1), kNotFound);
  EXPECT_EQ(editor.Find("define", 99), kNotFound);
  EXPECT_EQ(editor.Find("define", 0, 5), kNotFound);
  EXPECT_EQ(Now(), "define [A] 1");
  EXPECT_EQ(changes, 0);
}

TEST_F(RichTextBoxTest, SearchesUpToTheGivenEnd) {
  Set("[]a define a define");
  EXPECT_EQ(editor.Find("define", 0, 8), 2);
  EXPECT_EQ(editor.Find("define", 3, 99), 11);
}

TEST_F(RichTextBoxTest, RejectsASearchFromBeforeTheText) {
  Set("a[b]c");
  EXPECT_THROW(editor.Find("a", -1), RuntimeError);
  EXPECT_EQ(Now(), "a[b]c");
}

// --- Span

TEST_F(RichTextBoxTest, MovesTheEndForwardOverTheSet) {
  Set("define[] \t A 1");
  editor.Span(" \t", true, false);
  EXPECT_EQ(Now(), "define[ \t ]A 1");
}

TEST_F(RichTextBoxTest, MovesTheEndForwardUpToTheSetWhenNegated) {
  Set("de[fi]ne A 1");
  editor.Span(" ", true, true);
  EXPECT_EQ(Now(), "de[fine] A 1");
}

TEST_F(RichTextBoxTest, MovesTheStartBackward) {
  Set("define A[ ]1");
  editor.Span(" ", false, true);
  EXPECT_EQ(Now(), "define [A ]1");
  editor.Span("defin ", false, false);
  EXPECT_EQ(Now(), "[define A ]1");
}

TEST_F(RichTextBoxTest, GoesToTheEndsOfTheTextWhenNothingStopsIt) {
  Set("ab[]cd");
  editor.Span("", true, true);
  EXPECT_EQ(Now(), "ab[cd]");
  editor.Span("", false, true);
  EXPECT_EQ(Now(), "[abcd]");
}

TEST_F(RichTextBoxTest, StandsStillWhereTheNextCharacterIsNotInTheSet) {
  Set("ab[]cd");
  editor.Span("xyz", true, false);
  EXPECT_EQ(Now(), "ab[]cd");
  editor.Span("xyz", false, false);
  EXPECT_EQ(Now(), "ab[]cd");
}

TEST_F(RichTextBoxTest, StopsBeforeABreakInsteadOfInsideIt) {
  Set("a [value]\r\nnext");
  editor.Span("\n", true, true);
  EXPECT_EQ(Now(), "a [value]\r\nnext");
  Set("first\r\n[next]");
  editor.Span("\n", false, false);
  EXPECT_EQ(Now(), "first[\r\nnext]");
}

TEST_F(RichTextBoxTest, LeavesABreakInWhichAnInsertedTextLeftTheCaret) {
  Set("ab[]\n");
  editor.SetSelText("\r");
  EXPECT_EQ(Now(), "ab\r[]\n");
  editor.Span("x", true, false);
  EXPECT_EQ(Now(), "ab[]\r\n");
}

TEST_F(RichTextBoxTest, StopsAtALineFeedOrAtTheEndWhereThatIsTheBreak) {
  Set("a [value] // x\nnext");
  editor.Span("\n", true, true);
  EXPECT_EQ(Now(), "a [value // x]\nnext");
  Set("a [value] // x");
  editor.Span("\r\n", true, true);
  EXPECT_EQ(Now(), "a [value // x]");
}

TEST_F(RichTextBoxTest, SpansOverNulAndHighBytes) {
  editor.SetText(std::string("a\0\xFF\0b", 5));
  editor.SetSelStart(1);
  editor.Span(std::string_view("\0\xFF", 2), true, false);
  EXPECT_EQ(editor.SelText(), std::string("\0\xFF\0", 3));
}

// --- Colours

TEST_F(RichTextBoxTest, ColoursTheSelectionAndRaisesChange) {
  Set("[define] A 1");
  editor.SetSelColor(kRed);
  EXPECT_EQ(Now(), "[define] A 1");
  EXPECT_EQ(editor.SelColor(), kRed);
  EXPECT_THAT(editor.Store().Runs(0, editor.Length()),
              ElementsAre(ColourRun{0, 6, kRed}, ColourRun{6, 4, kBlack}));
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextBoxTest, HasNoColourWhenTheSelectionIsMixed) {
  Set("[define A] 1");
  Paint(0, 6, kRed);
  EXPECT_EQ(editor.SelColor(), std::nullopt);
}

TEST_F(RichTextBoxTest, TellsTheColourThatInsertedTextWouldGet) {
  Set("define[] A 1");
  Paint(0, 6, kRed);
  EXPECT_EQ(editor.SelColor(), kRed);
  editor.SetSelStart(7);
  EXPECT_EQ(editor.SelColor(), kBlack);
  editor.SetSelStart(0);
  EXPECT_EQ(editor.SelColor(), kBlack);
}

TEST_F(RichTextBoxTest, HoldsAColourForTheNextTextAtTheCaret) {
  Set("ab[]");
  editor.SetSelColor(kBlue);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(editor.SelColor(), kBlue);
  editor.SetSelText("cd");
  EXPECT_THAT(editor.Store().Runs(0, 4),
              ElementsAre(ColourRun{0, 2, kBlack}, ColourRun{2, 2, kBlue}));
}

TEST_F(RichTextBoxTest, ForgetsTheHeldColourWhenTheCaretMoves) {
  Set("ab[]");
  editor.SetSelColor(kBlue);
  editor.SetSelStart(1);
  editor.SetSelText("x");
  EXPECT_EQ(ColourAt(1), kBlack);
}

TEST_F(RichTextBoxTest, HoldsTheColourUntilTextIsInserted) {
  Set("ab[]");
  editor.SetSelColor(kBlue);
  editor.SetSelText("");
  editor.Find("gone", 0);
  editor.SetSelText("x");
  EXPECT_EQ(ColourAt(2), kBlue);
}

TEST_F(RichTextBoxTest, GivesInsertedTextTheColourOfTheReplacedTextsFirstCharacter) {
  Set("define [MAX]");
  Paint(0, 7, kRed);
  Paint(7, 1, kGreen);
  Paint(8, 2, kBlue);
  editor.SetSelText("text");
  EXPECT_THAT(editor.Store().Runs(0, editor.Length()),
              ElementsAre(ColourRun{0, 7, kRed}, ColourRun{7, 4, kGreen}));
}

TEST_F(RichTextBoxTest, GivesInsertedTextTheColourOfTheCharacterBeforeIt) {
  Set("ab[]cd");
  Paint(0, 2, kRed);
  Paint(2, 2, kBlue);
  editor.SetSelText("x");
  EXPECT_EQ(ColourAt(2), kRed);
  editor.SetSelStart(0);
  editor.SetSelText("y");
  EXPECT_EQ(ColourAt(0), kBlack);
}

TEST_F(RichTextBoxTest, GivesTextTypedElsewhereTheColourOfItsPlace) {
  Set("ab[]cd");
  Paint(0, 2, kRed);
  editor.EditByHand(4, 0, "x");
  EXPECT_EQ(ColourAt(4), kBlack);
  EXPECT_EQ(Now(), "abcdx[]");
}

TEST_F(RichTextBoxTest, RefusesMoreThan256ColoursAndKeepsTheTextWhole) {
  Set("[a]");
  for (Colour colour = 1; colour < 256; ++colour) editor.SetSelColor(colour);
  EXPECT_THROW(editor.SetSelColor(256), RuntimeError);
  EXPECT_EQ(editor.SelColor(), 255U);
  editor.SetSelStart(1);
  editor.SetSelColor(256);
  EXPECT_THROW(editor.SetSelText("b"), RuntimeError);
  EXPECT_EQ(editor.Text(), "a");
  EXPECT_FALSE(editor.CanUndo());
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

// --- Undo

TEST_F(RichTextBoxTest, TakesTheLastEditBackAndStandsBehindTheRestoredText) {
  Set("define A [100] // x");
  editor.SetSelText("2500");
  changes = 0;
  editor.Undo();
  EXPECT_EQ(Now(), "define A 100[] // x");
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_TRUE(editor.CanRedo());
}

TEST_F(RichTextBoxTest, TakesEveryEditBackOneByOne) {
  Set("[]");
  editor.SetSelText("a");
  editor.SetSelText("b");
  editor.Type("cd");
  editor.Type("e");
  editor.Undo();
  EXPECT_EQ(Now(), "abcd[]");
  editor.Undo();
  EXPECT_EQ(Now(), "ab[]");
  editor.Undo();
  editor.Undo();
  EXPECT_EQ(Now(), "[]");
  changes = 0;
  editor.Undo();
  EXPECT_EQ(changes, 0);
}

TEST_F(RichTextBoxTest, PerformsAnUndoneEditAgain) {
  Set("a [b] c");
  editor.SetSelText("xyz");
  editor.Undo();
  changes = 0;
  editor.Redo();
  EXPECT_EQ(Now(), "a xyz[] c");
  EXPECT_EQ(changes, 1);
  editor.Redo();
  EXPECT_EQ(changes, 1);
}

TEST_F(RichTextBoxTest, ForgetsWhatWasUndoneWithTheNextEdit) {
  Set("a[]");
  editor.SetSelText("b");
  editor.Undo();
  editor.SetSelText("c");
  EXPECT_FALSE(editor.CanRedo());
}

TEST_F(RichTextBoxTest, CountsReplacingNothingByNothingAsNoStep) {
  Set("a[]");
  editor.SetSelText("");
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(RichTextBoxTest, DoesNotUndoColours) {
  Set("[abc]");
  editor.SetSelColor(kRed);
  EXPECT_FALSE(editor.CanUndo());
  editor.SetSelStart(3);
  editor.SetSelText("d");
  editor.SetSelStart(0);
  editor.SetSelLength(3);
  editor.SetSelColor(kGreen);
  editor.Undo();
  EXPECT_EQ(editor.Text(), "abc");
  EXPECT_EQ(ColourAt(0), kGreen);
}

TEST_F(RichTextBoxTest, RestoresTextInTheColourThatInsertedTextTakes) {
  Set("ab[cd]");
  Paint(0, 2, kRed);
  Paint(2, 2, kBlue);
  editor.SetSelText("");
  editor.Undo();
  EXPECT_EQ(ColourAt(2), kRed);
}

TEST_F(RichTextBoxTest, EmptiesTheUndoBuffer) {
  Set("a[]");
  editor.SetSelText("b");
  editor.SetSelText("c");
  editor.Undo();
  editor.EmptyUndoBuffer();
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_FALSE(editor.CanRedo());
  EXPECT_EQ(editor.Text(), "ab");
}

TEST_F(RichTextBoxTest, UndoesARunOfTypingAsOneEdit) {
  Set("define []A");
  TypeKeys("MAX_");
  EXPECT_EQ(Now(), "define MAX_[]A");
  EXPECT_EQ(changes, 4);
  editor.Undo();
  EXPECT_EQ(Now(), "define []A");
  EXPECT_FALSE(editor.CanUndo());
  editor.Redo();
  EXPECT_EQ(Now(), "define MAX_[]A");
}

TEST_F(RichTextBoxTest, RestoresWhatARunOfTypingReplaced) {
  Set("define [OLD] 1");
  TypeKeys("NEW");
  editor.Undo();
  EXPECT_EQ(Now(), "define OLD[] 1");
}

TEST_F(RichTextBoxTest, KeepsARunOfTypingThatErasesInOneStep) {
  Set("ab[]");
  TypeKeys("xy");
  {
    const RichTextBox::Gesture backspace(editor, true);
    editor.EditByHand(3, 1, "");
  }
  TypeKeys("z");
  EXPECT_EQ(Now(), "abxz[]");
  editor.Undo();
  EXPECT_EQ(Now(), "ab[]");
}

struct Interruption {
  const char* name;
  void (*act)(RichTextBox&);
};

class RunOfTyping : public RichTextBoxTest, public testing::WithParamInterface<Interruption> {};

TEST_P(RunOfTyping, Ends) {
  Set("text []");
  TypeKeys("ab");
  GetParam().act(editor);
  TypeKeys("cd");
  const std::string before = editor.Text();
  editor.Undo();
  EXPECT_EQ(editor.Text().size(), before.size() - 2);
  EXPECT_TRUE(editor.CanUndo());
}

INSTANTIATE_TEST_SUITE_P(
    At, RunOfTyping,
    testing::Values(Interruption{"AnAssignedStart",
                                 [](RichTextBox& e) { e.SetSelStart(e.SelStart()); }},
                    Interruption{"AnAssignedLength", [](RichTextBox& e) { e.SetSelLength(0); }},
                    Interruption{"ASelectionByHand", [](RichTextBox& e) { e.SelectByHand(0, 0); }},
                    Interruption{"AMiss", [](RichTextBox& e) { e.Find("gone", 0); }},
                    Interruption{"AHit",
                                 [](RichTextBox& e) {
                                   e.Find("text", 0);
                                   e.SetSelLength(0);
                                 }},
                    Interruption{"ASpan", [](RichTextBox& e) { e.Span("", true, false); }},
                    Interruption{"AnotherEdit", [](RichTextBox& e) { e.SetSelText("-"); }},
                    Interruption{"AnEmptyEdit", [](RichTextBox& e) { e.SetSelText(""); }},
                    Interruption{"AColour", [](RichTextBox& e) { e.SetSelColor(kRed); }},
                    Interruption{"AGestureThatIsNoTyping",
                                 [](RichTextBox& e) {
                                   const RichTextBox::Gesture paste(e, false);
                                   e.EditByHand(e.SelStart(), 0, "pasted");
                                 }}),
    [](const auto& param) { return std::string(param.param.name); });

TEST_F(RichTextBoxTest, UndoesTheEditsOfOneGestureTogether) {
  Set("[word] rest");
  {
    const RichTextBox::Gesture drag(editor, false);
    editor.EditByHand(0, 4, "");
    editor.EditByHand(5, 0, "word");
  }
  EXPECT_EQ(Now(), " restword[]");
  editor.Undo();
  EXPECT_EQ(editor.Text(), "word rest");
  EXPECT_FALSE(editor.CanUndo());
}

// --- Going back to a snapshot

TEST_F(RichTextBoxTest, GoesBackToASnapshotWholeAndQuietly) {
  Set("ab[c]d");
  Paint(0, 2, kRed);
  editor.SetSelText("C");
  editor.SetSelStart(2);
  editor.SetSelLength(1);
  const auto snapshot = editor.TakeSnapshot();
  editor.SetText("something else");
  changes = 0;
  editor.Restore(snapshot);
  EXPECT_EQ(Now(), "ab[C]d");
  EXPECT_EQ(ColourAt(0), kRed);
  EXPECT_EQ(changes, 0);
  editor.Undo();
  EXPECT_EQ(editor.Text(), "abcd");
}

}  // namespace
}  // namespace tessel::test
