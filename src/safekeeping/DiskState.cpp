#include "safekeeping/DiskState.h"

#include <sys/stat.h>

#include "base/RuntimeError.h"
#include "base/ScopeGuard.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "safekeeping/Hash.h"
#include "services/Paths.h"

namespace tessel {
namespace {

constexpr long long kLargeFile = 8 << 20;

/// What is left when somebody gives a file other permissions, or one more name.
bool MayHoldTheSameBytes(DiskState before, const DiskState& now) {
  before.changed = now.changed;
  return before == now;
}

}  // namespace

DiskState DiskStateOf(const std::string& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return {};
  return {true,
          found.st_dev,
          found.st_ino,
          found.st_size,
          {found.st_mtim.tv_sec, found.st_mtim.tv_nsec},
          {found.st_ctim.tv_sec, found.st_ctim.tv_nsec}};
}

/// Says what is being done for as long as it lives, when it may take a while.
class GuardedFiles::LongWork {
 public:
  LongWork(const GuardedFiles& files, const char* what, const std::string& path, long long size)
      : tell_(size >= kLargeFile ? files.tellLongWork_ : nullptr) {
    if (tell_) tell_(what + NameOfPath(path, files.Separator()) + "...");
  }
  ~LongWork() {
    if (tell_) tell_("");
  }
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

 private:
  std::function<void(const std::string&)> tell_;
};

std::string GuardedFiles::PlaceOf(const std::string& path) const {
  const auto known = known_.find(path);
  return known == known_.end() ? posix::ResolveIgnoringCase(path) : known->second.place;
}

std::string GuardedFiles::Read(const std::string& path) {
  const std::string place = posix::ResolveIgnoringCase(path);
  const DiskState before = DiskStateOf(place);  // a change while reading is a change
  const LongWork work(*this, "Opening ", path, before.size);
  std::string bytes = files_.Read(place);
  known_[path] = {place, before, ContentHash(bytes)};
  return bytes;
}

void GuardedFiles::Write(const std::string& path, std::string_view bytes) {
  Put(path, PlaceOf(path), bytes);
}

void GuardedFiles::WriteAs(const std::string& path, std::string_view bytes) {
  Put(path, path, bytes);
}

void GuardedFiles::Put(const std::string& path, const std::string& place, std::string_view bytes) {
  const LongWork work(*this, "Saving ", path, std::ssize(bytes));
  const ScopeGuard ended([this] { asItBegan_ = {}; });
  asItBegan_.unchanged = posix::StatusOf(place);
  asItBegan_.isNew = !asItBegan_.unchanged;
  const auto known = known_.find(path);
  if (known != known_.end() && known->second.place == place) RefuseIfChanged(known->second, bytes);
  files_.WriteAs(place, bytes);
  known_[path] = {place, DiskStateOf(place), ContentHash(bytes)};
}

void GuardedFiles::RefuseIfChanged(FileRecord& record, std::string_view bytes) {
  if (!Changed(record) || !DiskStateOf(record.place).exists) return;
  if (files_.Read(record.place) == bytes) return;
  throw RuntimeError(NameOfPath(record.place, Separator()) +
                     " has not been saved: another program has changed the file since it was "
                     "opened. Choose Reload or Keep Mine above the text first.");
}

std::optional<FileRecord> GuardedFiles::Known(const std::string& path) const {
  const auto known = known_.find(path);
  return known == known_.end() ? std::nullopt : std::optional(known->second);
}

void GuardedFiles::SetAttributesNormal(const std::string& path) {
  const std::string place = PlaceOf(path);
  if (!posix::StatusOf(place)) return;  // a file of another spelling is none of ours
  const bool changed = ChangedByOthers(path);
  files_.SetAttributesNormal(place);
  const auto known = known_.find(path);
  if (!changed && known != known_.end()) known->second.state = DiskStateOf(known->second.place);
}

bool GuardedFiles::ChangedByOthers(const std::string& path) {
  const auto known = known_.find(path);
  return known != known_.end() && Changed(known->second);
}

bool GuardedFiles::Changed(FileRecord& record) {
  const DiskState now = DiskStateOf(record.place);
  if (record.state == now) return false;
  if (!MayHoldTheSameBytes(record.state, now) || !HasTheBytes(record)) return true;
  record.state = now;
  return false;
}

bool GuardedFiles::HasTheBytes(const FileRecord& record) try {
  return record.hash && ContentHash(files_.Read(record.place)) == *record.hash;
} catch (const RuntimeError&) {
  return false;
}

void GuardedFiles::Accept(const std::string& path) {
  const std::string place = PlaceOf(path);
  FileRecord& record = known_[path] = {place, DiskStateOf(place)};
  try {
    if (record.state.exists) record.hash = ContentHash(files_.Read(place));
  } catch (const RuntimeError&) {
  }
}

}  // namespace tessel
