// Changes at places of a text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "language/Range.h"

namespace tessel::cli {

/// New text for a range of the old one.
struct Splice {
  language::Range range;
  std::string text;
};

/// The text with all changes made. The ranges lie apart, in any order.
std::string Spliced(std::string_view text, std::vector<Splice> splices);

}  // namespace tessel::cli
