#include <utility>

#include "cli/Subcommands.h"
#include "cli/check/StoredKnowledge.h"
#include "lsp/Loop.h"

namespace tessel::cli {

bool ServeLanguage(const ServerArguments& arguments) {
  StoredKnowledge stored = ReadKnowledge(arguments.store);
  return lsp::RunServer({.words = std::move(stored.words),
                         .olderTemplate = std::move(stored.olderTemplate),
                         .newerTemplate = std::move(stored.newerTemplate),
                         .version = TESSEL_VERSION}) == 0;
}

}  // namespace tessel::cli
