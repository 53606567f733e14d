// Folders such as /tmp.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

namespace tessel::posix {

/// True for a folder in which everybody makes files, and only a file's owner takes them away.
inline bool IsSharedFolder(const struct stat& folder) {
  return (folder.st_mode & S_ISVTX) != 0 && (folder.st_mode & S_IWOTH) != 0;
}

/// True when somebody else may have put the entry into such a folder for this user to meet. The
/// folder's owner could do worse.
inline bool MayBePlanted(const struct stat& folder, const struct stat& entry) {
  return IsSharedFolder(folder) && entry.st_uid != ::geteuid() && entry.st_uid != folder.st_uid;
}

}  // namespace tessel::posix
