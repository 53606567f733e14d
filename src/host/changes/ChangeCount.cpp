#include "host/changes/ChangeCount.h"

#include <algorithm>

#include "language/Definitions.h"
#include "text/LineEdits.h"
#include "text/LineEnds.h"

namespace tessel {

std::size_t ChangedLines(std::string_view before, std::string_view after) {
  std::size_t lines = 0;
  const LineEdits found = LineEditsBetween(LinesWithBreaks(before), LinesWithBreaks(after));
  for (const LineEdit& edit : found.edits) lines += std::max(edit.removed, edit.added);
  return lines;
}

std::optional<std::size_t> ChangedValues(std::string_view before, std::string_view after) {
  const auto definedBefore = language::Definitions(language::Script(before));
  const auto definedAfter = language::Definitions(language::Script(after));
  if (definedBefore.size() != definedAfter.size()) return std::nullopt;
  std::size_t values = 0;
  for (std::size_t i = 0; i < definedBefore.size(); ++i) {
    const auto& was = definedBefore[i];
    const auto& is = definedAfter[i];
    if (Slice(before, was.name) != Slice(after, is.name)) return std::nullopt;
    if (Slice(before, was.value) != Slice(after, is.value)) ++values;
  }
  return values;
}

}  // namespace tessel
