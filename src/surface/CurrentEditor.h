// The editor that commands act on.
#pragma once

#include "surface/Document.h"

namespace tessel {

/// The slot of the current document: that of the selected tab.
Slot CurrentDocIndex(const HostedControls& controls);
RichTextBox& CurrentEditor(HostedControls& controls);

}  // namespace tessel
