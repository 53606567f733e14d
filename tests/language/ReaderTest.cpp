// The tokens of a text, shown as one letter and what they hold: w word, o and c braces, n line
// break, l line comment, b block comment, B one that is not closed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/Reader.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> TokenTexts(Reader reader, std::string_view text) {
  std::vector<std::string> tokens;
  for (Token token = reader.Next(); token.kind != TokenKind::kEnd; token = reader.Next()) {
    const char letter = token.terminated ? "?wocnlb"[static_cast<int>(token.kind)] : 'B';
    tokens.push_back(letter + (":" + std::string(Slice(text, token.range))));
  }
  return tokens;
}

std::vector<std::string> Tokens(std::string_view text) { return TokenTexts(Reader(text), text); }

std::vector<std::string> TokensInsideComment(std::string_view text) {
  return TokenTexts(Reader(text, 0, std::ssize(text), true), text);
}

TEST(Reader, FindsNothingInAnEmptyTextAndAmongBlanks) {
  EXPECT_THAT(Tokens(""), IsEmpty());
  EXPECT_THAT(Tokens(" \t  "), IsEmpty());
}

TEST(Reader, SeparatesWordsAtBlanksAndTabs) {
  EXPECT_THAT(Tokens("define  A\t-100 "), ElementsAre("w:define", "w:A", "w:-100"));
}

TEST(Reader, TakesEveryOtherByteIntoAWord) {
  EXPECT_THAT(Tokens(std::string_view("E1L1.map 02:10 \x80\xFF\0\v x", 21)),
              ElementsAre("w:E1L1.map", "w:02:10", std::string("w:\x80\xFF\0\v", 6), "w:x"));
}

TEST(Reader, KnowsThreeLineBreaks) {
  EXPECT_THAT(Tokens("a\r\nb\nc\rd"),
              ElementsAre("w:a", "n:\r\n", "w:b", "n:\n", "w:c", "n:\r", "w:d"));
  EXPECT_THAT(Tokens("\n\r\r\n"), ElementsAre("n:\n", "n:\r", "n:\r\n"));
}

TEST(Reader, LetsBracesStandForThemselves) {
  EXPECT_THAT(Tokens("{ state x}{"), ElementsAre("o:{", "w:state", "w:x", "c:}", "o:{"));
}

TEST(Reader, EndsALineCommentAtItsLineBreak) {
  EXPECT_THAT(Tokens("// a /* b\r\nc//\nd"),
              ElementsAre("l:// a /* b", "n:\r\n", "w:c", "l://", "n:\n", "w:d"));
  EXPECT_THAT(Tokens("a // { b"), ElementsAre("w:a", "l:// { b"));
}

TEST(Reader, EndsABlockCommentAtItsStarAndSlash) {
  EXPECT_THAT(Tokens("a/* // \r\n { */b"), ElementsAre("w:a", "b:/* // \r\n { */", "w:b"));
  EXPECT_THAT(Tokens("/**/x/***/y"), ElementsAre("b:/**/", "w:x", "b:/***/", "w:y"));
}

TEST(Reader, LetsTheStarThatOpensABlockCommentCloseIt) {
  EXPECT_THAT(Tokens("/*/ x"), ElementsAre("b:/*/", "w:x"));
}

TEST(Reader, RunsToTheEndWithABlockCommentThatNothingCloses) {
  EXPECT_THAT(Tokens("a /* b\n c"), ElementsAre("w:a", "B:/* b\n c"));
  EXPECT_THAT(Tokens("/*"), ElementsAre("B:/*"));
}

TEST(Reader, TakesASlashThatOpensNoCommentIntoItsWord) {
  EXPECT_THAT(Tokens("SHRINKER/EXPANDER! / x/ */"),
              ElementsAre("w:SHRINKER/EXPANDER!", "w:/", "w:x/", "w:*/"));
  EXPECT_THAT(Tokens("100//x"), ElementsAre("w:100", "l://x"));
  EXPECT_THAT(Tokens("a/"), ElementsAre("w:a/"));
}

TEST(Reader, CountsTheLineBreaksInABlockComment) {
  constexpr std::string_view kText = "/* \r\n \n \r */ x\n";
  Reader reader(kText);
  EXPECT_EQ(reader.Next().lineBreaks, 3);
  EXPECT_EQ(reader.Next().lineBreaks, 0);
  EXPECT_EQ(reader.Next().lineBreaks, 1);
}

TEST(Reader, BeginsInsideACommentWithTheRestOfIt) {
  EXPECT_THAT(TokensInsideComment("a // */ b"), ElementsAre("b:a // */", "w:b"));
  EXPECT_THAT(TokensInsideComment("*/"), ElementsAre("b:*/"));
  EXPECT_THAT(TokensInsideComment("a b"), ElementsAre("B:a b"));
}

TEST(Reader, ReadsNothingOutsideOfItsRange) {
  constexpr std::string_view kText = "ab cd // e";
  EXPECT_THAT(TokenTexts(Reader(kText, 1, 4), kText), ElementsAre("w:b", "w:c"));
  EXPECT_THAT(TokenTexts(Reader(kText, 3, 7), kText), ElementsAre("w:cd", "w:/"));
}

}  // namespace
}  // namespace tessel::language
