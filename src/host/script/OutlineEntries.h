// What an outline lists of a script.
#pragma once

#include <string>
#include <vector>

#include "language/Structure.h"

namespace tessel {

struct OutlineEntry {
  language::Keyword keyword = language::Keyword::kDefine;
  Position begin = 0;    ///< of its statement
  language::Range name;  ///< what to select
  std::string text;      ///< its name or number, and what it is or is called, as one line

  friend bool operator==(const OutlineEntry&, const OutlineEntry&) = default;
};

/// In the order of the text.
std::vector<OutlineEntry> OutlineOf(const language::Script& script,
                                    const std::vector<language::Symbol>& symbols);

}  // namespace tessel
