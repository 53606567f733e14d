// Reading a script's structure piece by piece.
#include <gtest/gtest.h>

#include <string>

#include "data/DataFiles.h"
#include "language/Structure.h"

namespace tessel::language {
namespace {

std::string Shown(const Symbol& symbol) {
  const auto range = [](Range r) {
    return std::to_string(r.begin) + "-" + std::to_string(r.end) + " ";
  };
  return std::string(GrammarOf(symbol.keyword).word) + " " + range(symbol.range) +
         range(symbol.name) + range(symbol.detail) + (symbol.terminated ? "" : "open");
}

TEST(Structure, IsTheSameInPiecesOfAnySize) {
  const std::string text = test::ReadDataFile("zmgame.dat") + "} state open { actor A {";
  const Script script(text);
  const auto symbols = Symbols(script);
  const BlockTree tree = Blocks(script);
  for (const int piece : {1, 7, 1'000'000}) {
    StructureWalk walk(script);
    while (walk.Read(piece)) {
    }
    const Structure structure = walk.Take();
    ASSERT_EQ(structure.symbols.size(), symbols.size());
    for (std::size_t i = 0; i < symbols.size(); ++i) {
      ASSERT_EQ(Shown(structure.symbols[i]), Shown(symbols[i]));
    }
    ASSERT_EQ(structure.tree.blocks.size(), tree.blocks.size());
    for (std::size_t i = 0; i < tree.blocks.size(); ++i) {
      ASSERT_EQ(structure.tree.blocks[i].range, tree.blocks[i].range);
      ASSERT_EQ(structure.tree.blocks[i].terminated, tree.blocks[i].terminated);
    }
    EXPECT_EQ(structure.tree.strayClosers, tree.strayClosers);
  }
}

}  // namespace
}  // namespace tessel::language
