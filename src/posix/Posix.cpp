#include "posix/Posix.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <system_error>

namespace tessel::posix {
namespace {

// One call transfers at most 2 GiB less a page, so that big files take several in any case.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;
constexpr std::size_t kReadAhead = std::size_t{1} << 16U;

/// In the language of the sentence around it: strerror follows the locale.
std::string ReasonOf(int code) {
  const char* const reason = ::strerrordesc_np(code);
  return reason != nullptr ? reason : std::generic_category().message(code);
}

}  // namespace

FileProblem::FileProblem(int code) : std::runtime_error(ReasonOf(code)), code_(code) {}

Descriptor::~Descriptor() {
  if (number_ != -1) ::close(number_);
}

void Descriptor::Close() {
  const int number = number_;
  number_ = -1;
  // The descriptor is gone also when a signal interrupted the call: no second try.
  if (::close(number) == -1 && errno != EINTR) throw FileProblem(errno);
}

std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == -1) return std::nullopt;
  return status;
}

std::optional<struct stat> StatusOfLink(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) == -1) return std::nullopt;
  return status;
}

bool IsSameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

struct stat StatusOfOpen(int file) {
  struct stat status {};
  Checked([&] { return ::fstat(file, &status); });
  return status;
}

void RefuseUnlessRegular(const struct stat& status) {
  if (S_ISDIR(status.st_mode)) throw FileProblem("it is a directory");
  if (!S_ISREG(status.st_mode)) throw FileProblem("it is not a regular file");
}

std::string ReadAll(int file) try {
  struct stat status {};
  Checked([&] { return ::fstat(file, &status); });
  std::string bytes;
  std::size_t length = 0;
  // One byte more than the size: the call that finds the end needs no second buffer.
  bytes.resize(static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)) + 1);
  for (;;) {
    if (length == bytes.size()) bytes.resize(bytes.size() + kReadAhead);
    const std::size_t room = std::min(bytes.size() - length, kMostAtOnce);
    const auto count = Checked(
        [&] { return ::pread(file, bytes.data() + length, room, static_cast<off_t>(length)); });
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  bytes.resize(length);
  return bytes;
} catch (const std::bad_alloc&) {
  throw FileProblem(ENOMEM);
} catch (const std::length_error&) {
  throw FileProblem(EFBIG);
}

void WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t count = std::min(bytes.size(), kMostAtOnce);
    const auto written = Checked([&] { return ::write(file, bytes.data(), count); });
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void FlushNames(int directory) {
  if (Retry([&] { return ::fsync(directory); }) == -1 && errno != EINVAL) throw FileProblem(errno);
}

void FlushNames(int directory, int inside) {
  const Descriptor again(
      Retry([&] { return ::openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (again.Number() != -1) return FlushNames(again.Number());
  Checked([&] { return ::syncfs(inside); });
}

}  // namespace tessel::posix
