#include "posix/EditTurn.h"

#include <fcntl.h>
#include <sys/file.h>

#include <chrono>
#include <thread>

namespace tessel::posix {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{2};
constexpr std::chrono::milliseconds kPause{10};

bool IsRegular(const std::optional<struct stat>& status) {
  return status && S_ISREG(status->st_mode);
}

void WaitForLock(int file, Clock::time_point end) {
  while (::flock(file, LOCK_EX | LOCK_NB) == -1) {
    const bool mayComeFree = errno == EWOULDBLOCK || errno == EINTR;
    if (!mayComeFree || Clock::now() > end) return;
    std::this_thread::sleep_for(kPause);
  }
}

bool IsTheFileOf(int file, const std::optional<struct stat>& status) {
  struct stat open {};
  return ::fstat(file, &open) == 0 && status && IsSameFile(open, *status);
}

}  // namespace

// Who had the turn before may have put another file in the place of the one that is locked now.
EditTurn::EditTurn(const std::string& path) {
  const auto end = Clock::now() + kPatience;
  for (;;) {
    if (!IsRegular(StatusOf(path))) return;
    lock_ = Descriptor(
        Retry([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    if (lock_.Number() != -1) WaitForLock(lock_.Number(), end);
    found_ = StatusOf(path);
    if (lock_.Number() == -1 || IsTheFileOf(lock_.Number(), found_) || Clock::now() > end) return;
  }
}

}  // namespace tessel::posix
