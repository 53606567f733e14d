// Where the control's parts stand, computed from its size.
#pragma once

#include "surface/HostedControls.h"

namespace tessel {

/// Lays the hosted controls out for the control's current scale size. Only the current document's
/// editor is sized; the others stay parked.
void Layout(HostedControls& controls);

}  // namespace tessel
