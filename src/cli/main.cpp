// tessel: the control's work on CON files, from the command line.
#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <exception>

#include "cli/CommandLineServices.h"
#include "cli/Subcommands.h"

int main(int argc, char** argv) {
  using namespace tessel::cli;
  int status = kDone;
  CLI::App program("Works on CON files: converts, randomizes, reads and changes settings.",
                   "tessel");
  program.set_version_flag("--version", "tessel " TESSEL_VERSION);
  program.require_subcommand(1);
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
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? kDone : kUsage;
  } catch (const std::exception& error) {
    Complain(error.what());
    return kFailed;
  }
  return status;
}
