// Where a name is defined, and where it is used.
#include "lsp/features/Features.h"
#include "lsp/features/NameUses.h"

namespace tessel::lsp {
namespace {

bool IsDefinition(const PlacedUse& use) { return use.use.kind == language::UseKind::kDefines; }

std::string Locations(const Session& session, const std::vector<PlacedUse>& uses) {
  Json locations = Json::array();
  for (const PlacedUse& use : uses) {
    locations.push_back(LocationOf(session, *use.document, use.use.word));
  }
  return Dump(locations);
}

}  // namespace

std::string Definition(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto name = NameIn(session, params, document);
  if (!name) return "null";
  auto uses = UsesAround(session, document, document.Script().Text(*name));
  std::erase_if(uses, [](const PlacedUse& use) { return !IsDefinition(use); });
  language::KeepThoseOfKind(uses, language::KindOfName(document.Script(), *name),
                            [](const PlacedUse& use) { return use.use.keyword; });
  return Locations(session, uses);
}

std::string References(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const auto name = NameIn(session, params, document);
  if (!name) return "null";
  auto uses = UsesAround(session, document, document.Script().Text(*name));
  if (!Says(params, "context/includeDeclaration")) std::erase_if(uses, IsDefinition);
  return Locations(session, uses);
}

std::string DocumentHighlights(Session& session, const Json& params) {
  constexpr int kRead = 2, kWrite = 3;
  const Document& document = DocumentIn(session, params);
  const auto name = NameIn(session, params, document);
  if (!name) return "null";
  Json highlights = Json::array();
  for (const auto& use : language::UsesOf(document.Script(), document.Script().Text(*name))) {
    const bool defines = use.kind == language::UseKind::kDefines;
    highlights.push_back({{"range", RangeAsJson(document, use.word, session.client.encoding)},
                          {"kind", defines ? kWrite : kRead}});
  }
  return Dump(highlights);
}

}  // namespace tessel::lsp
