// Checks, one at a time, on a thread of their own.
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "lsp/features/CheckJob.h"
#include "posix/Posix.h"

namespace tessel::lsp {

struct FinishedCheck {
  CheckJob job;
  std::vector<check::Findings> found;
};

class CheckThread {
 public:
  /// The knowledge outlives it.
  explicit CheckThread(const check::Knowledge& knowledge);
  ~CheckThread();
  CheckThread(const CheckThread&) = delete;
  CheckThread& operator=(const CheckThread&) = delete;

  /// Whether one has begun that nobody has taken.
  bool IsBusy() const { return busy_; }
  void Begin(CheckJob job);
  /// Becomes readable when a check is finished.
  int Descriptor() const { return bell_.first.Number(); }
  /// Waits for the check that has begun, and takes it.
  FinishedCheck Take();

 private:
  void Run();

  check::Knowledge knowledge_;
  std::pair<posix::Descriptor, posix::Descriptor> bell_;
  bool busy_ = false;  // known to the caller's thread alone
  std::mutex mutex_;
  std::condition_variable changed_;
  bool ends_ = false;
  std::optional<CheckJob> next_;
  std::optional<FinishedCheck> finished_;
  std::thread thread_;
};

}  // namespace tessel::lsp
