// Options that several subcommands share.
#pragma once

#include <CLI/App.hpp>
#include <string>

#include "cli/Output.h"

namespace tessel::cli {

/// FILE, the CON file that a command works on.
void AddFile(CLI::App& command, std::string& file);

/// "-o FILE".
CLI::Option* AddOutput(CLI::App& command, std::string& file);

/// "-o FILE" or "--in-place".
void AddDestination(CLI::App& command, Destination& destination);

/// Refuses an empty value.
void TakeFileName(CLI::Option& option);

/// Makes an option's value the single-byte text of what the user typed (see FromTerminal); refuses
/// what a CON file cannot hold.
void TakeDocumentText(CLI::Option& option);

}  // namespace tessel::cli
