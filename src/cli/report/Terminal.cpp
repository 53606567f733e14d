#include "cli/report/Terminal.h"

#include <unistd.h>

#include <cstdlib>

namespace tessel::cli {

bool IsTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool TerminalWantsColour() {
  const char* noColour = std::getenv("NO_COLOR");
  return IsTerminal() && (noColour == nullptr || *noColour == '\0');
}

}  // namespace tessel::cli
