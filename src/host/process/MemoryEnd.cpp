#include "host/process/MemoryEnd.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QThread>
#include <new>
#include <string_view>
#include <utility>

#include "base/ScopeGuard.h"

namespace tessel {
namespace {

// Some texts of usual length.
constexpr std::size_t kReserve = std::size_t{16} << 20U;

MemoryEnd* current = nullptr;

/// Nothing of the program is in a state to be taken down.
[[noreturn]] void End(bool kept) {
  const std::string_view sentence =
      kept ? "zanth-manager: there is not enough memory to continue. Unsaved text is stored.\n"
           : "zanth-manager: there is not enough memory to continue, nor to store all unsaved "
             "text.\n";
  [[maybe_unused]] const auto written = ::write(STDERR_FILENO, sentence.data(), sentence.size());
  ::_exit(1);
}

}  // namespace

MemoryEnd::MemoryEnd(Question keep, Question commandRuns)
    : keep_(std::move(keep)), commandRuns_(std::move(commandRuns)), reserve_(new char[kReserve]) {
  current = this;
  std::set_new_handler(OnNoMemory);
}

MemoryEnd::~MemoryEnd() {
  std::set_new_handler(nullptr);
  current = nullptr;
}

void MemoryEnd::OnNoMemory() {
  if (QThread::currentThread() == qApp->thread() && !current->keeping_) {
    const bool kept = current->Keep();
    if (!current->commandRuns_()) End(kept);
  }
  throw std::bad_alloc();
}

bool MemoryEnd::Keep() {
  const BusyFlag keeping(keeping_);
  reserve_.reset();
  const bool kept = keep_();
  reserve_.reset(new (std::nothrow) char[kReserve]);
  return kept;
}

}  // namespace tessel
