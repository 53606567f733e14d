#include "safekeeping/RecoveryStore.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "safekeeping/RunMark.h"

namespace tessel {
namespace {

using posix::FileProblem;

constexpr const char* kLock = ".lock";
constexpr const char* kRunPrefix = "run-";
constexpr const char* kTextPrefix = "text-";

std::string NameOf(RecoveryStore::Id id) { return kTextPrefix + std::to_string(id); }

std::string NewRunName() {
  std::random_device random;
  char name[64];
  std::snprintf(name, sizeof name, "%s%ld-%08x%08x", kRunPrefix, static_cast<long>(::getpid()),
                random(), random());
  return name;
}

long long SecondsNow() {
  using namespace std::chrono;
  return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

/// Only asked for where no lock tells that the run lives; then its process number has to do.
void LeaveMark(const PrivateFolder& folder, const FolderLock& lock) try {
  if (lock.file == -1) return;
  posix::WriteAll(lock.file, MarkOfThisRun());
  if (lock.state != FolderLock::State::kUnknown) return;
  posix::Checked([&] { return ::fsync(lock.file); });
  folder.FlushNames();
} catch (const FileProblem&) {
}

/// 0 when the name holds none.
long ProcessIn(const std::string& path) {
  const std::size_t prefix = path.rfind(kRunPrefix);
  return prefix == path.npos
             ? 0
             : std::strtol(path.c_str() + prefix + std::string_view(kRunPrefix).size(), nullptr,
                           10);
}

/// Takes away a run's folder, unless it holds anything but its lock.
void RemoveEmptyRun(const std::string& path) try {
  {
    const PrivateFolder folder(path);
    if (!folder.Names().empty()) return;
    folder.RemoveLeftovers();
    folder.Remove(kLock);
  }
  ::rmdir(path.c_str());
} catch (const FileProblem&) {
}

/// Takes away the run folders that killed programs had not given their name yet. A young one may
/// belong to a program that is just starting.
void RemoveUnnamedRuns(const std::string& folder) {
  constexpr std::chrono::hours kStartingTime{1};
  const auto then = std::filesystem::file_time_type::clock::now() - kStartingTime;
  std::error_code problem;  // what cannot be cleared away stays
  std::filesystem::directory_iterator entry(folder, problem);
  for (; entry != std::filesystem::directory_iterator(); entry.increment(problem)) {
    const std::string name = entry->path().filename();
    if (!name.starts_with(std::string(".") + kRunPrefix) || entry->is_symlink(problem)) continue;
    const auto written = entry->last_write_time(problem);
    if (!problem && written < then) RemoveEmptyRun(entry->path());
  }
}

}  // namespace

// --- This run

RecoveryStore::RecoveryStore(std::string folder, std::chrono::milliseconds patience)
    : parent_(std::move(folder)), patience_(patience) {
  try {
    MakeFolder();
  } catch (const FileProblem& problem) {
    unusable_ = true;
    problem_ = problem.what();
  }
  try {
    worker_ = std::thread(&RecoveryStore::Work, this);
  } catch (const std::system_error& problem) {
    unusable_ = true;
    problem_ = FileProblem(problem.code().value()).what();
  }
}

// Nobody may find the folder and take it for abandoned before it is locked: it is hidden until
// then.
void RecoveryStore::MakeFolder() {
  const PrivateFolder all(parent_);
  const std::string name = NewRunName();
  const std::string hidden = "." + name;
  try {
    auto folder = std::make_unique<PrivateFolder>(parent_ + "/" + hidden);
    const FolderLock taken = folder->Lock(kLock);
    auto lock = std::make_unique<posix::Descriptor>(taken.file);
    LeaveMark(*folder, taken);
    all.Rename(hidden, name);
    folder_ = std::move(folder);
    lock_ = std::move(lock);
    path_ = parent_ + "/" + name;
  } catch (const FileProblem&) {
    RemoveEmptyRun(parent_ + "/" + hidden);
    throw;
  }
}

RecoveryStore::~RecoveryStore() {
  {
    const std::lock_guard guard(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  if (worker_.joinable()) worker_.join();
  if (folder_) RemoveEmptyRun(path_);
}

void RecoveryStore::Keep(Id id, std::string path, std::string bytes,
                         std::optional<std::uint64_t> base) {
  const std::size_t size = bytes.size();
  Order order{true, {std::move(path), SecondsNow(), size, false, base}, std::move(bytes)};
  if (KeepingLog* log = log_) order.logged = log->Taken();
  Give(id, std::move(order));
}

void RecoveryStore::Drop(Id id) { Give(id, {}); }

void RecoveryStore::DropReplaced(Id id, Id by) {
  Order order;
  order.after = by;
  Give(id, std::move(order));
}

// No memory is asked for under the lock: a host keeps its texts where an allocation fails.
void RecoveryStore::Give(Id id, Order&& order) {
  if (!worker_.joinable()) return;
  std::map<Id, Order> given;
  given.try_emplace(id, std::move(order));
  {
    const std::lock_guard guard(mutex_);
    again_.erase(id);
    orders_.erase(id);
    orders_.merge(given);
  }
  changed_.notify_all();
}

bool RecoveryStore::Flush() {
  if (!worker_.joinable()) return false;
  std::unique_lock guard(mutex_);
  changed_.wait(guard, [this] { return orders_.empty() && !working_; });
  return failing_.empty();
}

void RecoveryStore::Finish(const std::set<Id>& needed) {
  {
    const std::lock_guard guard(mutex_);
    again_.clear();
  }
  Flush();
  if (!folder_) return;
  try {
    std::set<std::string> staying;
    for (const Id id : needed) staying.insert(NameOf(id));
    for (const std::string& name : folder_->Names()) {
      if (!staying.contains(name)) folder_->Remove(name);
    }
  } catch (const FileProblem&) {
    // They are offered at the next start, which does no harm.
  }
}

std::optional<std::string> RecoveryStore::TakeProblem() {
  const std::lock_guard guard(mutex_);
  const bool failing = unusable_ || !failing_.empty();
  if (!failing || std::exchange(told_, true)) return std::nullopt;
  return std::move(problem_);
}

bool RecoveryStore::TakeLoss() {
  const std::lock_guard guard(mutex_);
  return std::exchange(lost_, false);
}

/// False when the program ends and nothing is left to do.
bool RecoveryStore::WaitForOrders(std::unique_lock<std::mutex>& guard) {
  const auto something = [this] { return ending_ || !orders_.empty(); };
  if (again_.empty()) {
    changed_.wait(guard, something);
  } else if (!changed_.wait_for(guard, patience_, something)) {
    orders_.merge(again_);
  }
  return !orders_.empty();
}

/// The first that need not wait for another one.
std::map<RecoveryStore::Id, RecoveryStore::Order>::iterator RecoveryStore::NextOrder() {
  return std::ranges::find_if(orders_, [this](const auto& entry) {
    const auto& after = entry.second.after;
    return !after || !(orders_.contains(*after) || again_.contains(*after));
  });
}

void RecoveryStore::Work() {
  std::unique_lock guard(mutex_);
  for (;;) {
    if (!WaitForOrders(guard)) {
      if (ending_) return;
      continue;
    }
    const auto next = NextOrder();
    if (next == orders_.end()) {  // all wait for one that failed
      again_.merge(orders_);
      changed_.notify_all();
      continue;
    }
    auto order = orders_.extract(next);
    working_ = true;
    guard.unlock();
    std::string problem = Carried(order.key(), order.mapped());
    guard.lock();
    working_ = false;
    Note(std::move(order), std::move(problem));
    changed_.notify_all();
  }
}

/// The problem, or nothing.
std::string RecoveryStore::Carried(Id id, const Order& order) try {
  Carry(id, order);
  return {};
} catch (const std::bad_alloc&) {
  return "no memory";  // short enough to need none
} catch (const std::exception& failure) {
  return failure.what();
}

void RecoveryStore::Note(std::map<Id, Order>::node_type order, std::string problem) {
  const Id id = order.key();
  if (problem.empty()) {
    unusable_ = false;
    failing_.erase(id);
    if (failing_.empty()) told_ = false;
    return;
  }
  problem_ = std::move(problem);
  if (!orders_.contains(id)) again_.insert(std::move(order));
  failing_.insert(id);
}

/// Somebody may have taken the folder away.
void RecoveryStore::UseFolder() {
  if (folder_ && folder_->IsAt(path_)) return;
  const bool hadTexts = folder_ != nullptr;
  MakeFolder();
  const std::lock_guard guard(mutex_);
  lost_ = lost_ || hadTexts;
}

void RecoveryStore::Carry(Id id, const Order& order) {
  UseFolder();
  if (!order.keep) return folder_->Remove(NameOf(id));
  WriteKeptText(*folder_, NameOf(id), order.text, order.bytes);
  if (KeepingLog* log = log_) log->Kept(order.logged);
}

// --- Runs that ended without asking

AbandonedTexts::AbandonedTexts(const std::string& folder, const OnDisk& onDisk) {
  try {
    AdoptAll(folder, onDisk);
  } catch (const FileProblem& problem) {
    problem_ = problem.what();
  }
  std::ranges::stable_sort(texts_, {}, &KeptText::seconds);
}

void AbandonedTexts::AdoptAll(const std::string& folder, const OnDisk& onDisk) {
  if (!posix::StatusOfLink(folder)) return;
  RemoveUnnamedRuns(folder);
  for (const std::string& name : PrivateFolder(folder).Names()) {
    const std::string path = std::string(folder).append("/").append(name);
    const auto status = posix::StatusOfLink(path);
    if (name.starts_with(kRunPrefix) && status && S_ISDIR(status->st_mode)) Adopt(path, onDisk);
  }
}

AbandonedTexts::~AbandonedTexts() {
  for (const Run& run : runs_) ::close(run.lock);
}

void AbandonedTexts::Adopt(const std::string& path, const OnDisk& onDisk) try {
  const PrivateFolder folder(path);
  const FolderLock lock = folder.Lock(kLock);
  if (lock.state == FolderLock::State::kTaken) return;  // its program lives
  runs_.push_back({path, lock.file, {}});
  if (lock.state == FolderLock::State::kUnknown && !IsEnded(folder, path)) return;
  for (const std::string& file : folder.Names()) {
    if (file.starts_with(kTextPrefix)) AdoptText(folder, file, runs_.back(), onDisk);
  }
  RemoveEmptyRun(path);
} catch (const FileProblem& problem) {
  problem_ = problem.what();
}

bool AbandonedTexts::IsEnded(const PrivateFolder& folder, const std::string& path) {
  const std::string mark = folder.Read(kLock);
  const RunState state = StateOfRun(ProcessIn(path), mark);
  if (state == RunState::kElsewhere) {
    problem_ = "it may be in use on the computer " + ComputerIn(mark);
  }
  return state == RunState::kEnded;
}

void AbandonedTexts::AdoptText(const PrivateFolder& folder, const std::string& file, Run& run,
                               const OnDisk& onDisk) try {
  const auto size = folder.SizeOf(file);
  if (!size) return;  // nothing that was written here
  KeptBytes text = ReadKeptText(folder, file);
  const bool empty = *size == 0;
  if (empty || (!text.damaged && !text.path.empty() && onDisk(text.path) == text.bytes)) {
    return folder.Remove(file);
  }
  run.files.push_back(file);
  texts_.push_back(std::move(text));
} catch (const FileProblem& problem) {
  problem_ = problem.what();
}

void AbandonedTexts::Discard() {
  for (Run& run : runs_) {
    try {
      const PrivateFolder folder(run.path);
      for (const std::string& file : run.files) folder.Remove(file);
    } catch (const FileProblem& problem) {
      problem_ = problem.what();  // they are offered again
    }
    run.files.clear();
    RemoveEmptyRun(run.path);
  }
  texts_.clear();
}

}  // namespace tessel
