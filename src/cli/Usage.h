// What the command line says about its own use.
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace tessel::cli {

/// Gives the program and each of its subcommands "--version", and subcommands of subcommands the
/// options of their parents.
void AddVersion(CLI::App& app, const std::string& version);

/// The sentence for arguments that cannot be used.
std::string UsageMessage(const CLI::App& program, const CLI::Error& error);

}  // namespace tessel::cli
