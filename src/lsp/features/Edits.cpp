#include "lsp/features/Edits.h"

#include <span>

#include "text/LineEdits.h"
#include "text/SafeText.h"

namespace tessel::lsp {
namespace {

Json TextEdits(const Session& session, const FileEdits& file) {
  Json edits = Json::array();
  for (const Edit& edit : file.edits) {
    edits.push_back({{"range", RangeAsJson(*file.document, edit.range, session.client.encoding)},
                     {"newText", edit.text}});
  }
  return edits;
}

Json VersionOf(const Document& document) {
  return document.Version() ? Json(*document.Version()) : Json(nullptr);
}

/// From the begin of the first of those lines to the end of the last.
std::string_view Joined(const std::string& text, const std::vector<std::string_view>& lines,
                        std::size_t first, std::size_t count) {
  if (first == lines.size()) return std::string_view(text).substr(text.size());
  std::size_t length = 0;
  for (const std::string_view line : std::span(lines).subspan(first, count)) length += line.size();
  return {lines[first].data(), length};
}

}  // namespace

Json WorkspaceEdit(const Session& session, const std::vector<FileEdits>& files) {
  if (session.client.takesDocumentChanges) {
    Json changes = Json::array();
    for (const FileEdits& file : files) {
      changes.push_back({{"textDocument",
                          {{"uri", file.document->Uri()}, {"version", VersionOf(*file.document)}}},
                         {"edits", TextEdits(session, file)}});
    }
    return {{"documentChanges", std::move(changes)}};
  }
  Json changes = Json::object();
  for (const FileEdits& file : files) changes[file.document->Uri()] = TextEdits(session, file);
  return {{"changes", std::move(changes)}};
}

std::vector<Edit> EditsBetween(const std::string& before, const std::string& after) {
  const std::vector<std::string_view> old = LinesOf(before), fresh = LinesOf(after);
  std::vector<Edit> edits;
  for (const LineEdit& edit : LineEditsBetween(old, fresh).edits) {
    const std::string_view gone = Joined(before, old, edit.before, edit.removed);
    const Position at = gone.data() - before.data();
    edits.push_back(
        {{at, at + std::ssize(gone)}, ToUtf8(Joined(after, fresh, edit.after, edit.added))});
  }
  return edits;
}

}  // namespace tessel::lsp
