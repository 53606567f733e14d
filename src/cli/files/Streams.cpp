#include "cli/files/Streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>

#include "base/RuntimeError.h"
#include "posix/Posix.h"
#include "posix/SaveTarget.h"

namespace tessel::cli {
namespace {

constexpr std::size_t kFirstRoom = std::size_t{1} << 16U;
constexpr std::size_t kMostOfDevice = std::size_t{1} << 24U;

struct NamedDescriptor {
  std::string_view name;
  int number;
};
constexpr NamedDescriptor kNamedDescriptors[] = {{"-", STDIN_FILENO},
                                                 {"/dev/stdin", STDIN_FILENO},
                                                 {"/dev/stdout", STDOUT_FILENO},
                                                 {"/dev/stderr", STDERR_FILENO}};

constexpr std::string_view kDescriptorFolder = "/dev/fd/";

std::optional<int> DescriptorOf(const std::string& name) {
  const auto* const named = std::ranges::find(kNamedDescriptors, name, &NamedDescriptor::name);
  if (named != std::end(kNamedDescriptors)) return named->number;
  if (!name.starts_with(kDescriptorFolder)) return std::nullopt;
  int number = -1;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data() + kDescriptorFolder.size(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return number;
}

/// What the links of /proc lead to has no path: the way there can be looked at, the end cannot.
void RefusePlantedStream(const std::string& name) {
  try {
    posix::RefusePlanted(posix::FindSaveTarget(name));
  } catch (const posix::FileProblem& problem) {
    if (problem.Code() == 0) throw;
  }
}

/// A descriptor that has a name is another one of the same: where a file is open, its place goes
/// on.
posix::Descriptor OpenStream(const std::string& name, int access) {
  return posix::Descriptor(posix::Checked([&] {
    const auto number = DescriptorOf(name);
    return number ? ::fcntl(*number, F_DUPFD_CLOEXEC, 0)
                  : ::open(name.c_str(), access | O_NOCTTY | O_CLOEXEC);
  }));
}

/// Devices such as /dev/zero never end; a terminal gives what somebody types.
void RefuseTooLong(std::size_t length, bool isDevice) {
  if (isDevice && length > kMostOfDevice) {
    throw posix::FileProblem("it is a device with more than 16 MiB");
  }
  if (length > kMostBytes) throw posix::FileProblem("it has more than 1 GiB");
}

std::string ReadToTheEnd(int file) {
  const bool isDevice = S_ISCHR(posix::StatusOfOpen(file).st_mode);
  std::string bytes;
  std::size_t length = 0;
  for (;;) {
    RefuseTooLong(length, isDevice);
    if (length == bytes.size()) bytes.resize(std::max(kFirstRoom, 2 * length));
    const auto count =
        posix::Checked([&] { return ::read(file, bytes.data() + length, bytes.size() - length); });
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  bytes.resize(length);
  return bytes;
}

[[noreturn]] void Tell(const char* verb, const std::string& name, const char* reason) {
  throw RuntimeError(std::string("Cannot ") + verb + " " + name + ": " + reason + ".");
}

}  // namespace

bool IsStream(const std::string& name) {
  if (DescriptorOf(name)) return true;
  const auto status = posix::StatusOf(name);
  return status && (S_ISFIFO(status->st_mode) || S_ISCHR(status->st_mode));
}

std::string ReadStream(const std::string& name) try {
  return ReadToTheEnd(OpenStream(name, O_RDONLY).Number());
} catch (const posix::FileProblem& problem) {
  Tell("read", name, problem.what());
} catch (const std::bad_alloc&) {
  Tell("read", name, posix::FileProblem(ENOMEM).what());
}

void WriteStream(const std::string& name, std::string_view bytes) try {
  std::cout.flush();
  if (name == "-") {
    std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    std::cout.flush();
  } else {
    if (!DescriptorOf(name)) RefusePlantedStream(name);
    posix::WriteAll(OpenStream(name, O_WRONLY).Number(), bytes);
  }
} catch (const posix::FileProblem& problem) {
  Tell("write to", name, problem.what());
}

}  // namespace tessel::cli
