// Comments and lines of a text, and what an edit changes in its reading.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/DataFiles.h"
#include "language/Definitions.h"
#include "language/Levels.h"
#include "language/Script.h"
#include "support/ReadingChecks.h"

namespace tessel::language {
namespace {

using test::ReadingDifference;

std::string CommentTextAt(const Script& script, Position offset) {
  const auto comment = script.CommentAt(offset);
  return comment ? std::string(script.Text(comment->range)) : "none";
}

TEST(Script, OfAnEmptyTextHasOneEmptyLineAndNothingElse) {
  const Script script;
  EXPECT_EQ(ReadingDifference(script), "");
  EXPECT_EQ(script.LineCount(), 1);
  EXPECT_EQ(script.PlaceOf(0), (LineColumn{1, 1}));
  EXPECT_EQ(script.Line(1), (Range{0, 0}));
  EXPECT_FALSE(script.IsInComment(0));
}

TEST(Script, CountsLinesAndColumnsFromOne) {
  const Script script("ab\r\nc\rd\n\ne");
  EXPECT_EQ(script.LineCount(), 5);
  EXPECT_EQ(script.PlaceOf(0), (LineColumn{1, 1}));
  EXPECT_EQ(script.PlaceOf(2), (LineColumn{1, 3}));
  EXPECT_EQ(script.PlaceOf(3), (LineColumn{1, 4})) << "between CR and LF";
  EXPECT_EQ(script.PlaceOf(4), (LineColumn{2, 1}));
  EXPECT_EQ(script.PlaceOf(6), (LineColumn{3, 1}));
  EXPECT_EQ(script.PlaceOf(8), (LineColumn{4, 1}));
  EXPECT_EQ(script.PlaceOf(10), (LineColumn{5, 2})) << "the end of the text";
}

TEST(Script, GivesALineWithoutItsBreak) {
  const Script script("ab\r\nc\rd\n\ne");
  EXPECT_EQ(script.Text(script.Line(1)), "ab");
  EXPECT_EQ(script.Text(script.Line(3)), "d");
  EXPECT_EQ(script.Text(script.Line(4)), "");
  EXPECT_EQ(script.Text(script.Line(5)), "e");
  EXPECT_EQ(script.Line(0), (Range{10, 10})) << "there is no such line";
  EXPECT_EQ(script.Line(6), (Range{10, 10}));
}

TEST(Script, KnowsTheCommentOfAByte) {
  const Script script("a // b\nc /* d\n */ e");
  EXPECT_EQ(CommentTextAt(script, 1), "none");
  EXPECT_EQ(CommentTextAt(script, 2), "// b");
  EXPECT_EQ(CommentTextAt(script, 5), "// b");
  EXPECT_EQ(CommentTextAt(script, 6), "none");
  EXPECT_EQ(CommentTextAt(script, 9), "/* d\n */");
  EXPECT_EQ(CommentTextAt(script, 16), "/* d\n */");
  EXPECT_EQ(CommentTextAt(script, 17), "none");
}

TEST(Script, KnowsABlockCommentThatNothingCloses) {
  const Script open("a /* b\nc\n");
  ASSERT_TRUE(open.UnterminatedComment().has_value());
  EXPECT_EQ(open.UnterminatedComment()->range, (Range{2, 9}));
  EXPECT_FALSE(open.CommentAt(7)->terminated);
  EXPECT_FALSE(Script("a /* b */ // c").UnterminatedComment().has_value());
}

/// A text, its reading, and edits by what stands there before and after.
class EditedScript : public testing::Test {
 protected:
  void Read(std::string text, Position chunkLength = 1) {
    text_ = std::move(text);
    script_ = Script(text_, chunkLength);
  }
  void Replace(const std::string& before, const std::string& after) {
    const auto at = text_.find(before);
    ASSERT_NE(at, text_.npos);
    text_.replace(at, before.size(), after);
    script_.Update(text_, static_cast<Position>(at), std::ssize(before), std::ssize(after));
    EXPECT_EQ(ReadingDifference(script_), "");
  }

