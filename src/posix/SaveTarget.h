// Where a save goes.
#pragma once

#include <optional>
#include <string>

#include "posix/Posix.h"

namespace tessel::posix {

/// A file by the folder that it is in, held open, and its name there: nobody can lead a save
/// elsewhere any more.
struct SaveTarget {
  Descriptor directory;  ///< only to reach what is in it
  std::string name;      ///< no symbolic link's
};

/// Where the path leads in the end, symbolic links followed, also when nothing is there. Errors are
/// FileProblems: links that lead in a circle, and a link that somebody else may have planted in a
/// shared folder (see SharedFolder.h), whether or not the system follows such ones.
SaveTarget FindSaveTarget(std::string path);

/// A FileProblem for something that somebody else may have planted there.
void RefusePlanted(const SaveTarget& target);

/// What stat says of the target; nothing when it fails, with the reason in errno.
std::optional<struct stat> StatusOf(const SaveTarget& target);

}  // namespace tessel::posix
