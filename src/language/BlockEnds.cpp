#include "language/BlockEnds.h"

#include <algorithm>

#include "language/Blocks.h"
#include "language/Names.h"

namespace tessel::language {
namespace {

Range WordOf(Mark mark) {
  return {mark.begin, mark.begin + std::ssize(GrammarOf(mark.keyword).word)};
}

Range CloserOf(const Block& block, Keyword closer) {
  return {block.range.end - std::ssize(GrammarOf(closer).word), block.range.end};
}

/// Where a walk may begin to know what is open at the mark: an actor leaves nothing open before it.
Position StartOfWalk(const Script& script, Mark mark) {
  while (mark.keyword != Keyword::kActor && mark.keyword != Keyword::kUserActor) {
    const auto before = script.LastMarkUpTo(mark.begin - 1);
    if (!before) return 0;
    mark = *before;
  }
  return mark.begin;
}

BlockEnd OpenerWithPartner(BlockWalk& walk, Range word) {
  const std::size_t block = walk.Blocks().size() - 1;
  while (walk.IsOpen(block)) {
    if (!walk.Next()) return {word, std::nullopt};
  }
  const Block& closed = walk.Blocks()[block];
  if (!closed.terminated) return {word, std::nullopt};
  return {word, CloserOf(closed, walk.Current().keyword)};
}

BlockEnd CloserWithPartner(const BlockWalk& walk, Range word) {
  const auto& blocks = walk.Blocks();
  const auto closed = std::find_if(blocks.rbegin(), blocks.rend(), [&](const Block& block) {
    return block.terminated && block.range.end == word.end;
  });
  return {word, WordOf(closed->opener)};
}

}  // namespace

std::optional<BlockEnd> BlockEndAt(const Script& script, Position caret) {
  const auto word = WordAt(script, caret);
  const auto mark = word ? script.LastMarkUpTo(word->begin) : std::nullopt;
  if (!mark || mark->begin != word->begin) return std::nullopt;
  BlockWalk walk(script, StartOfWalk(script, *mark));
  while (walk.Next() && walk.Current() != *mark) {
  }
  switch (walk.CurrentRole()) {
    case Role::kOpens:
      return OpenerWithPartner(walk, *word);
    case Role::kCloses:
      return CloserWithPartner(walk, *word);
    case Role::kClosesNothing:
      return BlockEnd{*word, std::nullopt};
    default:
      return std::nullopt;
  }
}

}  // namespace tessel::language
