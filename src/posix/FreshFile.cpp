#include "posix/FreshFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace tessel::posix {
namespace {

constexpr std::size_t kDigits = 16;

bool Lock(int file) {
  return Retry([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0;
}

/// Has nobody taken it for abandoned in the moment before it was locked? Where files cannot be
/// locked, nobody takes any away.
bool IsOurs(int file) {
  if (!Lock(file) && errno == EWOULDBLOCK) return false;
  struct stat status {};
  return ::fstat(file, &status) == -1 || status.st_nlink != 0;
}

bool IsFreshName(std::string_view name, std::string_view prefix) {
  return name.size() == prefix.size() + kDigits && name.starts_with(prefix) &&
         name.find_first_not_of("0123456789abcdef", prefix.size()) == name.npos;
}

std::vector<std::string> FreshNames(int directory, std::string_view prefix) {
  std::vector<std::string> names;
  const int again =
      Retry([&] { return ::openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (again == -1) return names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(again), ::closedir);
  if (listing == nullptr) {
    ::close(again);
    return names;
  }
  while (const dirent* entry = ::readdir(listing.get())) {
    if (IsFreshName(entry->d_name, prefix)) names.emplace_back(entry->d_name);
  }
  return names;
}

/// Files get their times from a finer clock than time() reads, which may be a second behind; so the
/// time is looked at only where an age is asked for.
bool IsOld(const struct stat& status, std::chrono::seconds age) {
  return age.count() == 0 || std::time(nullptr) - status.st_mtim.tv_sec >= age.count();
}

bool IsAbandoned(int file, std::chrono::seconds age) {
  struct stat status {};
  if (::fstat(file, &status) == -1) return false;
  return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1 &&
         IsOld(status, age) && Lock(file);
}

/// Does the file system not know what was asked for?
bool IsUnknown(int problem) {
  return problem == EINVAL || problem == ENOSYS || problem == EOPNOTSUPP || problem == EPERM;
}

/// −1 with the reason in errno, as of rename.
int RenameToFreeName(int directory, const char* name, const char* target) {
  const int renamed = ::renameat2(directory, name, directory, target, RENAME_NOREPLACE);
  if (renamed == 0 || !IsUnknown(errno)) return renamed;
  if (::linkat(directory, name, directory, target, 0) == 0) {
    ::unlinkat(directory, name, 0);
    return 0;
  }
  if (!IsUnknown(errno)) return -1;
  struct stat status {};
  if (::fstatat(directory, target, &status, AT_SYMLINK_NOFOLLOW) == 0) {
    errno = EEXIST;
    return -1;
  }
  return ::renameat(directory, name, directory, target);
}

}  // namespace

FreshFile::FreshFile(int directory, const std::string& prefix, mode_t mode)
    : FreshFile(directory, Create(directory, prefix, mode)) {}

FreshFile::FreshFile(int directory, Created created)
    : directory_(directory),
      name_(std::move(created.name)),
      file_(created.number),
      lock_(::fcntl(created.number, F_DUPFD_CLOEXEC, 0)) {}

FreshFile::~FreshFile() {
  if (!placed_) ::unlinkat(directory_, name_.c_str(), 0);
}

FreshFile::Created FreshFile::Create(int directory, const std::string& prefix, mode_t mode) {
  std::random_device random;
  for (;;) {
    char digits[kDigits + 1];
    std::snprintf(digits, sizeof digits, "%08x%08x", random(), random());
    std::string name = prefix + digits;
    const int number = Retry([&] {
      return ::openat(directory, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                      mode);
    });
    if (number == -1 && errno == EEXIST) continue;
    if (number == -1) throw FileProblem(errno);
    if (IsOurs(number)) return {std::move(name), number};
    ::close(number);
  }
}

void FreshFile::TakePlaceOf(const std::string& target) {
  file_.Close();
  Checked([&] { return ::renameat(directory_, name_.c_str(), directory_, target.c_str()); });
  placed_ = true;
}

void FreshFile::TakeFreeName(const std::string& target) {
  file_.Close();
  Checked([&] { return RenameToFreeName(directory_, name_.c_str(), target.c_str()); });
  placed_ = true;
}

void RemoveAbandonedFiles(int directory, const std::string& prefix, std::chrono::seconds age) {
  for (const std::string& name : FreshNames(directory, prefix)) {
    const Descriptor file(Retry([&] {
      return ::openat(directory, name.c_str(),
                      O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    }));
    if (file.Number() != -1 && IsAbandoned(file.Number(), age)) {
      ::unlinkat(directory, name.c_str(), 0);
    }
  }
}

}  // namespace tessel::posix
