#include "safekeeping/PrivateFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>

#include "posix/FreshFile.h"
#include "posix/HomeDirectory.h"

namespace tessel {
namespace {

using namespace posix;

constexpr mode_t kOwnerOnly = S_IRWXU;
constexpr mode_t kOwnersFile = S_IRUSR | S_IWUSR;
constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
constexpr const char* kLeftover = ".new-";

void FlushNameOf(const std::string& directory) {
  const Descriptor made(
      Checked([&] { return ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  const std::string parent = directory.substr(0, directory.rfind('/'));
  const Descriptor around(
      Checked([&] { return ::open((parent + "/").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
  posix::FlushNames(around.Number(), made.Number());
}

void MakeDirectories(const std::string& path) {
  for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const std::string part = path.substr(0, end);
    if (::mkdir(part.c_str(), kOwnerOnly) == 0) {
      FlushNameOf(part);
    } else {
      const FileProblem problem(errno);
      if (!StatusOf(part)) throw problem;
    }
    if (end == path.npos) return;
  }
}

/// The folder that this one is in is the program's own as well.
void RefuseIfInLinkedFolder(const std::string& path) {
  const auto status = StatusOfLink(path.substr(0, path.rfind('/')));
  if (status && S_ISLNK(status->st_mode)) {
    throw FileProblem("the folder that it is in is a symbolic link");
  }
}

/// As network folders do whose server has no lock service.
bool KnowsNoLocks(int problem) {
  return problem == ENOLCK || problem == EOPNOTSUPP || problem == ENOSYS;
}

int OpenDirectory(const std::string& path) {
  RefuseIfInLinkedFolder(path);
  MakeDirectories(path);
  return Checked(
      [&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
}

}  // namespace

std::string DefaultStateFolder() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && *state == '/') return std::string(state) + "/ZanthMan";
  return HomeDirectory() + "/.local/state/ZanthMan";
}

PrivateFolder::PrivateFolder(const std::string& path) : directory_(OpenDirectory(path)) {
  struct stat status {};
  Checked([&] { return ::fstat(directory_.Number(), &status); });
  if (status.st_uid != ::geteuid()) throw FileProblem("the folder belongs to somebody else");
  if ((status.st_mode & kOthers) != 0) {
    Checked([&] { return ::fchmod(directory_.Number(), kOwnerOnly); });
  }
}

void PrivateFolder::Write(const std::string& name, std::string_view head,
                          std::string_view bytes) const {
  const int folder = directory_.Number();
  FreshFile file(folder, kLeftover, kOwnersFile);
  WriteAll(file.Number(), head);
  WriteAll(file.Number(), bytes);
  Checked([&] { return ::fsync(file.Number()); });
  file.TakePlaceOf(name);
  FlushNames();
}

int PrivateFolder::OpenToRead(const std::string& name) const {
  return Checked([&] {
    return ::openat(directory_.Number(), name.c_str(),
                    O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  });
}

std::string PrivateFolder::Read(const std::string& name) const {
  const Descriptor file(OpenToRead(name));
  struct stat status {};
  Checked([&] { return ::fstat(file.Number(), &status); });
  RefuseUnlessRegular(status);
  return ReadAll(file.Number());
}

std::string PrivateFolder::ReadHead(const std::string& name, std::size_t length) const {
  const Descriptor file(OpenToRead(name));
  std::string head(length, '\0');
  std::size_t got = 0;
  while (got < length) {
    const auto count = Checked([&] {
      return ::pread(file.Number(), head.data() + got, length - got, static_cast<off_t>(got));
    });
    if (count == 0) break;
    got += static_cast<std::size_t>(count);
  }
  head.resize(got);
  return head;
}

std::optional<std::size_t> PrivateFolder::SizeOf(const std::string& name) const {
  struct stat status {};
  if (::fstatat(directory_.Number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == -1 ||
      !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(status.st_size);
}

long long PrivateFolder::SecondsOf(const std::string& name) const {
  struct stat status {};
  ::fstatat(directory_.Number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
  return status.st_mtim.tv_sec;
}

void PrivateFolder::Remove(const std::string& name) const {
  if (::unlinkat(directory_.Number(), name.c_str(), 0) == -1 && errno != ENOENT) {
    throw FileProblem(errno);
  }
}

std::vector<std::string> PrivateFolder::Names() const {
  std::vector<std::string> names;
  const int again = Checked(
      [&] { return ::openat(directory_.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(again), ::closedir);
  if (listing == nullptr) throw FileProblem(errno);
  while (const dirent* entry = ::readdir(listing.get())) names.emplace_back(entry->d_name);
  std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
  std::ranges::sort(names);
  return names;
}

void PrivateFolder::RemoveLeftovers() const {
  RemoveAbandonedFiles(directory_.Number(), kLeftover, std::chrono::seconds(0));
}

void PrivateFolder::Rename(const std::string& from, const std::string& to) const {
  const int folder = directory_.Number();
  Checked([&] { return ::renameat(folder, from.c_str(), folder, to.c_str()); });
  FlushNames();
}

void PrivateFolder::FlushNames() const { posix::FlushNames(directory_.Number()); }

bool PrivateFolder::IsAt(const std::string& path) const {
  struct stat here {};
  const auto there = StatusOfLink(path);
  return there && ::fstat(directory_.Number(), &here) == 0 && there->st_dev == here.st_dev &&
         there->st_ino == here.st_ino;
}

FolderLock PrivateFolder::Lock(const std::string& name) const {
  const int file = Checked([&] {
    return ::openat(directory_.Number(), name.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                    kOwnersFile);
  });
  if (Retry([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0) {
    return {FolderLock::State::kOurs, file};
  }
  const int problem = errno;
  if (KnowsNoLocks(problem)) return {FolderLock::State::kUnknown, file};
  ::close(file);
  if (problem == EWOULDBLOCK) return {FolderLock::State::kTaken, -1};
  throw FileProblem(problem);
}

}  // namespace tessel
