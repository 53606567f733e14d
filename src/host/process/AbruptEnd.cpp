#include "host/process/AbruptEnd.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QThread>
#include <array>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <utility>

namespace tessel {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

// A handler may do next to nothing: it writes the signal's number for the event loop to read.
std::array<int, 2> pipeEnds = {-1, -1};

std::function<void()>& WhatToDo() {
  static std::function<void()> action;
  return action;
}

void Note(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  [[maybe_unused]] const auto written = ::write(pipeEnds[1], &number, 1);
}

/// The toolkit calls exit when the display's connection breaks.
void KeepAtExit() {
  if (auto action = std::exchange(WhatToDo(), nullptr)) action();
}

/// An exception found its way to where none may come, such as a destructor without memory.
[[noreturn]] void KeepAndAbort() {
  constexpr std::string_view kSentence = "zanth-manager: the program cannot continue.\n";
  [[maybe_unused]] const auto written = ::write(STDERR_FILENO, kSentence.data(), kSentence.size());
  if (qApp != nullptr && QThread::currentThread() == qApp->thread()) KeepAtExit();
  std::abort();
}

}  // namespace

AbruptEnd::AbruptEnd(std::function<void()> keep) {
  // What is made first is there until the end: KeepAtExit finds it whole.
  WhatToDo() = std::move(keep);
  [[maybe_unused]] static const int registered = std::atexit(KeepAtExit);
  if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) == -1) return;
  auto* arrived = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
  connect(arrived, &QSocketNotifier::activated, this, &AbruptEnd::TakeSignal);
  struct sigaction action {};
  action.sa_handler = Note;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int signal : kSignals) ::sigaction(signal, &action, nullptr);
  std::set_terminate(KeepAndAbort);
}

AbruptEnd::~AbruptEnd() {
  std::set_terminate(std::abort);
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  WhatToDo() = nullptr;
  for (int& end : pipeEnds) ::close(std::exchange(end, -1));
}

void AbruptEnd::TakeSignal() {
  unsigned char number = 0;
  if (::read(pipeEnds[0], &number, 1) != 1) return;
  if (const auto action = std::exchange(WhatToDo(), nullptr)) action();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

}  // namespace tessel
