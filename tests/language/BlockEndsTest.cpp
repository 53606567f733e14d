// The partners of braces and of "state", "actor" and what closes them.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "language/BlockEnds.h"
#include "language/Blocks.h"

namespace tessel::language {
namespace {

/// The text with the caret's word in brackets and its partner too; "!" where there is none. The
/// caret is "|" in the text that is given.
std::string EndsIn(std::string marked) {
  const auto caret = marked.find('|');
  marked.erase(caret, 1);
  const Script script(marked);
  const auto end = BlockEndAt(script, static_cast<Position>(caret));
  if (!end) return "no block";
  const auto put = [&](Range range, const char* closing) {
    marked.insert(static_cast<std::size_t>(range.end), closing);
    marked.insert(static_cast<std::size_t>(range.begin), "[");
  };
  if (!end->partner) {
    put(end->word, "!]");
    return marked;
  }
  const bool forwards = end->word.begin < end->partner->begin;
  put(forwards ? *end->partner : end->word, "]");
  put(forwards ? end->word : *end->partner, "]");
  return marked;
}

TEST(BlockEnds, OfBracesAreTheOnesOfTheSameBlock) {
  EXPECT_EQ(EndsIn("state a |{ { } } ends"), "state a [{] { } [}] ends");
  EXPECT_EQ(EndsIn("state a { { |} } ends"), "state a { [{] [}] } ends");
  EXPECT_EQ(EndsIn("state a { { } }| ends"), "state a [{] { } [}] ends");
}

TEST(BlockEnds, OfStatesAndActorsAreTheirClosers) {
  EXPECT_EQ(EndsIn("sta|te a { } ends"), "[state] a { } [ends]");
  EXPECT_EQ(EndsIn("state a { } ends|"), "[state] a { } [ends]");
  EXPECT_EQ(EndsIn("|actor A 1 { } enda"), "[actor] A 1 { } [enda]");
  EXPECT_EQ(EndsIn("useractor 0 A 1 |enda actor B enda"), "[useractor] 0 A 1 [enda] actor B enda");
}

TEST(BlockEnds, OfABlockThatIsNotClosedHaveNoPartner) {
  EXPECT_EQ(EndsIn("|actor A { enda"), "[actor] A { [enda]");
  EXPECT_EQ(EndsIn("actor A |{ enda"), "actor A [{!] enda");
  EXPECT_EQ(EndsIn("|state a { }"), "[state!] a { }");
  EXPECT_EQ(EndsIn("|actor A actor B enda"), "[actor!] A actor B enda");
}

TEST(BlockEnds, ThatCloseNothingHaveNoPartner) {
  EXPECT_EQ(EndsIn("actor A enda |}"), "actor A enda [}!]");
  EXPECT_EQ(EndsIn("|ends"), "[ends!]");
}

TEST(BlockEnds, AreNoOtherWords) {
  EXPECT_EQ(EndsIn("actor A st|ate a enda"), "no block");
  EXPECT_EQ(EndsIn("state |a ends"), "no block");
  EXPECT_EQ(EndsIn("define A 1| {"), "no block");
  EXPECT_EQ(EndsIn("// |{"), "no block");
  EXPECT_EQ(EndsIn("|"), "no block");
}

RC_GTEST_PROP(BlockEnds, AreThoseOfTheBlocks, ()) {
  const auto words = *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
      "{", "}", "state", "ends", "actor", "useractor", "enda", "x", "\n", "// {\n"));
  std::string text;
  for (const std::string& word : words) text += word + " ";
  const Script script(text);
  const BlockTree tree = Blocks(script);
  for (const Block& block : tree.blocks) {
    const auto opener = BlockEndAt(script, block.opener.begin);
    RC_ASSERT(opener.has_value());
    RC_ASSERT(opener->partner.has_value() == block.terminated);
    if (!block.terminated) continue;
    RC_ASSERT(opener->partner->end == block.range.end);
    const auto closer = BlockEndAt(script, block.range.end);
    RC_ASSERT(closer.has_value());
    RC_ASSERT(closer->word == *opener->partner);
    RC_ASSERT(closer->partner == opener->word);
  }
  for (const Mark stray : tree.strayClosers) {
    const auto closer = BlockEndAt(script, stray.begin);
    RC_ASSERT(closer.has_value());
    RC_ASSERT(!closer->partner.has_value());
  }
}

}  // namespace
}  // namespace tessel::language
