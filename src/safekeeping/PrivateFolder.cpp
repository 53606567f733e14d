#include "safekeeping/PrivateFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

#include "platform/PathResolution.h"
#include "platform/ScopeGuard.h"

namespace tessel {
namespace {

using namespace posix;

constexpr mode_t kOwnerOnly = S_IRWXU;
constexpr mode_t kOwnersFile = S_IRUSR | S_IWUSR;
constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
constexpr const char* kLeftover = ".new-";
constexpr std::string_view kMagic = "ZanthMan text 1\n";
constexpr std::size_t kLongestHead = 1U << 16U;

void MakeDirectories(const std::string& path) {
  for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const std::string part = path.substr(0, end);
    if (::mkdir(part.c_str(), kOwnerOnly) == -1) {
      const FileProblem problem(errno);
      if (!StatusOf(part)) throw problem;
    }
    if (end == path.npos) return;
  }
}

int OpenDirectory(const std::string& path) {
  MakeDirectories(path);
  return Checked(
      [&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
}

std::string FreshName() {
  std::random_device random;
  char name[32];
  std::snprintf(name, sizeof name, "%s%08x%08x", kLeftover, random(), random());
  return name;
}

/// Takes a number and the character behind it off the front.
std::optional<unsigned long long> TakeNumber(std::string_view& text, char behind) {
  unsigned long long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const auto used = static_cast<std::size_t>(end - text.data());
  if (error != std::errc() || used == text.size() || *end != behind) return std::nullopt;
  text.remove_prefix(used + 1);
  return number;
}

struct ParsedHead {
  KeptText text;
  std::size_t length = 0;
};

std::optional<ParsedHead> ParseHead(std::string_view head) {
  std::string_view rest = head;
  if (!rest.starts_with(kMagic)) return std::nullopt;
  rest.remove_prefix(kMagic.size());
  const auto seconds = TakeNumber(rest, ' ');
  const auto pathLength = seconds ? TakeNumber(rest, ' ') : std::nullopt;
  const auto size = pathLength ? TakeNumber(rest, '\n') : std::nullopt;
  if (!size || *pathLength > rest.size()) return std::nullopt;
  const auto length = static_cast<std::size_t>(*pathLength);
  return ParsedHead{{std::string(rest.substr(0, length)), static_cast<long long>(*seconds),
                     static_cast<std::size_t>(*size)},
                    head.size() - rest.size() + length};
}

}  // namespace

std::string DefaultStateFolder() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && *state == '/') return std::string(state) + "/ZanthMan";
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "." : home) + "/.local/state/ZanthMan";
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
  const std::string fresh = FreshName();
  Descriptor file(Checked([&] {
    return ::openat(folder, fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                    kOwnersFile);
  }));
  bool placed = false;
  const ScopeGuard clear([&] {
    if (!placed) ::unlinkat(folder, fresh.c_str(), 0);
  });
  WriteAll(file.Number(), head);
  WriteAll(file.Number(), bytes);
  Checked([&] { return ::fsync(file.Number()); });
  file.Close();
  Checked([&] { return ::renameat(folder, fresh.c_str(), folder, name.c_str()); });
  placed = true;
  // Some file systems know no flushing of directories.
  if (Retry([&] { return ::fsync(folder); }) == -1 && errno != EINVAL) throw FileProblem(errno);
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

void PrivateFolder::Remove(const std::string& name) const {
  if (::unlinkat(directory_.Number(), name.c_str(), 0) == -1 && errno != ENOENT) {
    throw FileProblem(errno);
  }
}

std::vector<std::string> PrivateFolder::AllNames() const {
  std::vector<std::string> names;
  const int again = Checked(
      [&] { return ::openat(directory_.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(again), ::closedir);
  if (listing == nullptr) throw FileProblem(errno);
  while (const dirent* entry = ::readdir(listing.get())) names.emplace_back(entry->d_name);
  std::ranges::sort(names);
  return names;
}

std::vector<std::string> PrivateFolder::Names() const {
  std::vector<std::string> names = AllNames();
  std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
  return names;
}

void PrivateFolder::RemoveLeftovers() const {
  for (const std::string& name : AllNames()) {
    if (name.starts_with(kLeftover)) Remove(name);
  }
}

int PrivateFolder::Lock(const std::string& name, bool wait) const {
  const int file = Checked([&] {
    return ::openat(directory_.Number(), name.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                    kOwnersFile);
  });
  if (Retry([&] { return ::flock(file, wait ? LOCK_EX : LOCK_EX | LOCK_NB); }) == 0) return file;
  const int problem = errno;
  ::close(file);
  if (problem == EWOULDBLOCK) return -1;
  throw FileProblem(problem);
}

std::string HeadOfKeptText(const KeptText& text) {
  return std::string(kMagic) + std::to_string(text.seconds) + ' ' +
         std::to_string(text.path.size()) + ' ' + std::to_string(text.size) + '\n' + text.path;
}

std::optional<KeptText> DescribeKeptText(const PrivateFolder& folder, const std::string& name) try {
  const auto size = folder.SizeOf(name);
  if (!size) return std::nullopt;
  const auto head = ParseHead(folder.ReadHead(name, std::min(*size, kLongestHead)));
  if (!head || head->length + head->text.size != *size) return std::nullopt;
  return head->text;
} catch (const FileProblem&) {  // gone meanwhile, or not to be read
  return std::nullopt;
}

std::string ReadKeptText(const PrivateFolder& folder, const std::string& name) {
  std::string all = folder.Read(name);
  const auto head = ParseHead(all);
  if (!head || head->length + head->text.size != all.size()) {
    throw FileProblem("the file is damaged");
  }
  return all.substr(head->length);
}

}  // namespace tessel
