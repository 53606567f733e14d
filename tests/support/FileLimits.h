// Limits under which a child process works (see ChildProcess.h).
#pragma once

#include <sys/resource.h>

#include <stdexcept>

#include "posix/Signals.h"

namespace tessel::test {

/// A writing beyond the limit fails as on a full disk, in the programs and in what tests them.
inline void LimitFileSize(rlim_t bytes) {
  posix::TakeSizeLimitsAsErrors();
  const rlimit limit{bytes, bytes};
  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("no limit");
}

/// Memory beyond the limit is not given.
inline void LimitMemory(rlim_t bytes) {
  const rlimit limit{bytes, bytes};
  if (::setrlimit(RLIMIT_AS, &limit) != 0) throw std::runtime_error("no limit");
}

}  // namespace tessel::test
