#include "DriveProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <utility>

namespace scenario {
namespace {

constexpr int kPatienceMs = 60000;

std::array<int, 2> Pipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return ends;
}

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

DriveProcess::DriveProcess(const std::string& program, const std::vector<std::string>& arguments) {
  std::signal(SIGPIPE, SIG_IGN);
  const auto in = Pipe();
  const auto out = Pipe();
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("cannot start " + program);
  if (process_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    std::vector<char*> argv = {const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
      argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    execv(program.c_str(), argv.data());
    _exit(127);
  }
  close(in[0]);
  close(out[1]);
  input_ = in[1];
  output_ = out[0];
}

DriveProcess::~DriveProcess() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    Finish();
  }
  close(output_);
}

std::optional<std::string> DriveProcess::Ask(const std::string& line) {
  if (!WriteAll(input_, line + "\n")) return std::nullopt;
  return ReadLine();
}

std::optional<std::string> DriveProcess::ReadLine() {
  std::array<char, 65536> chunk;
  while (true) {
    if (const auto end = pending_.find('\n'); end != std::string::npos) {
      std::string line = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      return line;
    }
    pollfd ready{output_, POLLIN, 0};
    if (poll(&ready, 1, kPatienceMs) <= 0) return std::nullopt;
    const ssize_t got = read(output_, chunk.data(), chunk.size());
    if (got <= 0) return std::nullopt;
    pending_.append(chunk.data(), static_cast<std::size_t>(got));
  }
}

int DriveProcess::Finish() {
  close(std::exchange(input_, -1));
  int status = 0;
  waitpid(std::exchange(process_, -1), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace scenario
