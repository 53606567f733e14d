// Whether a run lives, where no lock tells.
#pragma once

#include <string>

namespace tessel {

enum class RunState {
  kLives,
  kEnded,
  kElsewhere  ///< it is one of another computer, of whose processes nothing is known here
};

/// A line that tells this run from all others: when the computer was started, when the process was,
/// and the computer's name.
std::string MarkOfThisRun();

/// The state of the run that has that process number and has left that line. Without a line, as of
/// a program that was killed before it wrote one, the process number alone decides.
RunState StateOfRun(long process, const std::string& mark);
/// The name of the computer in the line; empty without one.
std::string ComputerIn(const std::string& mark);

}  // namespace tessel
