// Limits under which a child process works (see ChildProcess.h).
#pragma once

#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

namespace tessel::test {

/// A writing beyond the limit fails as on a full disk.
inline void LimitFileSize(rlim_t bytes) {
  ::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("no limit");
}

/// Memory beyond the limit is not given.
inline void LimitMemory(rlim_t bytes) {
  const rlimit limit{bytes, bytes};
  if (::setrlimit(RLIMIT_AS, &limit) != 0) throw std::runtime_error("no limit");
}

}  // namespace tessel::test
