// Where statements begin, which words belong to them, and where they end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language/Statement.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Each statement as its keyword and its words, its name in parentheses.
std::vector<std::string> Statements(std::string_view text) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const Mark mark : script.Marks()) {
    const Statement statement = ReadStatement(script, mark);
    std::string line(GrammarOf(mark.keyword).word);
    for (const Range word : statement.words) {
      line += ' ';
      const std::string bytes(script.Text(word));
      line += word == statement.name ? "(" + bytes + ")" : bytes;
    }
    shown.push_back(line);
  }
  return shown;
}

TEST(Statement, TakesItsLineWhereADefinitionBeginsIt) {
  EXPECT_THAT(Statements("definequote 5 THE STATE OF {THINGS}\n"
                         "definevolumename 0 MOVE ON\ndefineskillname 1 AI\n"
                         "definesound NAME a.voc 0 0 3 0 -5 // x\ninclude DEFS.CON\n"),
              ElementsAre("definequote (5) THE STATE OF { THINGS }", "definevolumename (0) MOVE ON",
                          "defineskillname (1) AI", "definesound (NAME) a.voc 0 0 3 0 -5",
                          "include (DEFS.CON)"));
}

TEST(Statement, RunsUpToTheNextOneWhereItIsAList) {
  EXPECT_THAT(Statements("music 1 a.mid\n  b.mid // c\n\n /* \n */ d.mid\nmusic 2 e.mid\n"
                         "gamestartup A B\n  C\ndefine D 1\nx y"),
              ElementsAre("music (1) a.mid b.mid d.mid", "music (2) e.mid", "gamestartup A B C",
                          "define (D) 1"));
  EXPECT_THAT(Statements("gamestartup A { B"), ElementsAre("gamestartup A", "{"));
}

TEST(Statement, TakesItsNamesOnItsLine) {
  EXPECT_THAT(Statements("actor CRATE CRATETOUGH // x\n  fall\nenda\n"
                         "useractor KIND SHARK STRENGTH SWIMS\nends"),
              ElementsAre("actor (CRATE) CRATETOUGH", "enda",
                          "useractor KIND (SHARK) STRENGTH SWIMS", "ends"));
  EXPECT_THAT(Statements("state\nfoo"), ElementsAre("state"));
  EXPECT_THAT(Statements("state /* \n */ foo"), ElementsAre("state"));
}

TEST(Statement, MayHaveAKeywordForItsName) {
  EXPECT_THAT(Statements("state ends\nuseractor move ai state x"),
              ElementsAre("state (ends)", "useractor move (ai)", "state (x)"));
}

TEST(Statement, MayFollowAnotherOnItsLine) {
  EXPECT_THAT(Statements("ifdead { state a } else { ai b move c }"),
              ElementsAre("{", "state (a)", "}", "{", "ai (b)", "move (c)", "}"));
  EXPECT_THAT(Statements("state { foo"), ElementsAre("state", "{"));
}

TEST(Statement, IsKnownInAnyCase) {
  EXPECT_THAT(Statements("STATE A\nEndS\nMUSIC 1 a"),
              ElementsAre("state (A)", "ends", "music (1) a"));
}

TEST(Statement, IsNoneInACommentOrInALongerWord) {
  EXPECT_THAT(Statements("// state a\n/* ends */ _state b xstate stated state.con"), IsEmpty());
}

std::string TextAt(const Script& script, Position offset) {
  const auto statement = StatementAt(script, offset);
  return statement ? std::string(script.Text(statement->range)) : "none";
}

TEST(Statement, HoldsTheBytesFromItsKeywordToItsLastWord) {
  const Script script("x music 1 // c\n a.mid \n ends y");
  EXPECT_EQ(TextAt(script, 0), "none");
  EXPECT_EQ(TextAt(script, 1), "none");
  for (const Position inside : {2, 9, 11, 14, 20}) {
    EXPECT_EQ(TextAt(script, inside), "music 1 // c\n a.mid") << inside;
  }
  EXPECT_EQ(TextAt(script, 21), "none");
  EXPECT_EQ(TextAt(script, 24), "ends");
  EXPECT_EQ(TextAt(script, 28), "none");
  EXPECT_EQ(TextAt(script, 30), "none");
}

TEST(Statement, IsNoneInAnEmptyText) { EXPECT_EQ(TextAt(Script(""), 0), "none"); }

}  // namespace
}  // namespace tessel::language
