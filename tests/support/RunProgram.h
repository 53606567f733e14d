// A program started as from a shell.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace tessel::test {

/// Runs the program to its end and returns its exit status (128 and the signal's number when it was
/// killed). `prepare` is called in the new process beforehand; false ends it there.
template <class Prepare>
int RunProgram(std::string program, std::vector<std::string> arguments, Prepare prepare) {
  const pid_t child = ::fork();
  if (child == 0) {
    if (!prepare()) ::_exit(126);
    std::vector<char*> argv = {program.data()};
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    ::execv(program.c_str(), argv.data());
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace tessel::test
