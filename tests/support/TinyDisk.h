// A disk that is really full.
#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <string>

namespace tessel::test {

/// Puts an empty disk of that many KiB in the directory's place, for this process alone: one of a
/// child (see ChildProcess.h). False when only the superuser could.
inline bool MountTinyDisk(const std::string& directory, int kibibytes) {
  const std::string options = "size=" + std::to_string(kibibytes) + "k,mode=755";
  return ::unshare(CLONE_NEWNS) == 0 &&
         ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("tmpfs", directory.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

}  // namespace tessel::test
