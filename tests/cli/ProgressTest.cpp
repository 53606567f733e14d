#include <poll.h>

#include <regex>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

/// Both ends of a terminal.
struct Terminal {
  int screen = ::posix_openpt(O_RDWR | O_NOCTTY);
  int line = -1;

  Terminal() {
    if (screen == -1 || ::grantpt(screen) != 0 || ::unlockpt(screen) != 0) {
      throw std::runtime_error("no terminal");
    }
    line = ::open(::ptsname(screen), O_RDWR | O_NOCTTY);
  }
  ~Terminal() {
    ::close(screen);
    ::close(line);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// What is shown within so many milliseconds.
  std::string Shown(int milliseconds) const {
    pollfd ready = {screen, POLLIN, 0};
    if (::poll(&ready, 1, milliseconds) <= 0) return {};
    char buffer[4096];
    const ssize_t length = ::read(screen, buffer, sizeof buffer);
    return {buffer, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
  }
};

TEST(CommandLineProgress, TellsATerminalHowLongItTakesAndTidiesUp) {
  const Terminal terminal;
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  // Nobody reads the pipe: a result that does not fit makes the program wait.
  ASSERT_GT(::fcntl(pipe[1], F_SETPIPE_SZ, 4096), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(terminal.line, STDERR_FILENO);
    ::dup2(pipe[1], STDOUT_FILENO);
    ::close(pipe[0]);
    ::execl(TESSEL_PROGRAM, "tessel", "new", "15AU", nullptr);
    ::_exit(127);
  }
  ::close(pipe[1]);
  std::string shown = terminal.Shown(20000);
  EXPECT_EQ(shown, "\r\x1B[Ktessel: working, 1 s");

  char buffer[4096];
  while (::read(pipe[0], buffer, sizeof buffer) > 0) continue;
  ::close(pipe[0]);
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  shown = terminal.Shown(1000);
  EXPECT_TRUE(
      std::regex_match(shown, std::regex("(\r\x1B\\[Ktessel: working, [0-9]+ s)*\r\x1B\\[K")))
      << shown;
}

}  // namespace
}  // namespace tessel::test
