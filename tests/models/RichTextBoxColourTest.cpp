#include "RichTextBoxFixture.h"
#include "base/RuntimeError.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

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

}  // namespace
}  // namespace tessel::test
