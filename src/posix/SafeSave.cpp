#include "posix/SafeSave.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <exception>
#include <memory>
#include <string>

#include "posix/FileAttributes.h"
#include "posix/FreshFile.h"
#include "posix/Posix.h"
#include "posix/SharedFolder.h"

namespace tessel::posix {
namespace {

constexpr mode_t kPermissions = 07777;
constexpr mode_t kAnybodyWrites = S_IWUSR | S_IWGRP | S_IWOTH;

// The name's length does not depend on the target's, which may be as long as names can be.
constexpr const char* kFreshPrefix = ".tessel-";
// Where locks reach one machine only, another one may still be at work on a younger file.
constexpr std::chrono::hours kAbandonedAge{1};

using Status = std::optional<struct stat>;

bool DirectoryForbids(const FileProblem& problem) {
  return problem.Code() == EACCES || problem.Code() == EPERM || problem.Code() == EROFS;
}

/// In a directory such as /tmp only a file's owner may put another one in its place.
bool StickyDirectoryForbids(const SaveTarget& target, const struct stat& old) {
  const struct stat directory = StatusOfOpen(target.directory.Number());
  const uid_t user = ::geteuid();
  return (directory.st_mode & S_ISVTX) != 0 && user != 0 && user != directory.st_uid &&
         user != old.st_uid;
}

bool HasOtherNames(const struct stat& old) { return old.st_nlink > 1; }

void RefuseUnlessWritable(const SaveTarget& target, const struct stat& old) {
  RefuseUnlessRegular(old);
  if ((old.st_mode & kAnybodyWrites) == 0) throw FileProblem("the file is read-only");
  Checked([&] {
    return ::faccessat(target.directory.Number(), target.name.c_str(), W_OK, AT_EACCESS);
  });
  if (HasOtherNames(old) && IsSharedFolder(StatusOfOpen(target.directory.Number()))) {
    throw FileProblem("it has a second name, in a folder that everybody can write to");
  }
}

bool IsSameTime(const timespec& a, const timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool IsUnchanged(const struct stat& now, const struct stat& before) {
  return IsSameFile(now, before) && now.st_size == before.st_size &&
         IsSameTime(now.st_mtim, before.st_mtim) && IsSameTime(now.st_ctim, before.st_ctim);
}

void RefuseUnlessHolds(const SaveCondition& condition, const SaveTarget& target) {
  if (!condition.unchanged) return;
  const Status now = StatusOf(target);
  if (!now || !IsUnchanged(*now, *condition.unchanged)) {
    throw FileProblem("another program has changed it meanwhile");
  }
}

/// Only the superuser can give a file away, and a group only its members.
bool KeepsOwner(int file, const struct stat& old) {
  const struct stat fresh = StatusOfOpen(file);
  return (fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid) ||
         ::fchown(file, old.st_uid, old.st_gid) == 0;
}

/// True when the new file has all that the old one had besides its bytes.
bool TakesAfter(const FreshFile& fresh, const SaveTarget& target, const struct stat& old) {
  const std::string path =
      "/proc/self/fd/" + std::to_string(target.directory.Number()) + "/" + target.name;
  if (!CopyAttributes(path, fresh.Number()) || !KeepsOwner(fresh.Number(), old)) return false;
  Checked([&] { return ::fchmod(fresh.Number(), old.st_mode & kPermissions); });
  return true;
}

void FlushName(const FreshFile& placed, const SaveTarget& target) try {
  FlushNames(target.directory.Number(), placed.Held());
} catch (const FileProblem& problem) {
  throw FileProblem("the new text is in the file, but may not survive a power failure (" +
                    std::string(problem.what()) + ")");
}

[[noreturn]] void RefuseWhatIsThere() { throw FileProblem("it exists already"); }

void GiveName(FreshFile& fresh, const SaveTarget& target, const SaveCondition& condition) {
  if (!condition.isNew) return fresh.TakePlaceOf(target.name);
  try {
    fresh.TakeFreeName(target.name);
  } catch (const FileProblem& problem) {
    if (problem.Code() == EEXIST) RefuseWhatIsThere();
    throw;
  }
}

void Replace(FreshFile& fresh, const SaveTarget& target, std::string_view bytes,
             const SaveCondition& condition) {
  WriteAll(fresh.Number(), bytes);
  Checked([&] { return ::fsync(fresh.Number()); });
  RefuseUnlessHolds(condition, target);
  GiveName(fresh, target, condition);
  FlushName(fresh, target);
  RemoveAbandonedFiles(target.directory.Number(), kFreshPrefix, kAbandonedAge);
}

void ReserveRoom(int file, std::size_t oldSize, std::size_t newSize) {
  if (newSize <= oldSize) return;
  int problem = EINTR;
  while (problem == EINTR) problem = ::posix_fallocate(file, 0, static_cast<off_t>(newSize));
  if (problem == 0 || problem == EOPNOTSUPP || problem == EINVAL) return;
  // What was reserved before the room ran out hangs on the file's end.
  Checked([&] { return ::ftruncate(file, static_cast<off_t>(oldSize)); });
  throw FileProblem(problem);
}

void PutBytes(int file, std::string_view bytes) {
  Checked([&] { return ::lseek(file, 0, SEEK_SET); });
  WriteAll(file, bytes);
  Checked([&] { return ::ftruncate(file, static_cast<off_t>(bytes.size())); });
  Checked([&] { return ::fsync(file); });
}

void Keep(std::string_view old, const KeepOldBytes& keep) {
  const std::string only = "it can only be written in place, and ";
  if (!keep) throw FileProblem(only + "nothing keeps its old bytes");
  try {
    keep(old);
  } catch (const std::exception& problem) {
    throw FileProblem(only + "its old bytes cannot be kept first (" + problem.what() + ")");
  }
}

void OverwriteInPlace(const SaveTarget& target, std::string_view bytes, const KeepOldBytes& keep,
                      const SaveCondition& condition) {
  const Descriptor file(Checked([&] {
    return ::openat(target.directory.Number(), target.name.c_str(),
                    O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  }));
  const std::string old = ReadAll(file.Number());
  Keep(old, keep);
  RefuseUnlessHolds(condition, target);
  ReserveRoom(file.Number(), old.size(), bytes.size());
  try {
    PutBytes(file.Number(), bytes);
  } catch (const FileProblem&) {
    try {
      PutBytes(file.Number(), old);
    } catch (const FileProblem&) {
      // The first problem is the one to tell.
    }
    throw;
  }
}

/// Nothing when the directory does not allow new files and there is an old one to write into.
std::unique_ptr<FreshFile> CreateBeside(const SaveTarget& target, const Status& old) {
  // Until it has the old one's permissions, nobody else may look into the new file.
  constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
  constexpr mode_t kByUmask = 0666;
  if (old && StickyDirectoryForbids(target, *old)) return nullptr;
  try {
    return std::make_unique<FreshFile>(target.directory.Number(), kFreshPrefix,
                                       old ? kPrivate : kByUmask);
  } catch (const FileProblem& problem) {
    if (old && DirectoryForbids(problem)) return nullptr;
    throw;
  }
}

/// False when the old file is to be written into instead.
bool SaveBeside(const SaveTarget& target, const Status& old, std::string_view bytes,
                const SaveCondition& condition) {
  if (old && HasOtherNames(*old)) return false;
  const auto fresh = CreateBeside(target, old);
  if (!fresh || (old && !TakesAfter(*fresh, target, *old))) return false;
  Replace(*fresh, target, bytes, condition);
  return true;
}

}  // namespace

void SaveWhole(const SaveTarget& target, std::string_view bytes, const KeepOldBytes& keep,
               const SaveCondition& condition) {
  const Status old = StatusOf(target);
  if (!old && errno != ENOENT) throw FileProblem(errno);
  if (old) RefuseUnlessWritable(target, *old);
  if (old && condition.isNew) RefuseWhatIsThere();
  if (!SaveBeside(target, old, bytes, condition)) {
    OverwriteInPlace(target, bytes, keep, condition);
  }
}

}  // namespace tessel::posix
