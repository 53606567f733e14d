// What a statement is for the protocol.
#pragma once

#include "language/Keywords.h"

namespace tessel::lsp {

/// Numbers of SymbolKind and of CompletionItemKind.
int SymbolKindOf(language::Keyword keyword);
int CompletionKindOf(language::Keyword keyword);
inline constexpr int kCompletionKindOfCommand = 14;

}  // namespace tessel::lsp
