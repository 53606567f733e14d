#include "lsp/features/NameUses.h"

namespace tessel::lsp {

std::optional<language::Range> NameIn(const Session& session, const Json& params,
                                      const Document& document) {
  const auto name = language::NameAt(document.Script(), OffsetIn(session, params, document));
  if (!name || !document.ForeignersIn(*name).empty()) return std::nullopt;
  return name;
}

std::vector<PlacedUse> UsesAround(Session& session, const Document& document,
                                  std::string_view name) {
  std::vector<PlacedUse> uses;
  for (const DocumentRef& file : session.workspace.FilesAround(document)) {
    for (const language::Use& use : language::UsesOf(file->Script(), name)) {
      if (file->ForeignersIn(use.word).empty()) uses.push_back({file, use});
    }
  }
  return uses;
}

}  // namespace tessel::lsp
