// What the editor's keys mean.
#pragma once

#include <string_view>

namespace tessel {

/// The break that the Return key inserts into a text: the text's first one, else CR LF.
std::string_view LineEndOfReturn(std::string_view text);

}  // namespace tessel
