// What hangs on a file besides its bytes, its owner and its permissions.
#pragma once

#include <string>

namespace tessel::posix {

/// Gives the open file `to` the access control list of the file at `from` (or none, where that has
/// none) and its extended attributes of the user; a symbolic link is not followed. False when the
/// list cannot be kept. An attribute of the user that the system does not allow is left out: no
/// text is kept from being saved for it.
bool CopyAttributes(const std::string& from, int to);

}  // namespace tessel::posix
