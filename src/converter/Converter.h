// The version converter.
#pragma once

#include <vector>

#include "converter/VersionEdits.h"
#include "services/Services.h"
#include "surface/HostedControls.h"

namespace tessel {

/// Converts the current document, a user file of the 1.3D dialect, into one of the 1.4/1.5 dialect
/// and returns what each step did. Everything written is red; afterwards the caret is at 0, the
/// document is marked as modified, and there is nothing to undo.
///
/// A file that is converted already, or is no user file, is refused with a message; nothing but the
/// selection changes, the caret stays, and the result is empty. A conversion that fails leaves the
/// document exactly as it was and passes its RuntimeError on.
std::vector<StepResult> ConvertUserCon(HostedControls& controls, const Services& services);

}  // namespace tessel
