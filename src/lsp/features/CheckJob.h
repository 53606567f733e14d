// A check of mods as they stand now.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "check/Check.h"
#include "lsp/documents/Workspace.h"

namespace tessel::lsp {

/// A file of a check with its text at that time.
struct CheckedFile {
  DocumentRef document;  ///< for whoever made the check; Run does not look at it
  std::uint64_t revision = 0;
  bool wasOpen = false;
  std::string name;
  std::string bytes;
};

/// Has all that it needs, so that another thread may run it.
class CheckJob {
 public:
  CheckJob() = default;
  explicit CheckJob(const std::vector<Documents>& mods);

  std::vector<CheckedFile> files;  ///< each once

  /// What is found in each file, in the order of the text; of a file in several mods, what is found
  /// in any of them.
  std::vector<check::Findings> Run(const check::Knowledge& knowledge) const;

 private:
  std::size_t Add(const DocumentRef& document);

  std::vector<std::vector<std::size_t>> mods_;  // by their places among the files
};

}  // namespace tessel::lsp
