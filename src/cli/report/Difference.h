// What a change changes, line by line.
#pragma once

#include <string>
#include <string_view>

namespace tessel::cli {

/// The unified difference from `before` to `after`, with three lines around each change, as patch
/// reads it: byte for byte, with the CR of a line's end. Empty when nothing differs. Lines end with
/// LF; a last line without one is followed by the usual remark.
std::string UnifiedDifference(std::string_view before, std::string_view after,
                              const std::string& name);

/// The same for a terminal: what is removed red, what is added green, control characters harmless.
std::string InColours(std::string_view difference);

}  // namespace tessel::cli
