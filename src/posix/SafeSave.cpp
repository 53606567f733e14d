#include "posix/SafeSave.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <memory>

#include "posix/FileAttributes.h"
#include "posix/FreshFile.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"

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
bool StickyDirectoryForbids(const std::string& target, const struct stat& old) {
  const auto directory = StatusOf(DirectoryPart(target) + ".");
  const uid_t user = ::geteuid();
  return directory && (directory->st_mode & S_ISVTX) != 0 && user != 0 &&
         user != directory->st_uid && user != old.st_uid;
}

void RefuseUnlessWritable(const std::string& target, const struct stat& old) {
  RefuseUnlessRegular(old);
  if ((old.st_mode & kAnybodyWrites) == 0) throw FileProblem("the file is read-only");
  Checked([&] { return ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS); });
}

void KeepOwnerAndPermissions(int file, const struct stat& old) {
  // Only the superuser can give a file away; the group can be kept by its members.
  if (::fchown(file, old.st_uid, old.st_gid) == -1) {
    [[maybe_unused]] const int group = ::fchown(file, static_cast<uid_t>(-1), old.st_gid);
  }
  Checked([&] { return ::fchmod(file, old.st_mode & kPermissions); });
}

/// The directory that holds the file, opened to be listed and flushed; −1 when that is forbidden.
int OpenDirectoryOf(const std::string& target) {
  const std::string path = DirectoryPart(target);
  return Retry([&] {
    return ::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  });
}

void SyncDirectory(int directory) {
  // Some file systems know no flushing of directories.
  if (Retry([&] { return ::fsync(directory); }) == -1 && errno != EINVAL) {
    throw FileProblem("the new text is in the file, but may not survive a power failure (" +
                      std::string(FileProblem(errno).what()) + ")");
  }
}

void Replace(FreshFile& fresh, const std::string& target, const Status& old,
             std::string_view bytes) {
  if (old) {
    CopyAttributes(target, fresh.Number());
    KeepOwnerAndPermissions(fresh.Number(), *old);
  }
  WriteAll(fresh.Number(), bytes);
  Checked([&] { return ::fsync(fresh.Number()); });
  fresh.TakePlaceOf(target);
  const Descriptor directory(OpenDirectoryOf(target));
  if (directory.Number() == -1) return;
  SyncDirectory(directory.Number());
  RemoveAbandonedFiles(directory.Number(), kFreshPrefix, kAbandonedAge);
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

void OverwriteInPlace(const std::string& target, std::string_view bytes) {
  const Descriptor file(Checked([&] {
    return ::open(target.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  }));
  const std::string old = ReadAll(file.Number());
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
std::unique_ptr<FreshFile> CreateBeside(const std::string& target, const Status& old) {
  // Until it has the old one's permissions, nobody else may look into the new file.
  constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
  constexpr mode_t kByUmask = 0666;
  if (old && StickyDirectoryForbids(target, *old)) return nullptr;
  try {
    return std::make_unique<FreshFile>(AT_FDCWD, DirectoryPart(target) + kFreshPrefix,
                                       old ? kPrivate : kByUmask);
  } catch (const FileProblem& problem) {
    if (old && DirectoryForbids(problem)) return nullptr;
    throw;
  }
}

}  // namespace

void SaveWhole(const std::string& target, std::string_view bytes) {
  const Status old = StatusOf(target);
  if (!old && errno != ENOENT) throw FileProblem(errno);
  if (old) RefuseUnlessWritable(target, *old);
  if (const auto fresh = CreateBeside(target, old)) {
    Replace(*fresh, target, old, bytes);
  } else {
    OverwriteInPlace(target, bytes);
  }
}

}  // namespace tessel::posix
