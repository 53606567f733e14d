#include "lsp/Loop.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>

#include "lsp/CheckThread.h"
#include "lsp/Server.h"
#include "lsp/messages/Framing.h"

namespace tessel::lsp {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kLookAtClient{1000};
constexpr std::size_t kMostWaiting = 10'000;
constexpr std::size_t kPiece = 65536;

class Loop {
 public:
  Loop(Resources resources, const LoopOptions& options)
      : options_(options),
        server_(std::move(resources), [this](const std::string& message) { Write(message); }),
        checks_(server_.Current().known.AsKnowledge()) {}

  int Run() {
    while (!server_.HasEnded()) {
      Wait();
      if (server_.Waiting() > 0) server_.Work();
      Check();
    }
    return server_.ExitStatus();
  }

 private:
  /// Until something can be done.
  void Wait() {
    std::array<pollfd, 2> watched = {
        {{options_.input, POLLIN, 0}, {checks_.Descriptor(), POLLIN, 0}}};
    if (server_.Waiting() >= kMostWaiting) watched[0].fd = -1;
    const auto ready = ::poll(watched.data(), watched.size(), Patience());
    if (ready < 0 && errno != EINTR) return server_.EndOfInput();
    if (ready <= 0) return LookAtClient();
    if (watched[1].revents != 0) Publish();
    if (watched[0].revents != 0) Read();
  }

  /// How long to wait, for poll; −1: until something comes.
  int Patience() {
    if (server_.Waiting() > 0) return 0;
    milliseconds patience{-1};
    if (server_.Current().client.process) patience = kLookAtClient;
    if (wanted_ != checked_ && !checks_.IsBusy()) {
      const auto left = std::chrono::ceil<milliseconds>(due_ - Clock::now());
      const auto due = std::max(left, milliseconds{0});
      patience = patience < milliseconds{0} ? due : std::min(patience, due);
    }
    return static_cast<int>(patience.count());
  }

  void LookAtClient() {
    const auto process = server_.Current().client.process;
    if (!process || *process <= 0 || *process > std::numeric_limits<pid_t>::max()) return;
    if (::kill(static_cast<pid_t>(*process), 0) == -1 && errno == ESRCH) server_.EndOfInput();
  }

  void Read() {
    std::array<char, kPiece> piece{};
    const auto count = posix::Retry([&] { return ::read(options_.input, piece.data(), kPiece); });
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) return;
    if (count <= 0) return EndOfInput();
    frames_.Feed({piece.data(), static_cast<std::size_t>(count)});
    try {
      while (const auto message = frames_.Next()) server_.Take(*message);
    } catch (const FramingError& error) {
      server_.Current().Log(error.what());
      EndOfInput();
    }
  }

  /// What has come is answered yet.
  void EndOfInput() {
    while (server_.Waiting() > 0 && !server_.HasEnded()) server_.Work();
    server_.EndOfInput();
  }

  void Write(const std::string& message) {
    WriteAll(HeaderOf(message));
    WriteAll(message);
  }

  void WriteAll(std::string_view rest) {
    while (!rest.empty()) {
      const auto count =
          posix::Retry([&] { return ::write(options_.output, rest.data(), rest.size()); });
      if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
        pollfd output = {options_.output, POLLOUT, 0};
        ::poll(&output, 1, -1);
        continue;
      }
      if (count < 0) return server_.EndOfInput();
      rest.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  void Check() {
    const std::uint64_t changes = server_.Current().Changes();
    if (changes != wanted_) {
      wanted_ = changes;
      due_ = Clock::now() + options_.pause;
    }
    const bool isDue = wanted_ != checked_ && Clock::now() >= due_;
    if (!isDue || checks_.IsBusy() || server_.HasEnded()) return;
    checked_ = wanted_;
    checks_.Begin(server_.Current().NextCheck());
  }

  void Publish() {
    FinishedCheck finished = checks_.Take();
    server_.Current().Publish(finished.job, std::move(finished.found));
  }

  LoopOptions options_;
  FrameReader frames_;
  Server server_;
  CheckThread checks_;
  std::uint64_t wanted_ = 0, checked_ = 0;  // by Session::Changes
  Clock::time_point due_;
};

}  // namespace

int RunServer(Resources resources, const LoopOptions& options) {
  std::signal(SIGPIPE, SIG_IGN);
  return Loop(std::move(resources), options).Run();
}

}  // namespace tessel::lsp
