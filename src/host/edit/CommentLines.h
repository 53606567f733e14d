// Whole lines as comments.
#pragma once

#include <string>
#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

/// Other text for whole lines.
struct LinesReplaced {
  Position start = 0;   ///< of the first line
  Position length = 0;  ///< up to the end of the last one, without its break
  std::string text;
};

/// Puts "// " in front of what the lines of a selection hold, or takes it away when all of them
/// have it. Blank lines stay as they are. A selection that ends at the start of a line leaves that
/// line out. CR, LF and CR LF each end a line.
LinesReplaced ToggleComments(std::string_view text, Position start, Position length);

}  // namespace tessel
