#include "cli/files/Splices.h"

#include <algorithm>

namespace tessel::cli {

std::string Spliced(std::string_view text, std::vector<Splice> splices) {
  std::ranges::sort(splices, {}, [](const Splice& splice) { return splice.range.begin; });
  std::size_t inserted = 0;
  for (const Splice& splice : splices) inserted += splice.text.size();
  std::string result;
  result.reserve(text.size() + inserted);
  Position from = 0;
  for (const Splice& splice : splices) {
    result += language::Slice(text, {from, splice.range.begin});
    result += splice.text;
    from = splice.range.end;
  }
  result += language::Slice(text, {from, std::ssize(text)});
  return result;
}

}  // namespace tessel::cli
