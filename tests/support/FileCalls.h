// What an action asks of the disk, call by call.
#pragma once

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tessel::test {

/// Whether FileCalls works: the names of the calls are those of one processor.
#if defined(__x86_64__)
inline constexpr bool kCallsAreSeen = true;
#else
inline constexpr bool kCallsAreSeen = false;
#endif

/// One call that changed what is on the disk, or that flushed it.
struct FileCall {
  enum class Kind {
    kMakeFile,  // unless it is there
    kMakeFolder,
    kWrite,
    kResize,  // to `number` bytes
    kGrow,    // to `number` bytes at least
    kRename,
    kLink,
    kRemove,
    kFlush,
    kFlushAll,
    kNote,  // no call: see Note
  };
  Kind kind;
  std::string path;
  std::string other = {};  ///< the new name, or the note
  std::size_t number = 0;  ///< where it is written, in bytes; or a size
  std::string bytes = {};
};

/// In a recorded action: what has been done so far, for the list of its calls.
inline void Note(const std::string& text) {
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (::write(nowhere, text.data(), text.size()) == -1) std::abort();
  ::close(nowhere);
}

#if defined(__x86_64__)

/// Runs an action in a child process, threads included, and writes down its calls.
class FileCalls {
 public:
  /// Only what is below that folder counts, whose path has no links.
  explicit FileCalls(std::string root) : root_(std::move(root)) {}

  /// The calls of `prepare` do not count. Throws when the action does.
  std::vector<FileCall> Record(const std::function<void()>& action,
                               const std::function<void()>& prepare = {}) {
    calls_.clear();
    const pid_t child = ::fork();
    if (child == 0) RunAction(action, prepare);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr,
             PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE);
    ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    for (;;) {
      const pid_t thread = ::waitpid(-1, &status, __WALL);
      if (WIFSTOPPED(status)) {
        ::ptrace(PTRACE_SYSCALL, thread, nullptr, SignalFrom(thread, status));
      } else if (thread == child) {
        break;
      }
    }
    if (status != 0) throw std::runtime_error("the recorded action failed");
    return std::move(calls_);
  }

 private:
  struct Call {
    pid_t thread = 0;
    std::uint64_t number = 0;
    std::array<std::uint64_t, 6> given{};
    std::int64_t result = 0;

    int Number(std::size_t i) const { return static_cast<int>(given[i]); }
  };
  using Handler = void (FileCalls::*)(const Call&);
  using Kind = FileCall::Kind;

  [[noreturn]] static void RunAction(const std::function<void()>& action,
                                     const std::function<void()>& prepare) {
    if (prepare) prepare();
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    try {
      action();
    } catch (const std::exception& problem) {
      std::fprintf(stderr, "%s\n", problem.what());
      ::_exit(1);
    }
    ::_exit(0);
  }

  /// The signal to pass on to a thread that has stopped.
  int SignalFrom(pid_t thread, int status) {
    const int signal = WSTOPSIG(status);
    if (signal == (SIGTRAP | 0x80)) {
      See(thread);
      return 0;
    }
    const bool begins = signal == SIGSTOP && !entered_.contains(thread);
    return begins || signal == SIGTRAP ? 0 : signal;
  }

  void See(pid_t thread) {
    __ptrace_syscall_info info{};
    if (::ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof info, &info) <= 0) {
      throw std::runtime_error("system calls cannot be traced");
    }
    Call& call = entered_[thread];
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
      call = {thread, info.entry.nr, {}, 0};
      std::ranges::copy(info.entry.args, call.given.begin());
    } else if (info.op == PTRACE_SYSCALL_INFO_EXIT && info.exit.rval >= 0) {
      call.result = info.exit.rval;
      const auto known = kHandlers.find(call.number);
      if (known != kHandlers.end()) (this->*known->second)(call);
    }
  }

  // --- What the calls mean

  void Open(const Call& call) { OpenAt(call, PathAt(call, AT_FDCWD, 0), call.Number(1)); }
  void OpenIn(const Call& call) { OpenAt(call, PathAt(call, call.Number(0), 1), call.Number(2)); }
  void OpenAt(const Call&, std::string path, int flags) {
    if ((flags & O_CREAT) != 0) Add({Kind::kMakeFile, path});
    if ((flags & O_TRUNC) != 0) Add({Kind::kResize, std::move(path)});
  }
  void MakeFolder(const Call& call) { Add({Kind::kMakeFolder, PathAt(call, AT_FDCWD, 0)}); }
  void MakeFolderIn(const Call& call) { Add({Kind::kMakeFolder, PathAt(call, call.Number(0), 1)}); }
  void Write(const Call& call) {
    std::ifstream state("/proc/" + std::to_string(call.thread) + "/fdinfo/" +
                        std::to_string(call.Number(0)));
    std::string word;
    std::int64_t position = 0;
    state >> word >> position;
    WriteFrom(call, position - call.result);
  }
  void WriteAt(const Call& call) { WriteFrom(call, static_cast<std::int64_t>(call.given[3])); }
  void WriteFrom(const Call& call, std::int64_t position) {
    std::string bytes = BytesAt(call, call.given[1], static_cast<std::size_t>(call.result));
    std::string path = PathOf(call, call.Number(0));
    if (path == "/dev/null") {
      calls_.push_back({Kind::kNote, {}, std::move(bytes)});
    } else {
      Add({Kind::kWrite,
           std::move(path),
           {},
           static_cast<std::size_t>(position),
           std::move(bytes)});
    }
  }
  void Resize(const Call& call) {
    Add({Kind::kResize, PathOf(call, call.Number(0)), {}, call.given[1]});
  }
  void Reserve(const Call& call) {
    Add({Kind::kGrow, PathOf(call, call.Number(0)), {}, call.given[2] + call.given[3]});
  }
  void RenameIn(const Call& call) {
    Add({Kind::kRename, PathAt(call, call.Number(0), 1), PathAt(call, call.Number(2), 3)});
  }
  void LinkIn(const Call& call) {
    Add({Kind::kLink, PathAt(call, call.Number(0), 1), PathAt(call, call.Number(2), 3)});
  }
  void Remove(const Call& call) { Add({Kind::kRemove, PathAt(call, AT_FDCWD, 0)}); }
  void RemoveIn(const Call& call) { Add({Kind::kRemove, PathAt(call, call.Number(0), 1)}); }
  void Flush(const Call& call) { Add({Kind::kFlush, PathOf(call, call.Number(0))}); }
  void FlushAll(const Call&) { calls_.push_back({Kind::kFlushAll, {}}); }
  /// Ways of writing that nobody here goes yet.
  void RefuseFile(const Call& call) { Refuse(call, PathOf(call, call.Number(0))); }
  void RefusePath(const Call& call) { Refuse(call, PathAt(call, AT_FDCWD, 0)); }
  void RefuseSecondPath(const Call& call) { Refuse(call, PathAt(call, AT_FDCWD, 1)); }
  void Refuse(const Call& call, const std::string& path) {
    if (!IsBelowRoot(path)) return;
    throw std::logic_error("not known how to write down call " + std::to_string(call.number));
  }

  void Add(FileCall call) {
    if (IsBelowRoot(call.path)) calls_.push_back(std::move(call));
  }
  bool IsBelowRoot(const std::string& path) const {
    return path == root_ || path.starts_with(root_ + "/");
  }

  // --- What the child's numbers and addresses stand for

  static std::string LinkOf(const Call& call, const std::string& name) {
    std::error_code none;
    return std::filesystem::read_symlink("/proc/" + std::to_string(call.thread) + "/" + name, none);
  }
  static std::string PathOf(const Call& call, int file) {
    return LinkOf(call, "fd/" + std::to_string(file));
  }
  static std::string PathAt(const Call& call, int folder, std::size_t i) {
    std::string name = BytesAt(call, call.given[i], PATH_MAX);
    name.resize(std::min(name.find('\0'), name.size()));
    const std::string base = folder == AT_FDCWD ? LinkOf(call, "cwd") : PathOf(call, folder);
    std::string path = (std::filesystem::path(base) / name).lexically_normal();
    if (path.ends_with('/')) path.pop_back();
    return path;
  }
  static std::string BytesAt(const Call& call, std::uint64_t address, std::size_t count) {
    const std::string memory = "/proc/" + std::to_string(call.thread) + "/mem";
    const int file = ::open(memory.c_str(), O_RDONLY | O_CLOEXEC);
    std::string bytes(count, '\0');
    const auto got = ::pread(file, bytes.data(), count, static_cast<off_t>(address));
    ::close(file);
    bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return bytes;
  }

  inline static const std::map<std::uint64_t, Handler> kHandlers = {
      {SYS_open, &FileCalls::Open},
      {SYS_openat, &FileCalls::OpenIn},
      {SYS_mkdir, &FileCalls::MakeFolder},
      {SYS_mkdirat, &FileCalls::MakeFolderIn},
      {SYS_write, &FileCalls::Write},
      {SYS_pwrite64, &FileCalls::WriteAt},
      {SYS_ftruncate, &FileCalls::Resize},
      {SYS_fallocate, &FileCalls::Reserve},
      {SYS_renameat, &FileCalls::RenameIn},
      {SYS_renameat2, &FileCalls::RenameIn},
      {SYS_linkat, &FileCalls::LinkIn},
      {SYS_unlink, &FileCalls::Remove},
      {SYS_rmdir, &FileCalls::Remove},
      {SYS_unlinkat, &FileCalls::RemoveIn},
      {SYS_fsync, &FileCalls::Flush},
      {SYS_fdatasync, &FileCalls::Flush},
      {SYS_syncfs, &FileCalls::FlushAll},
      {SYS_writev, &FileCalls::RefuseFile},
      {SYS_pwritev, &FileCalls::RefuseFile},
      {SYS_pwritev2, &FileCalls::RefuseFile},
      {SYS_sendfile, &FileCalls::RefuseFile},
      {SYS_copy_file_range, &FileCalls::RefuseFile},
      {SYS_truncate, &FileCalls::RefusePath},
      {SYS_creat, &FileCalls::RefusePath},
      {SYS_rename, &FileCalls::RefusePath},
      {SYS_link, &FileCalls::RefuseSecondPath},
      {SYS_symlink, &FileCalls::RefuseSecondPath},
  };

  std::string root_;
  std::vector<FileCall> calls_;
  std::map<pid_t, Call> entered_;
};

#endif

}  // namespace tessel::test
