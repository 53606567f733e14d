// Changes of texts that the client makes.
#pragma once

#include <string>
#include <vector>

#include "lsp/features/Session.h"

namespace tessel::lsp {

/// New text, in UTF-8, for a range of a document.
struct Edit {
  language::Range range;
  std::string text;
};

struct FileEdits {
  const Document* document = nullptr;
  std::vector<Edit> edits;  ///< they lie apart
};

/// A WorkspaceEdit, in the form that the client takes.
Json WorkspaceEdit(const Session& session, const std::vector<FileEdits>& files);

/// The edits by which a text becomes another one, line by line.
std::vector<Edit> EditsBetween(const std::string& before, const std::string& after);

}  // namespace tessel::lsp
