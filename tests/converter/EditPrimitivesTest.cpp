#include <gtest/gtest.h>

#include "RedText.h"
#include "base/RuntimeError.h"
#include "converter/EditPrimitives.h"
#include "support/SelectionText.h"

namespace tessel {
namespace {

using test::Marked;
using test::RedMarked;
using test::SetMarked;

class EditPrimitives : public testing::Test {
 protected:
  ControlSet set_;
  RichTextBox editor_{set_, "rtbCon"};
};

TEST_F(EditPrimitives, FindLineSelectsTheMatchOrTheRestOfItsLine) {
  editor_.SetText("x define A 1\r\ny");
  EXPECT_EQ(FindLine(editor_, "DEFINE A", false, 0), 2);
  EXPECT_EQ(Marked(editor_), "x [define A] 1\r\ny");
  EXPECT_EQ(FindLine(editor_, "define A", true, 0), 2);
  EXPECT_EQ(Marked(editor_), "x [define A 1]\r\ny");
}

TEST_F(EditPrimitives, FindLineStopsInFrontOfALoneLineFeedAndAtTheEnd) {
  editor_.SetText("a b\nc d");
  FindLine(editor_, "a", true, 0);
  EXPECT_EQ(Marked(editor_), "[a b]\nc d");
  FindLine(editor_, "c", true, 0);
  EXPECT_EQ(Marked(editor_), "a b\n[c d]");
}

TEST_F(EditPrimitives, FindLineStartsWhereItIsTold) {
  editor_.SetText("a 1\r\na 2");
  EXPECT_EQ(FindLine(editor_, "a", true, 1), 5);
  EXPECT_EQ(FindLine(editor_, "a", true, 6), kNotFound);
  EXPECT_EQ(FindLine(editor_, "a", true, 100), kNotFound);
  EXPECT_THROW(FindLine(editor_, "a", true, -1), RuntimeError);
}

TEST_F(EditPrimitives, FindLineExtendsTheSelectionAfterAMissToo) {
  SetMarked(editor_, "a [b] c\r\nd");
  EXPECT_EQ(FindLine(editor_, "x", false, 0), kNotFound);
  EXPECT_EQ(Marked(editor_), "a [b] c\r\nd");
  EXPECT_EQ(FindLine(editor_, "x", true, 0), kNotFound);
  EXPECT_EQ(Marked(editor_), "a [b c]\r\nd");
}

TEST_F(EditPrimitives, FindLineTakesWholeWords) {
  editor_.SetText("define AB xdefine A");
  EXPECT_EQ(FindLine(editor_, "define A", false, 0), kNotFound);
}

TEST_F(EditPrimitives, ReplaceLineWritesRedOverTheRestOfTheLine) {
  editor_.SetText("x define A 1\r\ny");
  const EditOutcome outcome = ReplaceLine(editor_, "define A", "new", true);
  EXPECT_TRUE(outcome.found);
  EXPECT_TRUE(outcome.changed);
  EXPECT_EQ(RedMarked(editor_), "x {new}\r\ny");
  EXPECT_EQ(Marked(editor_), "x new[]\r\ny");
}

TEST_F(EditPrimitives, ReplaceLineCanTakeTheMatchAlone) {
  editor_.SetText("x define A 1\r\ny");
  ReplaceLine(editor_, "define A", "new", false);
  EXPECT_EQ(RedMarked(editor_), "x {new} 1\r\ny");
}

TEST_F(EditPrimitives, ReplaceLineWithNothingLeavesAnEmptyLine) {
  editor_.SetText("a\r\ndefine A 1\r\nb");
  ReplaceLine(editor_, "define A", "", true);
  EXPECT_EQ(RedMarked(editor_), "a\r\n\r\nb");
}

TEST_F(EditPrimitives, ReplaceLineLeavesTheSelectionAfterAMiss) {
  SetMarked(editor_, "a [b] c");
  EXPECT_FALSE(ReplaceLine(editor_, "x", "new", true).found);
  EXPECT_EQ(Marked(editor_), "a [b] c");
  EXPECT_EQ(RedMarked(editor_), "a b c");
}

TEST_F(EditPrimitives, ReplaceLineKnowsWhenItWroteWhatWasThere) {
  editor_.SetText("Define A");
  EXPECT_FALSE(ReplaceLine(editor_, "define a", "Define A", true).changed);
  EXPECT_EQ(RedMarked(editor_), "{Define A}");
}

TEST_F(EditPrimitives, InsertAfterLineAddsLinesInFrontOfTheBreak) {
  editor_.SetText("a 1\r\nb");
  InsertAfterLine(editor_, "a", "new\r\nlines", true, 0);
  EXPECT_EQ(RedMarked(editor_), "a 1{\r\nnew\r\nlines}\r\nb");
  EXPECT_EQ(Marked(editor_), "a 1\r\nnew\r\nlines[]\r\nb");
}

TEST_F(EditPrimitives, InsertAfterLineAddsLinesBehindTheFoundOneWhateverItsBreak) {
  editor_.SetText("a 1\nb");
  InsertAfterLine(editor_, "a", "new", true, 0);
  EXPECT_EQ(RedMarked(editor_), "a 1{\r\nnew}\nb");
  editor_.SetText("b\r\na 1");
  InsertAfterLine(editor_, "a", "new", true, 0);
  EXPECT_EQ(RedMarked(editor_), "b\r\na 1{\r\nnew}");
}

TEST_F(EditPrimitives, InsertAfterLineStartsWhereItIsTold) {
  editor_.SetText("a 1\r\na 2\r\n");
  InsertAfterLine(editor_, "a", "new", true, 1);
  EXPECT_EQ(RedMarked(editor_), "a 1\r\na 2{\r\nnew}\r\n");
}

TEST_F(EditPrimitives, InsertAfterLineCanFollowTheMatchAlone) {
  editor_.SetText("a bc d");
  InsertAfterLine(editor_, "bc", "new", false, 0);
  EXPECT_EQ(RedMarked(editor_), "a bc {new}d");
  editor_.SetText("bc");
  InsertAfterLine(editor_, "bc", "new", false, 0);
  EXPECT_EQ(RedMarked(editor_), "bc{new}");
}

TEST_F(EditPrimitives, InsertAfterLineDoesNothingAfterAMiss) {
  SetMarked(editor_, "a [b] c");
  EXPECT_FALSE(InsertAfterLine(editor_, "x", "new", true, 0).found);
  EXPECT_EQ(Marked(editor_), "a [b] c");
}

TEST_F(EditPrimitives, SubstitutionsReplaceEveryOccurrenceInAnyCase) {
  SetMarked(editor_, "a [Aba] a");
  EXPECT_TRUE(SubstituteInSelection(editor_, "a", "xa"));
  EXPECT_EQ(RedMarked(editor_), "a {xabxa} a");
}

TEST_F(EditPrimitives, SubstitutionsWithoutAnOccurrenceOnlyPaint) {
  SetMarked(editor_, "a [bc] a");
  EXPECT_FALSE(SubstituteInSelection(editor_, "a", "x"));
  EXPECT_EQ(RedMarked(editor_), "a {bc} a");
}

TEST_F(EditPrimitives, SubstitutionsDoNotReadWhatTheyWrote) {
  SetMarked(editor_, "[4 44]");
  SubstituteInSelection(editor_, "4", "44");
  EXPECT_EQ(editor_.Text(), "44 4444");
}

}  // namespace
}  // namespace tessel
