// The text functions alone: text in, text out.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "text/Text.h"
#include "tools/modMenuOptions.h"

namespace tessel {
namespace {

TEST(RemarkBlock, PutsTheMarksAroundAndABareLineFeedBehind) {
  EXPECT_EQ(RemarkBlock("a"), "/* a */\n");
  EXPECT_EQ(RemarkBlock("a\r\nb"), "/* a\r\nb */\n");
}

TEST(RemarkBlock, LeavesNothingBetweenTheBlanksOfAnEmptyText) {
  EXPECT_EQ(RemarkBlock(""), "/*  */\n");
}

TEST(RemarkLine, CommentsTheFirstLineOfSeveralAlone) {
  EXPECT_EQ(RemarkLine("a\r\nb"), "// a\r\nb");
  EXPECT_EQ(RemarkLine(""), "// ");
}

TEST(IndentText, PutsATabInFrontAndBehindEveryBreak) {
  EXPECT_EQ(IndentText("a\r\nb"), "\ta\r\n\tb");
  EXPECT_EQ(IndentText("a\r\n"), "\ta\r\n\t");
  EXPECT_EQ(IndentText("\r\n\r\n"), "\t\r\n\t\r\n\t");
  EXPECT_EQ(IndentText(""), "\t");
}

TEST(IndentText, TakesOnlyThePairOfBothForABreak) {
  EXPECT_EQ(IndentText("a\nb\rc\n\rd"), "\ta\nb\rc\n\rd");
  EXPECT_EQ(IndentText("\n"), "\t\n");
  EXPECT_EQ(IndentText("\r\r\n\n"), "\t\r\r\n\t\n");
}

TEST(IndentText, LeavesTheTabsThatAreThere) { EXPECT_EQ(IndentText("\ta"), "\t\ta"); }

TEST(Case, FollowsTheLettersOfWindows1252) {
  EXPECT_EQ(ToUpperText("aZ_9 \xE4\xF7\x9A\xFF\xDF"), "AZ_9 \xC4\xF7\x8A\x9F\xDF");
  EXPECT_EQ(ToLowerText("aZ_9 \xC4\xD7\x8A\x9F\xDF"), "az_9 \xE4\xD7\x9A\xFF\xDF");
}

TEST(UnremarkText, TakesOneBlankOnEitherSideAndOneBreakWithABlock) {
  EXPECT_EQ(UnremarkText("/* a */\n"), "a");
  EXPECT_EQ(UnremarkText("/* a */"), "a");
  EXPECT_EQ(UnremarkText("/* a */\r\n"), "a");
  EXPECT_EQ(UnremarkText("/*  a  */\n"), " a ");
  EXPECT_EQ(UnremarkText("/*a*/"), "a");
  EXPECT_EQ(UnremarkText("/**/"), "");
  EXPECT_EQ(UnremarkText("/* */"), "");
  EXPECT_EQ(UnremarkText("/* a\r\nb */"), "a\r\nb");
}

TEST(UnremarkText, LeavesWhatIsNotSurroundedByBothMarks) {
  EXPECT_EQ(UnremarkText("/* a"), "/* a");
  EXPECT_EQ(UnremarkText("a */\n"), "a */\n");
  EXPECT_EQ(UnremarkText("/*/"), "/*/");
  EXPECT_EQ(UnremarkText("/* a */ b"), "/* a */ b");
  EXPECT_EQ(UnremarkText("/* a */\n\n"), "/* a */\n\n");
  EXPECT_EQ(UnremarkText("a // b"), "a // b");
  EXPECT_EQ(UnremarkText("/ a"), "/ a");
  EXPECT_EQ(UnremarkText(" // a"), " // a");
  EXPECT_EQ(UnremarkText(""), "");
}

TEST(UnremarkText, TakesTheLineMarkOfTheFirstLineAlone) {
  EXPECT_EQ(UnremarkText("// a"), "a");
  EXPECT_EQ(UnremarkText("//a"), "a");
  EXPECT_EQ(UnremarkText("//  a"), " a");
  EXPECT_EQ(UnremarkText("// a\r\n// b\r\n"), "a\r\n// b\r\n");
  EXPECT_EQ(UnremarkText("// // a"), "// a");
  EXPECT_EQ(UnremarkText("//"), "");
}

std::string AnyText() {
  return *rc::gen::container<std::string>(rc::gen::oneOf(
      rc::gen::element('/', '*', ' ', '\r', '\n', '\t', 'a', 'Z'), rc::gen::arbitrary<char>()));
}

RC_GTEST_PROP(UnremarkText, UndoesEveryBlockRemark, ()) {
  const std::string text = AnyText();
  RC_ASSERT(UnremarkText(RemarkBlock(text)) == text);
}

RC_GTEST_PROP(UnremarkText, UndoesEveryLineRemark, ()) {
  const std::string text = AnyText();
  RC_ASSERT(UnremarkText(RemarkLine(text)) == text);
}

RC_GTEST_PROP(IndentText, IsThePlainReplacementOfEveryPair, ()) {
  const std::string text = AnyText();
  std::string expected = text;
  for (std::size_t at = 0; (at = expected.find("\r\n", at)) != expected.npos; at += 3) {
    expected.replace(at, 2, "\r\n\t");
  }
  RC_ASSERT(IndentText(text) == "\t" + expected);
}

RC_GTEST_PROP(Case, KeepsTheLengthAndIsDoneAtOnce, ()) {
  const std::string text = AnyText();
  RC_ASSERT(ToUpperText(text).size() == text.size());
  RC_ASSERT(ToUpperText(ToUpperText(text)) == ToUpperText(text));
  RC_ASSERT(ToLowerText(ToUpperText(text)) == ToLowerText(text));
}

}  // namespace
}  // namespace tessel
