// The texts of the client.
#include <optional>

#include "lsp/documents/Uri.h"
#include "lsp/features/Features.h"

namespace tessel::lsp {
namespace {

std::optional<std::int64_t> VersionIn(const Json& document) {
  if (OptionalMember(document, "version") == nullptr) return std::nullopt;
  return NumberMember(document, "version");
}

void Apply(const Session& session, Document& document, const Json& change) {
  ClientText text = FromClient(TextMember(change, "text"));
  if (const Json* range = OptionalMember(change, "range")) {
    document.Replace(RangeFrom(*range, document, session.client.encoding), text);
  } else {
    document.ReplaceAll(std::move(text));
  }
}

const Json& ArrayMember(const Json& object, const char* name) {
  const Json& member = Member(object, name);
  if (member.is_array()) return member;
  throw ResponseError(ErrorCode::kInvalidParams, "\"" + std::string(name) + "\" is no array.");
}

}  // namespace

void DidOpen(Session& session, const Json& params) {
  const Json& document = Member(params, "textDocument");
  session.workspace.Open(TextMember(document, "uri"), FromClient(TextMember(document, "text")),
                         VersionIn(document));
  session.TellAnew(TextMember(document, "uri"));
  session.WantCheck();
}

void DidChange(Session& session, const Json& params) {
  Document& document = DocumentIn(session, params);
  session.WantCheck();
  for (const Json& change : ArrayMember(params, "contentChanges")) {
    Apply(session, document, change);
  }
  document.SetVersion(VersionIn(Member(params, "textDocument")));
}

void DidClose(Session& session, const Json& params) {
  session.workspace.Close(TextMember(Member(params, "textDocument"), "uri"));
  session.WantCheck();
}

void FilesChanged(Session& session, const Json&) { session.WantCheck(); }

void DidChangeFolders(Session& session, const Json& params) {
  const Json& event = Member(params, "event");
  for (const Json& folder : ArrayMember(event, "removed")) {
    if (const auto path = PathOfUri(TextMember(folder, "uri"))) {
      session.workspace.RemoveFolder(*path);
    }
  }
  for (const Json& folder : ArrayMember(event, "added")) {
    if (const auto path = PathOfUri(TextMember(folder, "uri"))) session.workspace.AddFolder(*path);
  }
  session.WantCheck();
}

}  // namespace tessel::lsp
