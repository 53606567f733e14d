#include "lsp/CheckThread.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace tessel::lsp {
namespace {

std::pair<posix::Descriptor, posix::Descriptor> MakePipe() {
  std::array<int, 2> ends{};
  posix::Checked([&] { return ::pipe2(ends.data(), O_CLOEXEC); });
  return {posix::Descriptor(ends[0]), posix::Descriptor(ends[1])};
}

}  // namespace

CheckThread::CheckThread(const check::Knowledge& knowledge)
    : knowledge_(knowledge), bell_(MakePipe()), thread_([this] { Run(); }) {}

CheckThread::~CheckThread() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void CheckThread::Begin(CheckJob job) {
  {
    const std::lock_guard lock(mutex_);
    next_ = std::move(job);
  }
  busy_ = true;
  changed_.notify_all();
}

void CheckThread::Run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return ends_ || next_; });
    if (ends_) return;
    CheckJob job = std::move(*next_);
    next_.reset();
    lock.unlock();
    std::vector<check::Findings> found = job.Run(knowledge_);
    lock.lock();
    finished_ = {std::move(job), std::move(found)};
    changed_.notify_all();
    [[maybe_unused]] const auto rung =
        posix::Retry([&] { return ::write(bell_.second.Number(), "!", 1); });
  }
}

FinishedCheck CheckThread::Take() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return finished_.has_value(); });
  char rung = 0;
  [[maybe_unused]] const auto read =
      posix::Retry([&] { return ::read(bell_.first.Number(), &rung, 1); });
  FinishedCheck finished = std::move(*finished_);
  finished_.reset();
  busy_ = false;
  return finished;
}

}  // namespace tessel::lsp
