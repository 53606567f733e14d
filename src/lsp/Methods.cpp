#include "lsp/Methods.h"

#include <algorithm>
#include <array>

namespace tessel::lsp {
namespace {

template <class Handler>
struct Method {
  std::string_view name;
  Handler handler;
};

constexpr auto kRequests = std::to_array<Method<RequestHandler>>({
    {"initialize", Initialize},
    {"textDocument/completion", Completion},
    {"textDocument/hover", Hover},
    {"textDocument/definition", Definition},
    {"textDocument/references", References},
    {"textDocument/documentHighlight", DocumentHighlights},
    {"textDocument/documentSymbol", DocumentSymbols},
    {"workspace/symbol", WorkspaceSymbols},
    {"textDocument/foldingRange", FoldingRanges},
    {"textDocument/semanticTokens/full", SemanticTokens},
    {"textDocument/semanticTokens/range", SemanticTokensInRange},
    {"textDocument/prepareRename", PrepareRename},
    {"textDocument/rename", Rename},
    {"textDocument/codeAction", CodeActions},
    {"workspace/executeCommand", ExecuteCommand},
});

constexpr auto kNotifications = std::to_array<Method<NotificationHandler>>({
    {"initialized", Initialized},
    {"textDocument/didOpen", DidOpen},
    {"textDocument/didChange", DidChange},
    {"textDocument/didClose", DidClose},
    {"textDocument/didSave", FilesChanged},
    {"workspace/didChangeWatchedFiles", FilesChanged},
    {"workspace/didChangeWorkspaceFolders", DidChangeFolders},
});

template <class Methods>
auto HandlerIn(const Methods& methods, std::string_view name) {
  const auto* const found =
      std::ranges::find_if(methods, [&](const auto& method) { return method.name == name; });
  return found == methods.end() ? nullptr : found->handler;
}

}  // namespace

RequestHandler AnswerTo(std::string_view method) { return HandlerIn(kRequests, method); }

NotificationHandler TakerOf(std::string_view method) { return HandlerIn(kNotifications, method); }

}  // namespace tessel::lsp
