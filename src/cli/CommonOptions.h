// Options that several subcommands share.
#pragma once

#include <CLI/App.hpp>
#include <string>

#include "cli/Output.h"

namespace tessel::cli {

inline void AddFile(CLI::App& command, std::string& file) {
  command.add_option("FILE", file, "the CON file")->required();
}

inline void AddDestination(CLI::App& command, Destination& destination) {
  auto* output =
      command.add_option("-o,--output", destination.file, "write the result to this file");
  command.add_flag("--in-place", destination.inPlace, "write the result over the file itself")
      ->excludes(output);
}

}  // namespace tessel::cli
