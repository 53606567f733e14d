#include "cli/Program.h"

#include <exception>
#include <iostream>
#include <new>

#include "cli/CommandLineServices.h"
#include "cli/Options.h"

namespace tessel::cli {
namespace {

int Run(int argc, char** argv) {
  try {
    return RunSubcommand(argc, argv);
  } catch (const std::bad_alloc&) {
    Complain("There is not enough memory for this.");
  } catch (const std::exception& error) {
    Complain(error.what());
  }
  return kFailed;
}

}  // namespace

int RunProgram(int argc, char** argv) {
  const int result = Run(argc, argv);
  if (std::cout.flush()) return result;
  Complain("The result could not be written to standard output.");
  return kFailed;
}

}  // namespace tessel::cli
