#include "language/Structure.h"

#include <algorithm>
#include <utility>

#include "language/Statement.h"

namespace tessel::language {
namespace {

Symbol ReadSymbol(const Script& script, Mark mark) {
  const Statement statement = ReadStatement(script, mark);
  Symbol symbol;
  symbol.keyword = mark.keyword;
  symbol.range = statement.range;
  symbol.name = statement.name;
  if (mark.keyword == Keyword::kDefineLevelName && !statement.words.empty()) {
    const std::size_t last = std::min<std::size_t>(statement.words.size(), 2) - 1;
    symbol.name = {statement.words.front().begin, statement.words[last].end};
  }
  const auto behind = std::ranges::find_if(
      statement.words, [&](Range word) { return word.begin >= symbol.name.end; });
  symbol.detail = behind == statement.words.end() ? Range{statement.range.end, statement.range.end}
                                                  : Range{behind->begin, statement.range.end};
  return symbol;
}

bool IsListed(const BlockWalk& walk) {
  return walk.CurrentRole() == Role::kDefines || walk.Current().keyword == Keyword::kMusic ||
         (walk.CurrentRole() == Role::kOpens && walk.Current().keyword != Keyword::kOpenBrace);
}

}  // namespace

bool StructureWalk::Read(int statements) {
  for (; statements > 0; --statements) {
    if (!walk_.Next()) return false;
    if (walk_.CurrentRole() == Role::kClosesNothing) {
      structure_.tree.strayClosers.push_back(walk_.Current());
    }
    if (!wantsSymbols_ || !IsListed(walk_)) continue;
    structure_.symbols.push_back(ReadSymbol(script_, walk_.Current()));
    blockOf_.push_back(walk_.CurrentRole() == Role::kOpens ? walk_.Blocks().size() : 0);
  }
  return true;
}

Structure StructureWalk::Take() {
  structure_.tree.blocks = walk_.TakeBlocks();
  for (std::size_t i = 0; i < structure_.symbols.size(); ++i) {
    if (blockOf_[i] == 0) continue;
    const Block& block = structure_.tree.blocks[blockOf_[i] - 1];
    structure_.symbols[i].range = block.range;
    structure_.symbols[i].terminated = block.terminated;
  }
  return std::move(structure_);
}

}  // namespace tessel::language
