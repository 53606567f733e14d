// What a check knows, from where it is stored.
#pragma once

#include <string>
#include <vector>

#include "check/Check.h"

namespace tessel::cli {

struct StoredKnowledge {
  std::vector<ScriptWord> words;
  std::string olderTemplate, newerTemplate;  ///< empty where they cannot be read

  check::Knowledge AsKnowledge() const {
    return {.words = words, .olderTemplate = olderTemplate, .newerTemplate = newerTemplate};
  }
};

/// The words of that settings file, or of the user's own where none is named, and the templates. A
/// settings file that cannot be read is a RuntimeError.
StoredKnowledge ReadKnowledge(const std::string& store);

}  // namespace tessel::cli
