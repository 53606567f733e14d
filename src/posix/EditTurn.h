// One program after the other.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "posix/Posix.h"

namespace tessel::posix {

/// The turn to read a regular file, change its text and write it back: another program that asks
/// for its turn at the same file waits until this one is over, two seconds at most. A file that
/// cannot be locked, or is locked for longer, is none to wait for: who writes compares it with what
/// was found.
class EditTurn {
 public:
  explicit EditTurn(const std::string& path);

  /// The file as it was when the turn began; nothing where no regular file is.
  const std::optional<struct stat>& Found() const { return found_; }

 private:
  Descriptor lock_{-1};
  std::optional<struct stat> found_;
};

}  // namespace tessel::posix
