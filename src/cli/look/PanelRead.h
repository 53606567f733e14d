// What the settings panel shows.
#pragma once

#include <optional>
#include <string>

#include "cli/look/DocumentSession.h"
#include "settings/PanelItems.h"

namespace tessel::cli {

/// What the panel shows as the value, and selects in the document; nothing when it finds nothing.
std::optional<std::string> ReadItem(DocumentSession& session, const PanelItem& item);

}  // namespace tessel::cli
