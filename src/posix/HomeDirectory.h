// Where the user's own files are.
#pragma once

#include <string>

namespace tessel::posix {

/// $HOME, or where that is unset or no whole path, the home of the user's account; never the
/// working directory. Without a separator at its end; empty when there is none.
std::string HomeDirectory();

}  // namespace tessel::posix
