// What a check finds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "language/Range.h"

namespace tessel::check {

struct Rule;

enum class Severity : std::uint8_t { kNote, kWarning, kError };

/// "note", "warning", "error".
constexpr const char* NameOf(Severity severity) {
  switch (severity) {
    case Severity::kNote:
      return "note";
    case Severity::kWarning:
      return "warning";
    case Severity::kError:
      return "error";
  }
  return "";
}

/// New bytes for a range of the old ones.
struct Replacement {
  language::Range range;
  std::string text;
};

/// A change that removes the finding; given where there is only one.
struct Fix {
  std::string what;                ///< such as "take the line out"
  std::vector<Replacement> edits;  ///< in the finding's file; they lie apart, in order
};

struct Finding {
  std::size_t file = 0;  ///< index among the sources
  language::Range range;
  std::string text;  ///< a sentence in UTF-8, without its full stop
  std::optional<Fix> fix = {};
  const Rule* rule = nullptr;  ///< never null in what a check returns
};

using Findings = std::vector<Finding>;

}  // namespace tessel::check
