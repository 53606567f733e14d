// The blocks of a script: "state" to "ends", "actor" and "useractor" to "enda", "{" to "}".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "language/Script.h"

namespace tessel::language {

/// What a statement does where it stands. Inside of a state or an actor the words that define
/// something outside use it.
enum class Role : std::uint8_t {
  kDefines,        ///< gives something a name or a number
  kOpens,          ///< begins a block, and gives it a name where it is no brace
  kCloses,         ///< ends the block that was opened last
  kClosesNothing,  ///< ends a block of a kind that is not open
  kUses,           ///< runs a state, starts an action, a move or an ai
  kOther,          ///< a list, or the name of another file
};

struct Block {
  Mark opener;
  Range name;  ///< empty for braces, and where it is missing
  /// From the opener to the end of what closes it. A block that nothing closes ends in front of the
  /// statement that shows it (an actor, or the end of the block around it), or with the text.
  Range range;
  bool terminated = false;
  std::optional<std::size_t> parent;  ///< the index of the block around it
};

/// Is told every statement of a text and knows which blocks are open. An actor never stands inside
/// of a state or an actor, and a brace never reaches over the end of the block that it stands in;
/// so what is left open by then is not terminated.
class OpenBlocks {
 public:
  /// What the next statement does. Of one that opens a block the caller gives the name.
  Role Enter(Mark mark);
  void NameTheLast(Range name) { blocks_.back().name = name; }
  /// The text ends: so do the blocks that are open.
  void Finish(Position end);

  /// The blocks so far, in the order of their openers. What is still open ends nowhere yet.
  const std::vector<Block>& All() const { return blocks_; }
  bool IsOpen(std::size_t block) const;
  /// The block around all others that are open here; null where none is.
  const Block* Outermost() const { return open_.empty() ? nullptr : &blocks_[open_.front()]; }
  std::vector<Block> Take() { return std::move(blocks_); }

 private:
  Role Open(Mark mark);
  Role Close(Mark mark);
  bool IsInScriptBlock() const;
  void LeaveOpen(Position end);

  std::vector<Block> blocks_;
  std::vector<std::size_t> open_;  // the innermost last
};

/// Walks the statements of a script, knowing which blocks are open.
class BlockWalk {
 public:
  explicit BlockWalk(const Script& script) : BlockWalk(script, 0) {}
  /// Begins at an offset in front of which nothing is open.
  BlockWalk(const Script& script, Position from);

  /// Goes to the next statement; false behind the last, and then every block is in `blocks`.
  bool Next();
  /// The one that Next went to.
  Mark Current() const { return mark_; }
  Role CurrentRole() const { return role_; }
  /// The next one, if there is any.
  std::optional<Mark> Following() const;

  /// The blocks so far, in the order of their openers. What is still open ends nowhere yet.
  const std::vector<Block>& Blocks() const { return open_.All(); }
  /// Whether nothing has ended that block yet.
  bool IsOpen(std::size_t block) const { return open_.IsOpen(block); }
  std::vector<Block> TakeBlocks() { return open_.Take(); }

 private:
  const Script& script_;
  Script::MarkIterator next_, last_;
  Mark mark_;
  Role role_ = Role::kOther;
  OpenBlocks open_;
};

struct BlockTree {
  std::vector<Block> blocks;       ///< in the order of their openers
  std::vector<Mark> strayClosers;  ///< those that close nothing
};

BlockTree Blocks(const Script& script);

}  // namespace tessel::language
