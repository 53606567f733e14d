#include "cli/Progress.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <iostream>
#include <string>

namespace tessel::cli {
namespace {

constexpr const char* kStartOfLine = "\r\x1b[K";

std::atomic<bool> lineStands = false;

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
    // One write, so that nothing else gets between.
    std::cerr << kStartOfLine + std::string("tessel: working, ") + std::to_string(seconds) + " s"
              << std::flush;
    lineStands = true;
  }
}

void HideProgress() {
  if (lineStands.exchange(false)) std::cerr << kStartOfLine << std::flush;
}

}  // namespace tessel::cli
