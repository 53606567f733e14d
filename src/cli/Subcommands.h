// The subcommands of tessel. Each adds itself, its options and its callback to the program.
#pragma once

#include <CLI/App.hpp>

namespace tessel::cli {

/// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;  ///< refused or failed: nothing was written
inline constexpr int kUsage = 2;

/// `status` gets the exit status of the subcommand that ran.
void AddConvert(CLI::App& program, int& status);
void AddRandomize(CLI::App& program, int& status);
void AddSettings(CLI::App& program, int& status);
void AddGet(CLI::App& program, int& status);
void AddSet(CLI::App& program, int& status);
void AddLevels(CLI::App& program, int& status);
void AddLevel(CLI::App& program, int& status);
void AddColour(CLI::App& program, int& status);
void AddWords(CLI::App& program, int& status);
void AddNew(CLI::App& program, int& status);

}  // namespace tessel::cli
