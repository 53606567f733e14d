#include "lsp/features/Session.h"

#include <algorithm>

#include "lsp/documents/Uri.h"
#include "lsp/features/Diagnostics.h"

namespace tessel::lsp {
namespace {

/// So many bytes are checked in a few milliseconds.
constexpr std::size_t kMostToCheckAtOnce = std::size_t{256} * 1024;

std::size_t BytesIn(const std::vector<Documents>& mods) {
  std::size_t bytes = 0;
  for (const Documents& mod : mods) {
    for (const DocumentRef& file : mod) bytes += file->Bytes().size();
  }
  return bytes;
}

}  // namespace

void Session::Notify(const char* method, Json params) {
  send_(Dump({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}}));
}

void Session::Request(const char* method, Json params) {
  send_(Dump({{"jsonrpc", "2.0"},
              {"id", "tessel-" + std::to_string(++lastRequest_)},
              {"method", method},
              {"params", std::move(params)}}));
}

void Session::Log(const std::string& sentence) {
  constexpr int kWarning = 2;
  Notify("window/logMessage", {{"type", kWarning}, {"message", sentence}});
}

void Session::PublishOne(const Document& document, const check::Findings& findings) {
  Json params = {{"uri", document.Uri()},
                 {"diagnostics", DiagnosticsOf(*this, document, findings)}};
  if (document.Version()) params["version"] = *document.Version();
  std::string text = Dump(params);
  std::string& before = published_[document.Uri()];
  if (before == text) return;
  before = std::move(text);
  Notify("textDocument/publishDiagnostics", std::move(params));
}

void Session::Publish(const CheckJob& job, std::vector<check::Findings> found) {
  std::map<std::string, std::string> gone = published_;
  for (std::size_t i = 0; i < job.files.size(); ++i) {
    const CheckedFile& file = job.files[i];
    gone.erase(file.document->Uri());
    const bool isClosed =
        file.wasOpen && workspace.Find(file.document->Uri()) != file.document.get();
    if (isClosed || file.document->Revision() != file.revision) continue;
    Checked& checked = checked_[KeyOfUri(file.document->Uri())];
    checked = {file.revision, std::move(found[i])};
    PublishOne(*file.document, checked.findings);
  }
  for (const auto& [uri, told] : gone) {
    published_.erase(uri);
    checked_.erase(KeyOfUri(uri));
    Notify("textDocument/publishDiagnostics", {{"uri", uri}, {"diagnostics", Json::array()}});
  }
}

void Session::TellAnew(const std::string& uri) {
  const auto found = published_.find(uri);
  if (found != published_.end()) found->second.clear();
}

const check::Findings& Session::FindingsIn(const Document& document) {
  static const check::Findings kNone;
  Checked& checked = checked_[KeyOfUri(document.Uri())];
  if (checked.revision != document.Revision()) {
    const std::vector<Documents> mods = workspace.ModsOf(document);
    if (BytesIn(mods) > kMostToCheckAtOnce) return kNone;
    const CheckJob job(mods);
    std::vector<check::Findings> found = job.Run(known.AsKnowledge());
    for (std::size_t i = 0; i < job.files.size(); ++i) {
      if (job.files[i].document.get() != &document) continue;
      checked = {document.Revision(), std::move(found[i])};
    }
  }
  return checked.findings;
}

Document& DocumentIn(Session& session, const Json& params) {
  const std::string& uri = TextMember(Member(params, "textDocument"), "uri");
  if (Document* document = session.workspace.Find(uri)) return *document;
  throw ResponseError(ErrorCode::kInvalidParams, "No such document is open: " + uri);
}

Position OffsetIn(const Session& session, const Json& params, const Document& document) {
  return OffsetOf(document, PlaceFrom(Member(params, "position")), session.client.encoding);
}

Json LocationOf(const Session& session, const Document& document, language::Range range) {
  return {{"uri", document.Uri()},
          {"range", RangeAsJson(document, range, session.client.encoding)}};
}

std::string NameOf(const Document& document) {
  const std::string key = KeyOfUri(document.Uri());
  return key.substr(key.rfind('/') + 1);
}

}  // namespace tessel::lsp
