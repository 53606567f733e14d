// What a script consists of: what it gives names to, and its blocks.
#pragma once

#include <cstddef>
#include <vector>

#include "language/Blocks.h"
#include "language/Names.h"

namespace tessel::language {

struct Structure {
  std::vector<Symbol> symbols;  ///< as Symbols gives them
  BlockTree tree;               ///< as Blocks gives it
};

/// Reads the structure of a script in pieces, so that nobody has to wait for a large one. The
/// script stays as it is meanwhile.
class StructureWalk {
 public:
  /// Without `symbols` there will be none: they take more room than the blocks of a large text.
  explicit StructureWalk(const Script& script, bool symbols = true)
      : script_(script), walk_(script), wantsSymbols_(symbols) {}

  /// Goes over so many statements more. False when all are read.
  bool Read(int statements);
  /// All of it, once everything is read.
  Structure Take();

 private:
  const Script& script_;
  BlockWalk walk_;
  bool wantsSymbols_;
  Structure structure_;
  std::vector<std::size_t> blockOf_;  // for each symbol, one more than the index of its block
};

}  // namespace tessel::language
