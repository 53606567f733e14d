// tessel: the control's work on CON files, from the command line.
#include "cli/Program.h"
#include "posix/Signals.h"

namespace {

// Tables of texts are made before main is entered, and where memory ends there nobody catches it.
[[gnu::constructor(101)]] void BeforeAllTables() { tessel::cli::TellWhenMemoryEnds(); }

}  // namespace

int main(int argc, char** argv) {
  tessel::posix::TakeSizeLimitsAsErrors();
  return tessel::cli::RunProgram(argc, argv);
}
