// The command line of tessel: which subcommands and options there are.
#pragma once

namespace tessel::cli {

/// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;  ///< refused or failed: nothing was written
inline constexpr int kUsage = 2;

/// Runs the subcommand that the arguments name; returns the exit status. Arguments that cannot be
/// used, help and version are dealt with here.
int RunSubcommand(int argc, char** argv);

}  // namespace tessel::cli
