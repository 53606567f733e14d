#include "safekeeping/KeepingLog.h"

#include <fcntl.h>

#include <chrono>

namespace tessel {
namespace {

int OpenToAppend(const std::string& path) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
  return posix::Checked([&] { return ::open(path.c_str(), kFlags, 0600); });
}

long long MillisecondsNow() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

KeepingLog::KeepingLog(const std::string& path) : file_(OpenToAppend(path)) {}

int KeepingLog::Taken() {
  Note("taken " + std::to_string(++taken_));
  return taken_;
}

// One write a line: lines of two threads do not mix.
void KeepingLog::Note(const std::string& what) try {
  posix::WriteAll(file_.Number(), std::to_string(MillisecondsNow()) + ' ' + what + '\n');
} catch (const posix::FileProblem&) {
}

}  // namespace tessel
