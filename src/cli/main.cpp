// tessel: the control's work on CON files, from the command line.
#include "cli/Program.h"
#include "posix/Signals.h"

int main(int argc, char** argv) {
  tessel::posix::TakeSizeLimitsAsErrors();
  return tessel::cli::RunProgram(argc, argv);
}
