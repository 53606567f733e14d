// Blocks that fold away, line by line, as they do in the window.
#include <vector>

#include "language/FoldLines.h"
#include "lsp/features/Features.h"

namespace tessel::lsp {
namespace {

void AppendFold(std::size_t first, std::size_t last, std::string& out) {
  if (out.size() > 1) out += ',';
  out += "{\"startLine\":";
  AppendJson(out, static_cast<std::int64_t>(first));
  out += ",\"endLine\":";
  AppendJson(out, static_cast<std::int64_t>(last));
  out += '}';
}

}  // namespace

std::string FoldingRanges(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto lines =
      language::FoldLines(document.Script(), language::Blocks(document.Script()).blocks);
  std::string out = "[";
  std::vector<std::size_t> open;  // lines whose fold goes on
  for (std::size_t i = 0; i <= lines.size(); ++i) {
    while (!open.empty() && (i == lines.size() || lines[i].depth <= lines[open.back()].depth)) {
      if (i - 1 > open.back()) AppendFold(open.back(), i - 1, out);
      open.pop_back();
    }
    if (i < lines.size() && lines[i].opens) open.push_back(i);
  }
  return out += ']';
}

}  // namespace tessel::lsp
