// Where the user's session bus is.
#pragma once

namespace tessel {

/// Whether the environment names a session bus that is there already.
bool HasSessionBus();

/// Where there is no session bus, sees to it that nothing in this process starts one: the toolkit
/// would do so for its own purposes. To be called before the application object is made.
void StartNoSessionBus();

}  // namespace tessel
