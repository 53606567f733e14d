// Saving that leaves the old bytes or the new ones.
#pragma once

#include <string>
#include <string_view>

namespace tessel::posix {

/// Gives the regular file at `target` (no symbolic link) new bytes, or makes it. A failure is a
/// FileProblem and leaves the old bytes.
///
/// The bytes go to a new file beside the old one, are flushed and then take the old one's place,
/// with its permissions and, where the system lets them, its owner, group, access control list and
/// extended attributes: a crash at any moment leaves the old bytes or the new ones. Only where the
/// directory forbids that, the file is written in place, with the room reserved first. A read-only
/// file is refused.
///
/// What a save that was killed has left in the same directory is taken away by a later one, after
/// an hour at the earliest.
void SaveWhole(const std::string& target, std::string_view bytes);

}  // namespace tessel::posix
