// Signals that are no reason to end.
#pragma once

namespace tessel::posix {

/// Lets a writing beyond the limit on the size of files fail as on a full disk, with an error. By
/// default the system ends the program there, with all its documents. Every program calls this
/// first.
void TakeSizeLimitsAsErrors();

}  // namespace tessel::posix
