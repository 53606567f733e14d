#include "safekeeping/BackupStore.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <utility>

#include "posix/PathResolution.h"
#include "safekeeping/Hash.h"
#include "services/Paths.h"

namespace tessel {
namespace {

using posix::FileProblem;

// A name is "<hash of the path>-<nanoseconds since 1970>-<random number>", all of fixed width:
// names of one file sort by time.
constexpr std::size_t kHashDigits = 16;
constexpr std::size_t kTimeDigits = 20;
constexpr std::size_t kNameLength = kHashDigits + 1 + kTimeDigits + 1 + 8;

std::string HashDigits(std::string_view path) {
  char digits[kHashDigits + 1];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(HashOf(path)));
  return digits;
}

std::string TimeIn(const std::string& name) { return name.substr(kHashDigits + 1, kTimeDigits); }

bool IsBackupName(std::string_view name) {
  return name.size() == kNameLength && name[kHashDigits] == '-' &&
         name.find_first_not_of("0123456789abcdef-") == name.npos;
}

std::vector<std::string> BackupNames(const PrivateFolder& folder) {
  std::vector<std::string> names = folder.Names();
  std::erase_if(names, [](const std::string& name) { return !IsBackupName(name); });
  return names;
}

long long NanosecondsNow() {
  using namespace std::chrono;
  return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

/// Behind all names that exist, also when the clock has been put back: what is thrown away first is
/// the oldest.
std::string NextName(const std::vector<std::string>& names, const std::string& hash) {
  constexpr long long kLast = std::numeric_limits<long long>::max();
  long long time = NanosecondsNow();
  for (const std::string& name : names) {
    const long long taken = std::strtoll(TimeIn(name).c_str(), nullptr, 10);
    time = std::max(time, std::min(taken, kLast - 1) + 1);
  }
  char rest[kTimeDigits + 16];
  std::snprintf(rest, sizeof rest, "-%020lld-%08x", time, std::random_device()());
  return hash + rest;
}

bool Belongs(const PrivateFolder& folder, const std::string& name, const std::string& path) {
  const auto text = DescribeKeptText(folder, name);
  return text && text->path == path;
}

/// The newest backup of the file if it holds these bytes, as it does after a save that was killed;
/// else an empty name.
std::string NewestWith(const PrivateFolder& folder, const std::vector<std::string>& names,
                       const std::string& hash, const std::string& path,
                       std::string_view bytes) try {
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (!name->starts_with(hash) || !Belongs(folder, *name, path)) continue;
    const KeptBytes newest = ReadKeptText(folder, *name);
    return !newest.damaged && newest.bytes == bytes ? *name : std::string();
  }
  return {};
} catch (const FileProblem&) {  // gone meanwhile
  return {};
}

}  // namespace

BackupStore::BackupStore(std::string folder, BackupLimits limits)
    : folder_(std::move(folder)), limits_(limits) {}

void BackupStore::Keep(const std::string& path, std::string_view bytes) {
  if (bytes.size() > limits_.totalBytes) {
    throw FileProblem("it is larger than all backups together may be");
  }
  const PrivateFolder folder(folder_);
  folder.RemoveLeftovers();
  const std::string hash = HashDigits(path);
  const std::vector<std::string> names = BackupNames(folder);
  std::string name = NewestWith(folder, names, hash, path, bytes);
  if (name.empty()) {
    name = NextName(names, hash);
    WriteKeptText(folder, name, {path, NanosecondsNow() / 1'000'000'000, bytes.size()}, bytes);
  } else {
    folder.FlushNames();  // the killed save may not have come that far
  }
  Prune(folder, name);
}

void BackupStore::Prune(const PrivateFolder& folder, const std::string& newest) const {
  std::vector<std::string> names = BackupNames(folder);
  const std::string path = DescribeKeptText(folder, newest).value_or(KeptText{}).path;
  std::size_t ofThisFile = 0;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (!name->starts_with(newest.substr(0, kHashDigits))) continue;
    if (!Belongs(folder, *name, path) || ++ofThisFile <= limits_.perFile) continue;
    folder.Remove(*name);
    name->clear();
  }
  std::erase(names, "");
  std::ranges::sort(names, {}, TimeIn);
  std::size_t total = 0;
  for (const std::string& name : names) total += folder.SizeOf(name).value_or(0);
  for (const std::string& name : names) {
    if (total <= limits_.totalBytes) break;
    if (name == newest) continue;
    total -= folder.SizeOf(name).value_or(0);
    folder.Remove(name);
  }
}

std::vector<Backup> BackupStore::List() const {
  if (!posix::StatusOf(folder_)) return {};
  const PrivateFolder folder(folder_);
  std::vector<std::string> names = BackupNames(folder);
  std::ranges::sort(names, std::ranges::greater{}, TimeIn);
  std::vector<Backup> backups;
  for (const std::string& name : names) {
    if (auto text = DescribeKeptText(folder, name)) backups.push_back({std::move(*text), name});
  }
  return backups;
}

KeptBytes BackupStore::Read(const Backup& backup) const {
  return ReadKeptText(PrivateFolder(folder_), backup.name);
}

std::string PathOfFile(const std::string& path) {
  const std::string resolved = posix::ResolveIgnoringCase(path);
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(resolved.c_str(), nullptr),
                                                    std::free);
  return real == nullptr ? resolved : std::string(real.get());
}

std::function<void(const std::string& path, std::string_view bytes)> KeepAsBackups(
    std::string folder) {
  return [folder = std::move(folder)](const std::string& path, std::string_view bytes) {
    BackupStore(folder).Keep(PathOfFile(path), bytes);
  };
}

std::string DefaultBackupFolder() { return DefaultStateFolder() + "/backups"; }

void BackupFiles::Write(const std::string& path, std::string_view bytes) {
  if (FileExists(files_, path)) KeepOldBytes(path, bytes);
  files_.Write(path, bytes);
}

void BackupFiles::WriteAs(const std::string& path, std::string_view bytes) {
  if (posix::StatusOf(path)) KeepOldBytes(path, bytes);
  files_.WriteAs(path, bytes);
}

void BackupFiles::KeepOldBytes(const std::string& path, std::string_view replacement) try {
  const std::string old = files_.Read(path);
  if (old == replacement) return;
  backups_.Keep(PathOfFile(path), old);
  told_ = false;
} catch (const std::exception& problem) {  // also when there is no memory for it
  if (std::exchange(told_, true) || !tell_) return;
  tell_("No backup of the old " + NameOfPath(path, Separator()) + " was kept: " + problem.what());
}

}  // namespace tessel
