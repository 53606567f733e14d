#include "cli/Program.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>
#include <string_view>

#include "cli/Options.h"
#include "cli/report/Complaint.h"

namespace tessel::cli {
namespace {

/// Asks for no memory itself.
void TellThatMemoryEnded() {
  constexpr std::string_view kSentence = "tessel: There is not enough memory for this.\n";
  [[maybe_unused]] const auto written = ::write(STDERR_FILENO, kSentence.data(), kSentence.size());
}

[[noreturn]] void EndForWantOfMemory() {
  try {
    if (const auto problem = std::current_exception()) std::rethrow_exception(problem);
  } catch (const std::bad_alloc&) {
    TellThatMemoryEnded();
    ::_exit(kFailed);
  } catch (...) {
  }
  std::abort();
}

int Run(int argc, char** argv) {
  try {
    return RunSubcommand(argc, argv);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    Complain(error.what());
  }
  return kFailed;
}

int RunAndFlush(int argc, char** argv) {
  const int result = Run(argc, argv);
  if (std::cout.flush()) return result;
  Complain("Cannot write the result to standard output.");
  return kFailed;
}

}  // namespace

void TellWhenMemoryEnds() { std::set_terminate(EndForWantOfMemory); }

int RunProgram(int argc, char** argv) {
  try {
    return RunAndFlush(argc, argv);
  } catch (const std::bad_alloc&) {
    TellThatMemoryEnded();
    return kFailed;
  }
}

}  // namespace tessel::cli
