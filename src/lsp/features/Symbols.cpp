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
constexpr std::size_t kUsualLength = 256;  // of a symbol in an answer

void AppendName(const Document& document, language::Range name, std::string& out) {
  out += "{\"name\":";
  AppendJson(out, document.Utf8(name));
}

void AppendKind(const language::Symbol& symbol, std::string& out) {
  out += ",\"kind\":";
  AppendJson(out, std::int64_t{SymbolKindOf(symbol.keyword)});
}

void AppendSymbol(const Document& document, const language::Symbol& symbol, RangeText& ranges,
                  std::string& out) {
  AppendName(document, symbol.name, out);
  language::Range detail = symbol.detail;
  detail.end = std::min(detail.end, detail.begin + kMostOfDetail);
  if (!detail.IsEmpty()) {
    out += ",\"detail\":";
    AppendJson(out, document.Utf8(detail));
  }
  AppendKind(symbol, out);
  out += ",\"range\":";
  ranges.Append(out, symbol.range);
  out += ",\"selectionRange\":";
  ranges.Append(out, symbol.name);
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
  RangeText(document, session.client.encoding).Append(out, symbol.name);
  out += "}}";
}

}  // namespace

std::string DocumentSymbols(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const std::vector<language::Symbol> symbols = language::Symbols(document.Script());
  RangeText ranges(document, session.client.encoding);
  std::string out = "[";
  out.reserve(symbols.size() * kUsualLength);
  for (const language::Symbol& symbol : symbols) {
    if (symbol.name.IsEmpty()) continue;
    if (out.size() > 1) out += ',';
    AppendSymbol(document, symbol, ranges, out);
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
