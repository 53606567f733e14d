// Actions in a process of their own: with other rights, under other limits, or killed half-way.
#pragma once

#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>
#include <stdexcept>
#include <string>

#include "support/TempDirectory.h"

/// Only in a build that measures coverage; such a process ends without writing it down by itself.
extern "C" void __gcov_dump() __attribute__((weak));

namespace tessel::test {

/// Writes down what a coverage build counted in a child; not under a limit that would tear the
/// file.
inline void WriteCoverage() {
  rlimit size{};
  ::getrlimit(RLIMIT_FSIZE, &size);
  if (__gcov_dump != nullptr && size.rlim_cur == RLIM_INFINITY) __gcov_dump();
}

/// Runs `action` in a child process and returns the text it returns, or "error: " and the text of
/// the exception it ends with. Expectations belong in the parent.
template <class Action>
std::string InChild(Action action) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  const pid_t child = ::fork();
  if (child == 0) {
    std::string result;
    try {
      result = action();
    } catch (const std::exception& error) {
      result = std::string("error: ") + error.what();
    }
    WriteCoverage();
    const bool sent = ::write(ends[1], result.data(), result.size()) == std::ssize(result);
    ::_exit(sent ? 0 : 1);
  }
  ::close(ends[1]);
  std::string result;
  std::array<char, 4096> buffer{};
  for (ssize_t n = 0; (n = ::read(ends[0], buffer.data(), buffer.size())) > 0;) {
    result.append(buffer.data(), static_cast<std::size_t>(n));
  }
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  return status == 0 ? result : "the child process failed: " + result;
}

/// The superuser passes every check of permissions: for those this process becomes somebody else.
inline void BecomeOrdinaryUser() {
  if (::geteuid() == 0 &&
      (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) {
    throw std::runtime_error("cannot become an ordinary user");
  }
}

/// InChild as an ordinary user.
template <class Action>
std::string AsOrdinaryUser(Action action) {
  return InChild([&]() -> std::string {
    BecomeOrdinaryUser();
    return action();
  });
}

/// Gives a file to the user of AsOrdinaryUser, where that is another one.
inline void GiveToOrdinaryUser(const std::string& path) {
  if (::geteuid() == 0 && ::chown(path.c_str(), kNobody, kNobody) != 0) {
    throw std::runtime_error("cannot give away " + path);
  }
}

}  // namespace tessel::test
