// A running tessel-drive.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace scenario {

class DriveProcess {
 public:
  /// Starts the program. Throws std::runtime_error when it cannot be started.
  DriveProcess(const std::string& program, const std::vector<std::string>& arguments);
  ~DriveProcess();
  DriveProcess(const DriveProcess&) = delete;
  DriveProcess& operator=(const DriveProcess&) = delete;

  /// Sends one line and waits for the line that answers it; nothing when the program ended or took
  /// longer than a minute.
  std::optional<std::string> Ask(const std::string& line);
  /// Ends the input and returns the program's exit status, or −1 when it was killed by a signal.
  int Finish();

 private:
  std::optional<std::string> ReadLine();

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string pending_;
};

}  // namespace scenario
