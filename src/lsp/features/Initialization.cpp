#include <algorithm>

#include "lsp/documents/Uri.h"
#include "lsp/features/Features.h"

namespace tessel::lsp {
namespace {

void AddFolderOfUri(Session& session, const Json* uri) {
  if (uri == nullptr || !uri->is_string()) return;
  if (const auto path = PathOfUri(uri->get_ref<const std::string&>())) {
    session.workspace.AddFolder(*path);
  }
}

void AddFolders(Session& session, const Json& params) {
  const Json* folders = OptionalMember(params, "workspaceFolders");
  if (folders == nullptr || !folders->is_array()) {
    AddFolderOfUri(session, OptionalMember(params, "rootUri"));
    return;
  }
  for (const Json& folder : *folders) AddFolderOfUri(session, OptionalMember(folder, "uri"));
}

PositionEncoding EncodingOf(const Json& capabilities) {
  const Json* general = OptionalMember(capabilities, "general");
  const Json* offered =
      general == nullptr ? nullptr : OptionalMember(*general, "positionEncodings");
  const bool utf8 = offered != nullptr && offered->is_array() &&
                    std::ranges::find(*offered, Json("utf-8")) != offered->end();
  return utf8 ? PositionEncoding::kUtf8 : PositionEncoding::kUtf16;
}

Client ClientOf(const Json& params) {
  Client client;
  if (const Json* process = OptionalMember(params, "processId")) {
    if (process->is_number_integer()) client.process = NumberMember(params, "processId");
  }
  const Json* capabilities = OptionalMember(params, "capabilities");
  if (capabilities == nullptr) return client;
  client.encoding = EncodingOf(*capabilities);
  client.takesDocumentChanges = Says(*capabilities, "workspace/workspaceEdit/documentChanges");
  client.appliesEdits = Says(*capabilities, "workspace/applyEdit");
  client.watchesFiles = Says(*capabilities, "workspace/didChangeWatchedFiles/dynamicRegistration");
  return client;
}

Json Capabilities(const Client& client) {
  constexpr int kIncremental = 2;
  return {
      {"positionEncoding", client.encoding == PositionEncoding::kUtf8 ? "utf-8" : "utf-16"},
      {"textDocumentSync",
       {{"openClose", true}, {"change", kIncremental}, {"save", {{"includeText", false}}}}},
      {"completionProvider", Json::object()},
      {"hoverProvider", true},
      {"definitionProvider", true},
      {"referencesProvider", true},
      {"documentHighlightProvider", true},
      {"documentSymbolProvider", true},
      {"workspaceSymbolProvider", true},
      {"foldingRangeProvider", true},
      {"semanticTokensProvider",
       {{"legend", {{"tokenTypes", SemanticTokenKinds()}, {"tokenModifiers", Json::array()}}},
        {"full", true},
        {"range", true}}},
      {"renameProvider", {{"prepareProvider", true}}},
      {"codeActionProvider", {{"codeActionKinds", {"quickfix", "refactor.rewrite"}}}},
      {"executeCommandProvider", {{"commands", {kConvertCommand, kSetValueCommand}}}},
      {"workspace", {{"workspaceFolders", {{"supported", true}, {"changeNotifications", true}}}}}};
}

}  // namespace

std::string Initialize(Session& session, const Json& params) {
  session.client = ClientOf(params);
  AddFolders(session, params);
  return Dump({{"capabilities", Capabilities(session.client)},
               {"serverInfo", {{"name", "tessel"}, {"version", session.known.version}}}});
}

void Initialized(Session& session, const Json&) {
  if (!session.client.watchesFiles) return;
  const Json watchers = {{"watchers", {{{"globPattern", "**/*.{con,CON,Con}"}}}}};
  session.Request("client/registerCapability", {{"registrations",
                                                 {{{"id", "tessel-files"},
                                                   {"method", "workspace/didChangeWatchedFiles"},
                                                   {"registerOptions", watchers}}}}});
}

}  // namespace tessel::lsp
