// A name, and where it stands in the files of a mod.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "language/NameAt.h"
#include "lsp/features/Session.h"

namespace tessel::lsp {

/// A use of a name in a file.
struct PlacedUse {
  DocumentRef document;
  language::Use use;
};

/// The name at the place that the parameters tell; nothing where there is none, or one that a CON
/// file cannot hold.
std::optional<language::Range> NameIn(const Session& session, const Json& params,
                                      const Document& document);

/// All words of that name, in the document first.
std::vector<PlacedUse> UsesAround(Session& session, const Document& document,
                                  std::string_view name);

}  // namespace tessel::lsp
