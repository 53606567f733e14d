#include "cli/Program.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <exception>
#include <iostream>
#include <new>

#include "cli/CommandLineServices.h"
#include "cli/Subcommands.h"
#include "cli/Usage.h"

namespace tessel::cli {
namespace {

void AddSubcommands(CLI::App& program, int& status) {
  program.require_subcommand(1);
  program.footer("\"tessel SUBCOMMAND --help\" tells more.");
  AddConvert(program, status);
  AddRandomize(program, status);
  AddSettings(program, status);
  AddGet(program, status);
  AddSet(program, status);
  AddLevels(program, status);
  AddLevel(program, status);
  AddColour(program, status);
  AddWords(program, status);
  AddNew(program, status);
}

int Run(CLI::App& program, int argc, char** argv, const int& status) {
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? kDone : kUsage;
  } catch (const std::bad_alloc&) {
    Complain("There is not enough memory for this.");
    return kFailed;
  } catch (const std::exception& error) {
    Complain(error.what());
    return kFailed;
  }
  return status;
}

}  // namespace

int RunProgram(int argc, char** argv) {
  int status = kDone;
  CLI::App program("Works on CON files: converts, randomizes, reads and changes settings.",
                   "tessel");
  AddSubcommands(program, status);
  AddVersion(program, "tessel " TESSEL_VERSION);
  program.failure_message(
      [](const CLI::App* app, const CLI::Error& error) { return UsageMessage(*app, error); });
  const int result = Run(program, argc, argv, status);
  if (std::cout.flush()) return result;
  Complain("The result could not be written to standard output.");
  return kFailed;
}

}  // namespace tessel::cli
