#include <string>

#include "RichTextBoxFixture.h"

namespace tessel::test {
namespace {

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
