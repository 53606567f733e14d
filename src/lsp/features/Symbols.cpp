// What documents give names to. Answers may have a hundred thousand entries, so they are written as
// text at once.
#include "language/NameAt.h"
#include "lsp/features/Features.h"
#include "lsp/features/Kinds.h"
#include "text/SafeText.h"
#include "text/TextSearch.h"

namespace tessel::lsp {
namespace {

constexpr std::size_t kMostFound = 1000;
constexpr Position kMostOfDetail = 60;

void AppendName(const Document& document, language::Range name, std::string& out) {
  out += "{\"name\":";
  AppendJson(out, document.Utf8(name));
}

void AppendKind(const language::Symbol& symbol, std::string& out) {
  out += ",\"kind\":";
  AppendJson(out, std::int64_t{SymbolKindOf(symbol.keyword)});
}

void AppendSymbol(const Session& session, const Document& document, const language::Symbol& symbol,
                  std::string& out) {
  const PositionEncoding encoding = session.client.encoding;
  AppendName(document, symbol.name, out);
  language::Range detail = symbol.detail;
  detail.end = std::min(detail.end, detail.begin + kMostOfDetail);
  if (!detail.IsEmpty()) {
    out += ",\"detail\":";
    AppendJson(out, document.Utf8(detail));
  }
  AppendKind(symbol, out);
  out += ",\"range\":";
  AppendRange(out, document, symbol.range, encoding);
  out += ",\"selectionRange\":";
  AppendRange(out, document, symbol.name, encoding);
  out += '}';
}

bool Matches(const Document& document, language::Range name, std::string_view query) {
  const std::string_view text = document.Script().Text(name);
  return query.empty() || FindText(text, query, 0, std::ssize(text), kFindDefault) != kNotFound;
}

void AppendFound(const Session& session, const Document& document, const language::Symbol& symbol,
                 std::string& out) {
  if (out.size() > 1) out += ',';
  AppendName(document, symbol.name, out);
  AppendKind(symbol, out);
  out += ",\"location\":{\"uri\":";
  AppendJson(out, document.Uri());
  out += ",\"range\":";
  AppendRange(out, document, symbol.name, session.client.encoding);
  out += "}}";
}

}  // namespace

std::string DocumentSymbols(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  std::string out = "[";
  for (const language::Symbol& symbol : language::Symbols(document.Script())) {
    if (symbol.name.IsEmpty()) continue;
    if (out.size() > 1) out += ',';
    AppendSymbol(session, document, symbol, out);
  }
  return out += ']';
}

std::string WorkspaceSymbols(Session& session, const Json& params) {
  const auto query = FromTerminal(TextMember(params, "query"));
  std::string out = "[";
  if (!query) return "[]";
  std::size_t found = 0;
  for (const DocumentRef& document : session.workspace.Everything()) {
    for (const language::Symbol& symbol : language::Symbols(document->Script())) {
      if (symbol.name.IsEmpty() || !Matches(*document, symbol.name, *query)) continue;
      if (found++ == kMostFound) return out += ']';
      AppendFound(session, *document, symbol, out);
    }
  }
  return out += ']';
}

}  // namespace tessel::lsp
