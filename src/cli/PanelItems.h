// The items of the settings panel, by name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/DocumentSession.h"

namespace tessel::cli {

/// One value that the settings panel can show and change.
struct PanelItem {
  std::string section;  ///< "Player", "Weapon", "Enemy" or "Misc"
  std::string name;     ///< display name; of a weapon "Category/Weapon"
  std::string define;   ///< what is searched for in the text, without "define "
  int category = -1;    ///< place in lstWeapInfo, of a weapon
  int entry = -1;       ///< place in its list; −1 for a YES/NO setting
};

/// All items, in the panel's order.
std::vector<PanelItem> PanelItems();

/// The item of a display name or a define name, ASCII case ignored.
std::optional<PanelItem> FindPanelItem(const std::string& name);

/// The value in the document, read through the panel; nothing when the define is not there.
std::optional<std::string> ReadItem(DocumentSession& session, const PanelItem& item);

/// Do two texts mean the same value? YES and NO are words, whatever their case.
bool IsSameValue(const PanelItem& item, const std::string& a, const std::string& b);

/// Writes the value through the panel. The define must be there.
void WriteItem(DocumentSession& session, const PanelItem& item, const std::string& value);

}  // namespace tessel::cli
