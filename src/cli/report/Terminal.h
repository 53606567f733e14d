// What standard output is.
#pragma once

namespace tessel::cli {

/// Is it a terminal that somebody reads?
bool IsTerminal();

/// Is it one, and has the user not turned colours off (NO_COLOR)?
bool TerminalWantsColour();

}  // namespace tessel::cli
