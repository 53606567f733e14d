// Which subcommands there are, and what each is asked for. Only for what parses: it needs the
// parser.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "cli/Subcommands.h"

namespace tessel::cli {

/// What "randomize" reads before it is known how the options go together.
struct RandomizeWords {
  SectionBounds one;
  std::vector<std::string> bounds;
};

/// What "check" reads before the rules are looked up.
struct CheckWords {
  std::vector<std::string> only, off;
  std::string explain;
  bool list = false;
};

/// What all subcommands are asked for; one of them runs.
struct Arguments {
  ConvertArguments convert;
  RandomizeArguments randomize;
  RandomizeWords randomizeWords;
  SettingsArguments settings;
  GetArguments get;
  SetArguments set;
  std::vector<std::string> setWords;  ///< files, items and values
  LookArguments levels;
  LevelArguments level;
  ColourArguments colour;
  CheckWords checkWords;
  CheckArguments check;
  ServerArguments server;
  DiffArguments diff;
  ApplyArguments apply;
  WordsArguments words;
  NewArguments start;
  std::vector<std::string> helpOn;  ///< the subcommand that "help" was asked about
  bool good = true;                 ///< what the subcommand has returned
};

/// Adds the subcommands; each fills its arguments and runs when the line has been parsed. "help"
/// only fills its own. `arguments` outlives the parser.
void DeclareSubcommands(CLI::App& program, Arguments& arguments);

/// What stands behind the options in the line of that command, such as "FILE... ITEM"; empty where
/// the parser knows it.
std::string SynopsisOf(const std::string& command);

}  // namespace tessel::cli