  std::string text_;
  Script script_;
};

TEST_F(EditedScript, HidesWhatAnOpenedCommentSwallowsUntilItIsClosed) {
  Read("x\nstate a\nends\nstate b\n*/\nends\n");
  Replace("x", "/*");
  EXPECT_EQ(script_.LastMarkUpTo(30), (Mark{Keyword::kEnds, 27}));
  EXPECT_EQ(script_.LastMarkUpTo(26), std::nullopt);
  Replace("/*", "x");
  EXPECT_EQ(script_.LastMarkUpTo(25), (Mark{Keyword::kState, 15}));
}

TEST_F(EditedScript, ReadsALineAnewThatNoLongerBeginsInAComment) {
  Read("/*\nx\nstate */ state a\nends /*\nends\n");
  Replace("/*", "");
  EXPECT_EQ(script_.LastMarkUpTo(6), (Mark{Keyword::kState, 3}));
  Replace("\nx", "/*\nx");
  EXPECT_EQ(script_.LastMarkUpTo(11), std::nullopt);
}

TEST_F(EditedScript, JoinsACrWithALfThatComesBehindIt) {
  Read("a\rb\n");
  Replace("b", "\nb");
  EXPECT_EQ(script_.LineCount(), 3);
  Replace("\r\n", "\r \n");
  EXPECT_EQ(script_.LineCount(), 4);
  Replace(" ", "");
  EXPECT_EQ(script_.LineCount(), 3);
}

TEST_F(EditedScript, JoinsLinesWhoseBreakIsTakenOut) {
  Read("define A\n5\n");
  Replace("\n5", " 5");
  EXPECT_TRUE(Definitions(script_).at(0).IsComplete());
  Replace(" 5", "\n5");
  EXPECT_FALSE(Definitions(script_).at(0).IsComplete());
}

TEST_F(EditedScript, MayBecomeEmptyAndGrowAgain) {
  Read("define A 1\n");
  Replace("define A 1\n", "");
  EXPECT_EQ(script_.LineCount(), 1);
  Replace("", "define B 2");
  EXPECT_EQ(Definitions(script_).size(), 1U);
}

TEST_F(EditedScript, StaysRightWhenItsTextMoves) {
  Read("define A 1\n");
  const std::string elsewhere = text_;
  script_.Moved(elsewhere);
  text_.assign(text_.size(), '?');
  EXPECT_EQ(ReadingDifference(script_), "");
}

class ReadTemplate : public testing::TestWithParam<const char*> {
 protected:
  const std::string text_ = test::ReadDataFile(GetParam());
};

TEST_P(ReadTemplate, IsReadAsTheNaiveReadingHasIt) {
  EXPECT_EQ(ReadingDifference(Script(text_)), "");
  EXPECT_EQ(ReadingDifference(Script(text_, 100)), "");
}

TEST_P(ReadTemplate, HasNothingUnterminatedAndNothingMalformed) {
  const Script script(text_);
  EXPECT_FALSE(script.UnterminatedComment().has_value());
  for (const Definition& definition : Definitions(script)) {
    const std::string_view name = script.Text(definition.name);
    EXPECT_TRUE(definition.IsComplete()) << name;
    EXPECT_FALSE(definition.hasTab) << name;
    const std::string_view value = script.Text(definition.value);
    EXPECT_TRUE(definition.number || value == "YES" || value == "NO") << name;
  }
  for (const Level& level : Levels(script)) {
    EXPECT_TRUE(level.IsComplete() && level.singleBlanks) << script.Text(level.title);
  }
}

INSTANTIATE_TEST_SUITE_P(All, ReadTemplate, testing::ValuesIn(test::kTemplates),
                         [](const auto& param) {
                           return std::string(param.param, std::string(param.param).find('.'));
                         });

}  // namespace
}  // namespace tessel::language
