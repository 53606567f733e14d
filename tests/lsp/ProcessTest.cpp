// The program itself: streams, clients that die, exit statuses.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include "lsp/messages/Framing.h"
#include "lsp/messages/Json.h"
#include "support/ProgramUnderTest.h"
#include "support/TempDirectory.h"

namespace tessel::lsp::test {
namespace {

/// `tessel lsp` with pipes to and from it.
class ServerProcess {
 public:
  explicit ServerProcess(std::vector<std::string> arguments = {"lsp"}) {
    std::array<int, 2> in{}, out{};
    if (::pipe2(in.data(), O_CLOEXEC) != 0 || ::pipe2(out.data(), O_CLOEXEC) != 0) std::abort();
    const std::string program = tessel::test::ProgramUnderTest("TESSEL_PROGRAM", TESSEL_PROGRAM);
    const std::string store = home_ / "settings.db", home = home_.Path();
    child_ = ::fork();
    if (child_ == 0) {
      ::dup2(in[0], STDIN_FILENO);
      ::dup2(out[1], STDOUT_FILENO);
      ::setenv("HOME", home.c_str(), 1);
      ::setenv("ZANTHMAN_STORE", store.c_str(), 1);
      std::vector<char*> argv = {const_cast<char*>("tessel")};
      for (std::string& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      ::execv(program.c_str(), argv.data());
      ::_exit(127);
    }
    ::close(in[0]);
    ::close(out[1]);
    input_ = in[1];
    output_ = out[0];
  }
  ~ServerProcess() {
    CloseInput();
    CloseOutput();
    if (child_ > 0) {
      ::kill(child_, SIGKILL);
      ::waitpid(child_, nullptr, 0);
    }
  }
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

  void Write(const std::string& bytes) {
    [[maybe_unused]] const auto count = ::write(input_, bytes.data(), bytes.size());
  }
  void Send(const Json& message) { Write(Framed(message.dump())); }
  /// The next message, or null where none comes in ten seconds.
  Json Receive() {
    for (;;) {
      if (const auto message = frames_.Next()) return Json::parse(*message);
      pollfd output = {output_, POLLIN, 0};
      if (::poll(&output, 1, 10'000) <= 0) return {};
      std::array<char, 65536> piece{};
      const auto count = ::read(output_, piece.data(), piece.size());
      if (count <= 0) return {};
      frames_.Feed({piece.data(), static_cast<std::size_t>(count)});
    }
  }
  /// The answer to that request.
  Json Ask(int id, const char* method, Json params) {
    Send({{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", std::move(params)}});
    for (Json message = Receive(); !message.is_null(); message = Receive()) {
      if (message.contains("id") && message["id"] == id) return message;
    }
    return {};
  }
  void Initialize(Json process = nullptr) {
    const Json answer =
        Ask(1, "initialize", {{"processId", process}, {"capabilities", Json::object()}});
    EXPECT_TRUE(answer.contains("result")) << answer;
    Send({{"method", "initialized"}, {"params", Json::object()}});
  }
  void CloseInput() {
    if (input_ >= 0) ::close(input_);
    input_ = -1;
  }
  void CloseOutput() {
    if (output_ >= 0) ::close(output_);
    output_ = -1;
  }

  /// The exit status; −1 where it has not ended in ten seconds or by a signal.
  int ExitStatus() {
    using namespace std::chrono;
    const auto end = steady_clock::now() + seconds(10);
    while (steady_clock::now() < end) {
      int status = 0;
      if (::waitpid(child_, &status, WNOHANG) == child_) {
        child_ = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
      }
      ::usleep(5000);
    }
    return -1;
  }

 private:
  tessel::test::TempDirectory home_;
  pid_t child_ = -1;
  int input_ = -1, output_ = -1;
  FrameReader frames_;
};

TEST(ServerProcess, EndsWellBehindShutdownAndExit) {
  ServerProcess server;
  server.Initialize();
  EXPECT_EQ(server.Ask(2, "shutdown", nullptr)["result"], Json());
  server.Send({{"method", "exit"}});
  EXPECT_EQ(server.ExitStatus(), 0);
}

TEST(ServerProcess, TakesTheOptionThatClientsAdd) {
  ServerProcess server({"lsp", "--stdio"});
  server.Initialize();
  server.Send({{"method", "exit"}});
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, EndsWithItsInput) {
  ServerProcess server;
  server.Initialize();
  server.CloseInput();
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, EndsWellWithItsInputBehindShutdown) {
  ServerProcess server;
  server.Initialize();
  server.Ask(2, "shutdown", nullptr);
  server.CloseInput();
  EXPECT_EQ(server.ExitStatus(), 0);
}

TEST(ServerProcess, EndsInTheMidstOfAMessage) {
  ServerProcess server;
  server.Initialize();
  server.Write("Content-Length: 100\r\n\r\n{\"id\":");
  server.CloseInput();
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, AnswersWhatHasComeBeforeItEnds) {
  ServerProcess server;
  server.Send(
      {{"id", 1}, {"method", "initialize"}, {"params", {{"capabilities", Json::object()}}}});
  server.CloseInput();
  EXPECT_EQ(server.Receive()["id"], 1);
}

TEST(ServerProcess, EndsWhenNobodyReadsItsAnswers) {
  ServerProcess server;
  server.Initialize();
  server.CloseOutput();
  server.Send({{"id", 2}, {"method", "shutdown"}});
  EXPECT_EQ(server.ExitStatus(), 0);
}

TEST(ServerProcess, EndsWhenNobodyReadsItsAnswersAndNobodyAskedItTo) {
  ServerProcess server;
  server.Initialize();
  server.CloseOutput();
  server.Send({{"id", 2}, {"method", "textDocument/hover"}});
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, EndsWhenTheProcessOfTheClientHasGone) {
  const pid_t client = ::fork();
  if (client == 0) {
    ::pause();
    ::_exit(0);
  }
  ServerProcess server;
  server.Initialize(client);
  EXPECT_EQ(server.Ask(2, "nothing", nullptr)["error"]["code"], -32601);
  ::kill(client, SIGKILL);
  ::waitpid(client, nullptr, 0);
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, EndsWhereTheStreamHasNoMessages) {
  ServerProcess server;
  server.Write("hello\r\n\r\n");
  EXPECT_EQ(server.Receive()["method"], "window/logMessage");
  EXPECT_EQ(server.ExitStatus(), 1);
}

TEST(ServerProcess, PublishesWhatACheckFindsWithoutBeingAsked) {
  ServerProcess server;
  server.Initialize();
  server.Send({{"method", "textDocument/didOpen"},
               {"params",
                {{"textDocument",
                  {{"uri", "file:///mod/A.CON"}, {"version", 1}, {"text", "define A\n"}}}}}});
  const Json told = server.Receive();
  EXPECT_EQ(told["method"], "textDocument/publishDiagnostics");
  EXPECT_EQ(told["params"]["diagnostics"][0]["code"], "define-without-value");
}

}  // namespace
}  // namespace tessel::lsp::test
