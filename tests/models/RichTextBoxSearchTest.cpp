#include <string>
#include <string_view>

#include "RichTextBoxFixture.h"
#include "base/RuntimeError.h"

namespace tessel::test {
namespace {

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

}  // namespace
}  // namespace tessel::test
