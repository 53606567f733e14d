#include "cli/Progress.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <string>

namespace tessel::cli {
namespace {

constexpr const char* kStartOfLine = "\r\x1b[K";

std::atomic<bool> lineStands = false;

// Not through std::cerr, which flushes std::cout first: another thread may be writing there.
void Put(const std::string& text) {
  [[maybe_unused]] const ssize_t shown = ::write(STDERR_FILENO, text.data(), text.size());
}

}  // namespace

Progress::Progress() {
  if (isatty(STDERR_FILENO) != 0) teller_ = std::thread([this] { Tell(); });
}

Progress::~Progress() {
  if (!teller_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  wake_.notify_one();
  teller_.join();
  HideProgress();
}

void Progress::Tell() {
  std::unique_lock lock(mutex_);
  for (int seconds = 1;; ++seconds) {
    if (wake_.wait_for(lock, std::chrono::seconds(1), [this] { return done_; })) return;
    Put(kStartOfLine + std::string("tessel: working, ") + std::to_string(seconds) + " s");
    lineStands = true;
  }
}

void HideProgress() {
  if (lineStands.exchange(false)) Put(kStartOfLine);
}

}  // namespace tessel::cli
