// Saving that leaves the old bytes or the new ones.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "posix/SaveTarget.h"

namespace tessel::posix {

/// Keeps bytes that are about to be written over, and returns when they are on the disk. Any
/// exception says why they cannot be kept.
using KeepOldBytes = std::function<void(std::string_view bytes)>;

/// What has to hold at the last moment before the new bytes take their place.
struct SaveCondition {
  bool isNew = false;                         ///< nothing has the name yet
  std::optional<struct stat> unchanged = {};  ///< the file is still this one, not written to since
};

/// Gives a regular file new bytes, or makes it. A failure is a FileProblem and leaves the old
/// bytes; so does a condition that does not hold.
///
/// The bytes go to a new file beside the old one, are flushed and then take the old one's place,
/// with its owner, group, permissions and access control list, and with its extended attributes
/// where the system lets them: a crash at any moment leaves the old bytes or the new ones.
///
/// The file is written in place only where a new one cannot take all that along, where it has a
/// second name, or where the directory forbids new files. Then its old bytes are given to `keep`
/// first, and the room is reserved: a crash may leave a part of the new ones. Without `keep`, or
/// when that fails, nothing is written. A read-only file is refused; so is one with a second name
/// in a shared folder, where somebody else may have given it that.
///
/// What a save that was killed has left in the same directory is taken away by a later one, after
/// an hour at the earliest.
void SaveWhole(const SaveTarget& target, std::string_view bytes, const KeepOldBytes& keep,
               const SaveCondition& condition = {});

}  // namespace tessel::posix
