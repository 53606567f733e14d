// What the server does for each request and notification.
#pragma once

#include <string>

#include "lsp/features/Session.h"

namespace tessel::lsp {

/// The answer as JSON text; a ResponseError or RuntimeError says why there is none.
using RequestHandler = std::string (*)(Session& session, const Json& params);
using NotificationHandler = void (*)(Session& session, const Json& params);

// Initialization.cpp
std::string Initialize(Session& session, const Json& params);
void Initialized(Session& session, const Json& params);

// Synchronization.cpp
void DidOpen(Session& session, const Json& params);
void DidChange(Session& session, const Json& params);
void DidClose(Session& session, const Json& params);
void FilesChanged(Session& session, const Json& params);
void DidChangeFolders(Session& session, const Json& params);

std::string Completion(Session& session, const Json& params);
std::string Hover(Session& session, const Json& params);

// Definition.cpp
std::string Definition(Session& session, const Json& params);
std::string References(Session& session, const Json& params);
std::string DocumentHighlights(Session& session, const Json& params);

// Symbols.cpp
std::string DocumentSymbols(Session& session, const Json& params);
std::string WorkspaceSymbols(Session& session, const Json& params);

std::string FoldingRanges(Session& session, const Json& params);

// SemanticTokens.cpp
std::string SemanticTokens(Session& session, const Json& params);
std::string SemanticTokensInRange(Session& session, const Json& params);
/// The kinds of tokens, in the order of their numbers.
Json SemanticTokenKinds();

std::string PrepareRename(Session& session, const Json& params);
std::string Rename(Session& session, const Json& params);

std::string CodeActions(Session& session, const Json& params);

// Commands.cpp
std::string ExecuteCommand(Session& session, const Json& params);
inline constexpr const char* kConvertCommand = "tessel.convert";
inline constexpr const char* kSetValueCommand = "tessel.setValue";

}  // namespace tessel::lsp
