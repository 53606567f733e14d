// The comments of a text that switch rules off: "// check: off RULE...".
#pragma once

#include <string_view>
#include <vector>

#include "check/facts/FileFacts.h"

namespace tessel::check {

/// One rule named in such a comment, or the whole comment where it names none and means all.
struct Switch {
  bool off = true;  ///< else "on"
  Stretch rule;     ///< empty: all rules
  Stretch reach;    ///< of a comment behind something its line; else what follows it
};

/// In the order of the text. A comment that stands alone in its line holds from there on, up to the
/// end of the text; what comes later counts.
std::vector<Switch> SwitchesIn(const FileFacts& file);

}  // namespace tessel::check
