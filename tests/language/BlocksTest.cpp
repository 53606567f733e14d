// Which blocks there are, what they stand in, and which are not closed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/DataFiles.h"
#include "language/Blocks.h"

namespace tessel::language {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

/// Each block as its text, indented by how deep it stands; "?" behind one that is not closed.
std::vector<std::string> BlockTexts(std::string_view text) {
  const Script script(text);
  const BlockTree tree = Blocks(script);
  std::vector<std::string> shown;
  for (const Block& block : tree.blocks) {
    std::string line;
    for (auto parent = block.parent; parent; parent = tree.blocks[*parent].parent) line += ' ';
    line += script.Text(block.range);
    if (!block.terminated) line += '?';
    shown.push_back(line);
  }
  for (const Mark stray : tree.strayClosers) {
    shown.push_back("stray " + std::string(GrammarOf(stray.keyword).word));
  }
  return shown;
}

std::string Names(std::string_view text) {
  const Script script(text);
  std::string names;
  for (const Block& block : Blocks(script).blocks) {
    (names += script.Text(block.name)) += ',';
  }
  return names;
}

/// What each statement does, by the first letters of the roles.
std::string Roles(std::string_view text) {
  const Script script(text);
  std::string roles;
  for (BlockWalk walk(script); walk.Next();) {
    roles += "DOCNU-"[static_cast<int>(walk.CurrentRole())];
  }
  return roles;
}

TEST(Blocks, OpenAndCloseInPairs) {
  EXPECT_THAT(BlockTexts("state a x ends actor b enda useractor 1 c enda { }"),
              ElementsAre("state a x ends", "actor b enda", "useractor 1 c enda", "{ }"));
}

TEST(Blocks, StandInEachOther) {
  EXPECT_THAT(BlockTexts("state a { b { c } } ends"),
              ElementsAre("state a { b { c } } ends", " { b { c } }", "  { c }"));
}

TEST(Blocks, HaveTheNameBehindTheirKeyword) {
  EXPECT_EQ(Names("state a { ends actor B 1 enda useractor 1 C 2 enda"), "a,,B,C,");
  EXPECT_EQ(Names("useractor 1\nenda state\nends"), ",,");
}

TEST(Blocks, AreNoneInComments) {
  EXPECT_THAT(BlockTexts("// state a\n/* { */ } "), ElementsAre("stray }"));
}

TEST(Blocks, CallAStateInsideOfOneAndOfAnActor) {
  EXPECT_THAT(BlockTexts("state a state b ends actor c state d enda"),
              ElementsAre("state a state b ends", "actor c state d enda"));
}

TEST(Blocks, AreNotTerminatedAtTheEndOfTheText) {
  EXPECT_THAT(BlockTexts("state a { x"), ElementsAre("state a { x?", " { x?"));
}

TEST(Blocks, AreNotTerminatedWhereAnActorBegins) {
  EXPECT_THAT(BlockTexts("state a { actor b useractor 1 c enda"),
              ElementsAre("state a { ?", " { ?", "actor b ?", "useractor 1 c enda"));
}

TEST(Blocks, LeaveBracesOpenWhereTheBlockAroundThemCloses) {
  EXPECT_THAT(BlockTexts("state a { { } ends }"),
              ElementsAre("state a { { } ends", " { { } ?", "  { }", "stray }"));
}

TEST(Blocks, LeaveBracesOpenWhereAStateBeginsBehindThem) {
  EXPECT_THAT(BlockTexts("{ state a ends }"), ElementsAre("{ ?", "state a ends", "stray }"));
}

TEST(Blocks, IgnoreAnEndOfAnotherKind) {
  EXPECT_THAT(BlockTexts("state a enda ends"), ElementsAre("state a enda ends", "stray enda"));
  EXPECT_THAT(BlockTexts("actor a ends } enda"),
              ElementsAre("actor a ends } enda", "stray ends", "stray }"));
  EXPECT_THAT(BlockTexts("ends enda }"), ElementsAre("stray ends", "stray enda", "stray }"));
}

TEST(Blocks, TellWhatAStatementDoes) {
  EXPECT_EQ(
      Roles("action A 1\nmove M\nai I A M\nstate s\n action A\n move M\n ai I\n state t\nends"),
      "DDDOUUUUC");
  EXPECT_EQ(Roles("define A 1\ndefinequote 1 x\ndefinelevelname 0 0\ndefinesound S f"), "DDDD");
  EXPECT_EQ(Roles("include F\nmusic 1 a\ngamestartup A\nenda"), "---N");
  EXPECT_EQ(Roles("actor A\n{\n define B 1\n}\nenda\naction C"), "OODCCD");
}

class TemplateBlocks : public testing::TestWithParam<const char*> {
 protected:
  const std::string text_ = test::ReadDataFile(GetParam());
};

TEST_P(TemplateBlocks, AreAllTerminatedAndNoneIsStray) {
  const BlockTree tree = Blocks(Script(text_));
  EXPECT_THAT(tree.blocks, Each(Field(&Block::terminated, true)));
  EXPECT_THAT(tree.strayClosers, IsEmpty());
  const bool game = std::string(GetParam()).starts_with("zmgame");
  EXPECT_EQ(tree.blocks.empty(), !game);
}

INSTANTIATE_TEST_SUITE_P(All, TemplateBlocks, testing::ValuesIn(test::kTemplates),
                         [](const auto& param) {
                           return std::string(param.param, std::string(param.param).find('.'));
                         });

}  // namespace
}  // namespace tessel::language
