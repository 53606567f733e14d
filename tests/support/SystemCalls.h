// Actions that are killed, or meet an error, at one of their system calls.
#pragma once

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <functional>
#include <stdexcept>

namespace tessel::test {

/// Whether DisturbedChild::FailAt works: it is written for one processor, and sanitizers make calls
/// of their own that must not fail.
#if defined(__x86_64__) && !defined(TESSEL_SANITIZED)
inline constexpr bool kCallsCanFail = true;
#else
inline constexpr bool kCallsCanFail = false;
#endif

/// Runs an action in a child process and disturbs one of its system calls. Calls count from 1.
class DisturbedChild {
 public:
  enum class Outcome { kKilled, kSucceeded, kFailed };

  /// `action` returns true when it succeeded; the calls of `prepare` are not disturbed.
  explicit DisturbedChild(std::function<bool()> action, std::function<void()> prepare = {})
      : action_(std::move(action)), prepare_(std::move(prepare)) {}

  /// Kills the child as it enters the call; a child with fewer calls runs to its end.
  Outcome KillAt(int call) {
    return Trace([&](pid_t child, const Entry& entry) {
      if (entry.count == call) ::kill(child, SIGKILL);
      return false;
    });
  }

  /// Lets every call that reads or writes bytes move one only.
  Outcome ShortenAll() {
    return Trace([&](pid_t child, const Entry& entry) {
      if (std::ranges::find(kMoveBytes, entry.number) != kMoveBytes.end()) MoveOne(child);
      return false;
    });
  }

  /// Lets the call fail with `error` without being made, if it has to do with files. `reached`
  /// tells whether the child made that many calls.
  Outcome FailAt(int call, int error, bool& reached) {
    reached = false;
    error_ = error;
    return Trace([&](pid_t, const Entry& entry) {
      if (entry.count != call) return false;
      reached = true;
      return std::ranges::find(kNotOfFiles, entry.number) == kNotOfFiles.end();
    });
  }

 private:
  struct Entry {
    int count;
    long number;
  };
  static constexpr std::array<long, 9> kNotOfFiles = {
      SYS_brk,         SYS_mmap,      SYS_munmap,     SYS_mprotect,      SYS_futex,
      SYS_sigaltstack, SYS_getrandom, SYS_exit_group, SYS_rt_sigprocmask};

  static constexpr std::array<long, 4> kMoveBytes = {SYS_read, SYS_write, SYS_pread64,
                                                     SYS_pwrite64};

  template <class OnEntry>
  Outcome Trace(OnEntry onEntry) {
    const pid_t child = ::fork();
    if (child == 0) RunAction();
    int status = 0;
    ::waitpid(child, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int count = 0;
    bool failing = false;
    while (WIFSTOPPED(status)) {
      if (WSTOPSIG(status) == (SIGTRAP | 0x80)) {
        __ptrace_syscall_info info{};
        if (::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) <= 0) {
          ::kill(child, SIGKILL);
          throw std::runtime_error("system calls cannot be traced");
        }
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
          failing = onEntry(child, Entry{++count, static_cast<long>(info.entry.nr)});
          if (failing) Skip(child);
        } else if (failing) {
          Return(child, -error_);
          failing = false;
        }
      }
      ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
      ::waitpid(child, &status, 0);
    }
    if (WIFSIGNALED(status)) return Outcome::kKilled;
    return WEXITSTATUS(status) == 0 ? Outcome::kSucceeded : Outcome::kFailed;
  }

  [[noreturn]] void RunAction() {
    if (prepare_) prepare_();
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    ::_exit(action_() ? 0 : 1);
  }

#if defined(__x86_64__)
  static void Skip(pid_t child) {
    user_regs_struct registers{};
    ::ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    registers.orig_rax = static_cast<unsigned long long>(-1);
    ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
  }
  static void Return(pid_t child, int value) {
    user_regs_struct registers{};
    ::ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    registers.rax = static_cast<unsigned long long>(static_cast<long long>(value));
    ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
  }
  static void MoveOne(pid_t child) {
    user_regs_struct registers{};
    ::ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    registers.rdx = std::min(registers.rdx, 1ULL);
    ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
  }
#else
  static void MoveOne(pid_t) { throw std::runtime_error("not written for this processor"); }
  static void Skip(pid_t) { throw std::runtime_error("not written for this processor"); }
  static void Return(pid_t, int) {}
#endif

  std::function<bool()> action_;
  std::function<void()> prepare_;
  int error_ = 0;
};

}  // namespace tessel::test
