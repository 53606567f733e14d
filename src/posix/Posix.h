// Checked system calls.
#pragma once

#include <sys/stat.h>

#include <cerrno>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace tessel::posix {

/// Why something could not be done with a file: what() is the reason alone, without the path.
class FileProblem : public std::runtime_error {
 public:
  explicit FileProblem(const std::string& reason) : std::runtime_error(reason) {}
  /// The reason of an errno value.
  explicit FileProblem(int code);

  /// The errno value; 0 when the system had no part in it.
  int Code() const { return code_; }

 private:
  int code_ = 0;
};

/// Repeats a system call for as long as signals interrupt it.
template <class Call>
auto Retry(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

/// The same, and a result of −1 is a FileProblem.
template <class Call>
auto Checked(Call call) {
  const auto result = Retry(call);
  if (result == -1) throw FileProblem(errno);
  return result;
}

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }

  int Number() const { return number_; }
  /// Closes it; what the system kept back until now may fail here: a FileProblem.
  void Close();

 private:
  int number_;
};

/// What stat says; nothing when it fails, with the reason in errno.
std::optional<struct stat> StatusOf(const std::string& path);
/// The same of a symbolic link itself.
std::optional<struct stat> StatusOfLink(const std::string& path);

bool IsSameFile(const struct stat& a, const struct stat& b);

/// What fstat says.
struct stat StatusOfOpen(int file);

/// A FileProblem unless it is a regular file.
void RefuseUnlessRegular(const struct stat& status);

/// From the start to the end, whatever size the file claims to have.
std::string ReadAll(int file);
void WriteAll(int file, std::string_view bytes);

/// Flushes the names in a directory that is open to be read, where its file system knows that.
void FlushNames(int directory);
/// The same of one that may be open to be reached only. Where it must not be listed, all that is
/// unflushed on the disk of `inside`, an open file in it, is flushed.
void FlushNames(int directory, int inside);

}  // namespace tessel::posix
