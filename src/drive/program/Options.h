// The command line of tessel-drive.
#pragma once

#include <string>

#include "models/Control.h"

namespace tessel::drive {

struct Options {
  bool qt = false;
  std::string store;          ///< empty: in memory
  std::string hostDirectory;  ///< empty: the installed one
  Twips width = 12000;
  Twips height = 9000;
};

/// Reads the command line. When the program is not to go on (help, version, a mistake, which is
/// told on standard error), returns false with the exit status in `status`.
bool ParseOptions(int argc, char** argv, Options& options, int& status);

}  // namespace tessel::drive
