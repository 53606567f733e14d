// Runs the program as a person's shell does, in a directory and with a store of the test's own.
#pragma once

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/ProgramUnderTest.h"
#include "support/TempDirectory.h"

namespace tessel::test {

struct Outcome {
  int status = -1;  ///< exit status; 128 and more: ended by a signal
  std::string out, err;
};

/// What happens in the child before the program starts: other rights, limits, descriptors.
using BeforeStart = std::function<void()>;

inline std::string TesselProgram() { return ProgramUnderTest("TESSEL_PROGRAM", TESSEL_PROGRAM); }

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() : store_(home_ / "settings.db"), state_(home_ / "state") {}

  /// Runs `tessel` with these arguments in the test's directory.
  Outcome Tessel(const std::vector<std::string>& arguments, const BeforeStart& before = {}) {
    return Run(TesselProgram().c_str(), "tessel", arguments, before);
  }

  /// Runs a line of bash there, for which `tessel` is the program under test.
  Outcome Shell(const std::string& line) {
    return Run("/bin/bash", "bash", {"-c", line}, [] {
      const std::string folder = std::filesystem::path(TesselProgram()).parent_path();
      ::setenv("PATH", (folder + ":" + std::getenv("PATH")).c_str(), 1);
    });
  }

  /// What a line prints that ends well and without a complaint.
  std::string ShellOutputOf(const std::string& line) {
    const Outcome outcome = Shell(line);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
  }

  /// What the program prints on success, which must come without a complaint; or with that status
  /// and these words on standard error.
  std::string OutputOf(const std::vector<std::string>& arguments, int status = 0,
                       const std::string& err = "") {
    const Outcome outcome = Tessel(arguments);
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_EQ(outcome.err, err);
    return outcome.out;
  }
  /// Expects a refusal: status 1, this sentence, no output, and no file changed, new or gone.
  void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& sentence,
                     const BeforeStart& before = {}) {
    const auto names = files_.Names();
    const std::string bytes = AllBytes();
    const Outcome outcome = Tessel(arguments, before);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tessel: " + sentence + "\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(files_.Names(), names);
    EXPECT_EQ(AllBytes(), bytes);
  }

  /// Expects a usage error: status 2, and what is said about it.
  void ExpectUsageError(const std::vector<std::string>& arguments, const std::string& sentence,
                        const std::string& command) {
    const Outcome outcome = Tessel(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "tessel: " + sentence + "\nRun '" + command + " --help' for details.\n");
    EXPECT_EQ(outcome.out, "");
  }

  const std::string& Directory() const { return files_.Path(); }
  /// The full path of a file of the test.
  std::string PathOf(const std::string& name) const { return files_ / name; }
  std::string Put(const std::string& name, const std::string& bytes) const {
    return files_.Put(name, bytes);
  }
  std::string Bytes(const std::string& name) const { return BytesOf(files_ / name); }

  static std::string TemplateText(const std::string& name) {
    return BytesOf(std::string(TESSEL_TEST_DATA_DIR) + "/" + name);
  }

  TempDirectory files_;
  TempDirectory home_;
  std::string store_;
  const std::string state_;  ///< where the programs of this user keep backups

 private:
  Outcome Run(const char* path, const char* name, const std::vector<std::string>& arguments,
              const BeforeStart& before) {
    const std::string out = home_ / "stdout";
    const std::string err = home_ / "stderr";
    const pid_t child = ::fork();
    if (child == 0) {
      Redirect(out, STDOUT_FILENO);
      Redirect(err, STDERR_FILENO);
      if (::chdir(Directory().c_str()) != 0) ::_exit(126);
      ::setenv("ZANTHMAN_STORE", store_.c_str(), 1);
      ::setenv("XDG_STATE_HOME", state_.c_str(), 1);
      // Opened first: another user may not reach it.
      const int program = ::open(path, O_RDONLY | O_CLOEXEC);
      if (before) before();
      std::vector<char*> argv = {const_cast<char*>(name)};
      for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
      }
      argv.push_back(nullptr);
      ::fexecve(program, argv.data(), environ);
      ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), BytesOf(out),
            BytesOf(err)};
  }

  static void Redirect(const std::string& path, int descriptor) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file == -1 || ::dup2(file, descriptor) == -1) ::_exit(125);
    ::close(file);
  }

  std::string AllBytes() const {
    std::string all;
    for (const std::string& name : files_.Names()) {
      if (std::filesystem::is_regular_file(files_ / name))
        all += name + '\0' + BytesOf(files_ / name);
    }
    return all;
  }
};

/// `text` with the first `old` in it replaced. The test fails when there is none.
inline std::string With(std::string text, const std::string& old, const std::string& fresh) {
  const std::size_t at = text.find(old);
  if (at == text.npos) throw std::runtime_error("no \"" + old + "\" in the text");
  return text.replace(at, old.size(), fresh);
}

}  // namespace tessel::test
