// The items of the settings panel, by name.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessel {

/// One value that the settings panel can show and change.
struct PanelItem {
  std::string section;       ///< "Player", "Weapon", "Enemy" or "Misc"
  std::string name;          ///< display name; of a weapon "Category/Weapon"
  std::string define;        ///< what is searched for in the text, without "define "
  int category = -1;         ///< place in lstWeapInfo, of a weapon
  int entry = -1;            ///< place in its list; −1 for a YES/NO setting
  bool byBeginning = false;  ///< a define whose name begins with `define` is the item's, too
  bool wholeWord = false;    ///< the panel searches for whole words
  bool newerDialectOnly = false;

  /// What the panel searches for.
  std::string Key() const { return (byBeginning ? "define " : "") + define; }
};

/// All items, in the panel's order.
std::vector<PanelItem> PanelItems();

/// The item of a display name or a define name, ASCII case ignored.
std::optional<PanelItem> FindPanelItem(const std::string& name);

}  // namespace tessel
