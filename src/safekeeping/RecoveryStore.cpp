#include "safekeeping/RecoveryStore.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <utility>

namespace tessel {
namespace {

using posix::FileProblem;

constexpr const char* kRunsLock = ".lock";
constexpr const char* kOwnLock = ".lock";
constexpr const char* kRunPrefix = "run-";
constexpr const char* kTextPrefix = "text-";

std::string NameOf(RecoveryStore::Id id) { return kTextPrefix + std::to_string(id); }

long long SecondsNow() {
  using namespace std::chrono;
  return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

/// Takes away a run's folder with all it holds. What cannot be taken away stays.
void RemoveRun(const std::string& path) try {
  {
    const PrivateFolder folder(path);
    for (const std::string& name : folder.Names()) folder.Remove(name);
    folder.RemoveLeftovers();
    folder.Remove(kOwnLock);
  }
  ::rmdir(path.c_str());
} catch (const FileProblem&) {
}

/// The same, unless it holds anything but its lock.
void RemoveRunWithoutTexts(const std::string& path) try {
  if (PrivateFolder(path).Names().empty()) RemoveRun(path);
} catch (const FileProblem&) {
}

}  // namespace

// --- This run

RecoveryStore::RecoveryStore(std::string folder) : parent_(std::move(folder)) {
  try {
    MakeFolder();
    worker_ = std::thread(&RecoveryStore::Work, this);
  } catch (const std::exception& problem) {
    folder_.reset();
    problem_ = problem.what();
  }
}

void RecoveryStore::MakeFolder() {
  const PrivateFolder all(parent_);
  // Whoever looks for abandoned folders waits until this one is locked.
  const posix::Descriptor lock(all.Lock(kRunsLock, true));
  std::random_device random;
  char name[64];
  std::snprintf(name, sizeof name, "%s%ld-%08x%08x", kRunPrefix, static_cast<long>(::getpid()),
                random(), random());
  name_ = name;
  folder_.emplace(parent_ + "/" + name_);
  lock_ = folder_->Lock(kOwnLock, false);
}

RecoveryStore::~RecoveryStore() {
  if (!folder_) return;
  {
    const std::lock_guard guard(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  worker_.join();
  RemoveRunWithoutTexts(parent_ + "/" + name_);
  ::close(lock_);
}

void RecoveryStore::Keep(Id id, std::string path, std::string bytes) {
  if (!folder_) return;
  const std::size_t size = bytes.size();
  {
    const std::lock_guard guard(mutex_);
    orders_[id] = {true, {std::move(path), SecondsNow(), size}, std::move(bytes)};
  }
  changed_.notify_all();
}

void RecoveryStore::Drop(Id id) {
  if (!folder_) return;
  {
    const std::lock_guard guard(mutex_);
    orders_[id] = {};
  }
  changed_.notify_all();
}

bool RecoveryStore::Flush() {
  if (!folder_) return false;
  std::unique_lock guard(mutex_);
  changed_.wait(guard, [this] { return orders_.empty() && !working_; });
  return failing_.empty();
}

void RecoveryStore::Finish() {
  if (!folder_) return;
  Flush();
  try {
    for (const std::string& name : folder_->Names()) folder_->Remove(name);
  } catch (const FileProblem&) {
    // They are offered at the next start, which does no harm.
  }
}

std::optional<std::string> RecoveryStore::TakeProblem() {
  const std::lock_guard guard(mutex_);
  const bool failing = !folder_ || !failing_.empty();
  if (!failing || std::exchange(told_, true)) return std::nullopt;
  return problem_;
}

void RecoveryStore::Work() {
  std::unique_lock guard(mutex_);
  for (;;) {
    changed_.wait(guard, [this] { return ending_ || !orders_.empty(); });
    if (orders_.empty()) return;
    const auto order = orders_.extract(orders_.begin());
    working_ = true;
    guard.unlock();
    std::string problem;
    try {
      Carry(order.key(), order.mapped());
    } catch (const std::exception& failure) {
      problem = failure.what();
    }
    guard.lock();
    working_ = false;
    if (problem.empty()) {
      failing_.erase(order.key());
      if (failing_.empty()) told_ = false;
    } else {
      failing_.insert(order.key());
      problem_ = std::move(problem);
    }
    changed_.notify_all();
  }
}

void RecoveryStore::Carry(Id id, const Order& order) {
  if (!order.keep) return folder_->Remove(NameOf(id));
  folder_->Write(NameOf(id), HeadOfKeptText(order.text), order.bytes);
}

// --- Runs that ended without asking

AbandonedTexts::AbandonedTexts(const std::string& folder, const OnDisk& onDisk) try {
  if (!posix::StatusOf(folder)) return;
  const PrivateFolder all(folder);
  const posix::Descriptor lock(all.Lock(kRunsLock, true));
  for (const std::string& name : all.Names()) {
    if (name.starts_with(kRunPrefix)) Adopt(folder + "/" + name, onDisk);
  }
  std::ranges::stable_sort(texts_, {}, &Text::seconds);
} catch (const FileProblem&) {
  // Nothing can be offered.
}

AbandonedTexts::~AbandonedTexts() {
  for (const Run& run : runs_) ::close(run.lock);
}

void AbandonedTexts::Adopt(const std::string& path, const OnDisk& onDisk) try {
  const PrivateFolder folder(path);
  const int lock = folder.Lock(kOwnLock, false);
  if (lock == -1) return;  // its program lives
  runs_.push_back({path, lock});
  for (const std::string& file : folder.Names()) {
    const auto text = DescribeKeptText(folder, file);
    if (!text) continue;
    std::string bytes = ReadKeptText(folder, file);
    if (!text->path.empty() && onDisk(text->path) == bytes) {
      folder.Remove(file);
    } else {
      texts_.push_back({*text, std::move(bytes)});
    }
  }
  RemoveRunWithoutTexts(path);
} catch (const FileProblem&) {
  // A folder that cannot be read offers nothing and stays where it is.
}

void AbandonedTexts::Discard() {
  for (const Run& run : runs_) RemoveRun(run.path);
  texts_.clear();
}

}  // namespace tessel
