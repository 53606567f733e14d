#include "lsp/features/Kinds.h"

#include <algorithm>
#include <array>

namespace tessel::lsp {
namespace {

using language::Keyword;

struct Kinds {
  Keyword keyword;
  int symbol;      ///< constant 14, string 15, module 2, object 19, array 18, struct 23 ...
  int completion;  ///< constant 21, text 1, struct 22, function 3, class 7 ...
};
constexpr auto kKinds = std::to_array<Kinds>({
    {Keyword::kDefine, 14, 21},
    {Keyword::kDefineQuote, 15, 1},
    {Keyword::kDefineVolumeName, 15, 1},
    {Keyword::kDefineSkillName, 15, 1},
    {Keyword::kDefineLevelName, 2, 9},
    {Keyword::kDefineSound, 19, 12},
    {Keyword::kMusic, 18, 12},
    {Keyword::kAction, 23, 22},
    {Keyword::kMove, 23, 22},
    {Keyword::kAi, 23, 22},
    {Keyword::kState, 12, 3},
    {Keyword::kActor, 5, 7},
    {Keyword::kUserActor, 5, 7},
});
constexpr Kinds kOther = {Keyword::kDefine, 13, 1};

const Kinds& KindsOf(Keyword keyword) {
  const auto* const found = std::ranges::find(kKinds, keyword, &Kinds::keyword);
  return found == kKinds.end() ? kOther : *found;
}

}  // namespace

int SymbolKindOf(Keyword keyword) { return KindsOf(keyword).symbol; }

int CompletionKindOf(Keyword keyword) { return KindsOf(keyword).completion; }

}  // namespace tessel::lsp
