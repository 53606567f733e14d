// How long a text may be that is shown.
#pragma once

#include <cstddef>

namespace tessel {

/// Bytes of a text: the editor widget counts its own, up to three for each of these, in an int.
inline constexpr std::size_t kLongestShownText = std::size_t{512} << 20;

}  // namespace tessel
