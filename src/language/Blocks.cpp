#include "language/Blocks.h"

#include <algorithm>
#include <array>
#include <utility>

#include "language/Statement.h"

namespace tessel::language {
namespace {

struct Pair {
  Keyword opener;
  Keyword closer;
};
constexpr std::array<Pair, 4> kPairs = {{{Keyword::kState, Keyword::kEnds},
                                         {Keyword::kActor, Keyword::kEndA},
                                         {Keyword::kUserActor, Keyword::kEndA},
                                         {Keyword::kOpenBrace, Keyword::kCloseBrace}}};

bool ArePair(Keyword opener, Keyword closer) {
  for (const Pair& pair : kPairs) {
    if (pair.opener == opener && pair.closer == closer) return true;
  }
  return false;
}

}  // namespace

bool OpenBlocks::IsOpen(std::size_t block) const {
  return std::ranges::binary_search(open_, block);  // they stand in each other
}

void OpenBlocks::Finish(Position end) {
  while (!open_.empty()) LeaveOpen(end);
}

Role OpenBlocks::Enter(Mark mark) {
  switch (mark.keyword) {
    case Keyword::kAction:
    case Keyword::kMove:
    case Keyword::kAi:
      return IsInScriptBlock() ? Role::kUses : Role::kDefines;
    case Keyword::kState:
      return IsInScriptBlock() ? Role::kUses : Open(mark);
    case Keyword::kActor:
    case Keyword::kUserActor:
    case Keyword::kOpenBrace:
      return Open(mark);
    case Keyword::kEnds:
    case Keyword::kEndA:
    case Keyword::kCloseBrace:
      return Close(mark);
    case Keyword::kInclude:
    case Keyword::kMusic:
    case Keyword::kGameStartup:
      return Role::kOther;
    default:
      return Role::kDefines;
  }
}

/// Braces alone may stand around a block by mistake; they make no statement one of its uses.
bool OpenBlocks::IsInScriptBlock() const {
  return !open_.empty() && blocks_[open_.front()].opener.keyword != Keyword::kOpenBrace;
}

Role OpenBlocks::Open(Mark mark) {
  if (mark.keyword != Keyword::kOpenBrace) Finish(mark.begin);
  Block block;
  block.opener = mark;
  block.range = {mark.begin, mark.begin};
  if (!open_.empty()) block.parent = open_.back();
  open_.push_back(blocks_.size());
  blocks_.push_back(block);
  return Role::kOpens;
}

Role OpenBlocks::Close(Mark mark) {
  // "ends" and "enda" reach over braces that are left open, to the outermost block.
  const bool brace = mark.keyword == Keyword::kCloseBrace;
  const auto opener = [&] { return blocks_[brace ? open_.back() : open_.front()].opener.keyword; };
  if (open_.empty() || !ArePair(opener(), mark.keyword)) return Role::kClosesNothing;
  while (!brace && open_.size() > 1) LeaveOpen(mark.begin);
  Block& block = blocks_[open_.back()];
  block.range.end = mark.begin + static_cast<Position>(GrammarOf(mark.keyword).word.size());
  block.terminated = true;
  open_.pop_back();
  return Role::kCloses;
}

void OpenBlocks::LeaveOpen(Position end) {
  blocks_[open_.back()].range.end = end;
  open_.pop_back();
}

BlockWalk::BlockWalk(const Script& script, Position from)
    : script_(script), next_(script.MarksFrom(from).begin()), last_(script.Marks().end()) {}

std::optional<Mark> BlockWalk::Following() const {
  if (next_ == last_) return std::nullopt;
  return *next_;
}

bool BlockWalk::Next() {
  if (next_ == last_) {
    open_.Finish(script_.Length());
    return false;
  }
  mark_ = *next_;
  ++next_;
  role_ = open_.Enter(mark_);
  if (role_ == Role::kOpens) open_.NameTheLast(NameOf(script_, mark_));
  return true;
}

BlockTree Blocks(const Script& script) {
  BlockTree tree;
  BlockWalk walk(script);
  while (walk.Next()) {
    if (walk.CurrentRole() == Role::kClosesNothing) tree.strayClosers.push_back(walk.Current());
  }
  tree.blocks = walk.TakeBlocks();
  return tree;
}

}  // namespace tessel::language
