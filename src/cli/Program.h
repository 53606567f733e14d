// The program as a whole.
#pragma once

namespace tessel::cli {

/// From now on the program says so and ends with status 1 where memory ends and nobody catches it.
void TellWhenMemoryEnds();

/// Does what the arguments ask for; returns the exit status (see Options.h). Results go to
/// std::cout, what there is to say to std::cerr.
int RunProgram(int argc, char** argv);

}  // namespace tessel::cli
