// What hangs on a file besides its bytes, its owner and its permissions.
#pragma once

#include <string>

namespace tessel::posix {

/// Gives the open file `to` the access control list of the file at `from` (or none, where that has
/// none) and its extended attributes of the user. What the file systems do not know or the system
/// does not allow is left out: no text is kept from being saved for it.
void CopyAttributes(const std::string& from, int to);

}  // namespace tessel::posix
