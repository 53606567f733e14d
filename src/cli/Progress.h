// A sign of life for work that takes a while.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace tessel::cli {

/// From its second second on, tells the time that has passed on standard error, where that is a
/// terminal; takes its line away at the end.
class Progress {
 public:
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

 private:
  void Tell();

  std::mutex mutex_;
  std::condition_variable wake_;
  bool done_ = false;
  std::thread teller_;
};

/// Takes the line away before something else is written there.
void HideProgress();

}  // namespace tessel::cli
