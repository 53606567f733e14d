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

/// True when what stands behind the change is read as before: the new text does not run into it, as
/// a "/" at its end does into a comment. The range begins outside of comments.
bool LeavesTheRest(std::string_view text, const Splice& splice);

}  // namespace tessel::cli
