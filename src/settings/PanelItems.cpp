#include "settings/PanelItems.h"

#include <algorithm>
#include <span>

#include "settings/ItemTables.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr std::string_view kDefineWord = "define ";

/// Of a key that begins with the keyword, the panel searches for the beginning of a define line.
bool IsBeginning(const std::string& key) { return key.starts_with(kDefineWord); }

std::string DefineName(const std::string& key) {
  return IsBeginning(key) ? key.substr(kDefineWord.size()) : key;
}

void AddWeapons(std::vector<PanelItem>& items) {
  for (int category = 0; category < std::ssize(WeaponCategoryTable); ++category) {
    const WeaponCategory& rules = WeaponCategoryTable[static_cast<std::size_t>(category)];
    for (int i = 0; i < std::ssize(rules.weapons); ++i) {
      const std::string weapon(rules.weapons[static_cast<std::size_t>(i)].name);
      const std::string key = WeaponKey(category, weapon, i);
      items.push_back({"Weapon", std::string(rules.name) + "/" + weapon, DefineName(key), category,
                       i, IsBeginning(key)});
    }
  }
}

void AddItems(std::vector<PanelItem>& items, const char* section, std::span<const Item> table,
              bool wholeWord) {
  for (int i = 0; i < std::ssize(table); ++i) {
    const Item& row = table[static_cast<std::size_t>(i)];
    items.push_back({section, std::string(row.name), std::string(row.key), -1, i, false, wholeWord,
                     row.newerDialectOnly});
  }
}

}  // namespace

std::vector<PanelItem> PanelItems() {
  std::vector<PanelItem> items;
  AddItems(items, "Player", PlayerItemTable, true);
  AddWeapons(items);
  AddItems(items, "Enemy", EnemyItemTable, true);
  AddItems(items, "Misc", MiscItemTable, false);
  items.push_back(
      {"Misc", "Cameras Destructable", std::string(kCamerasDestructable), -1, -1, false, true});
  items.push_back(
      {"Misc", "Freeze Hurt Owner", std::string(kFreezerHurtOwner), -1, -1, false, true});
  return items;
}

std::optional<PanelItem> FindPanelItem(const std::string& name) {
  const std::vector<PanelItem> items = PanelItems();
  const auto it = std::ranges::find_if(items, [&](const PanelItem& item) {
    return EqualIgnoringAsciiCase(item.name, name) || EqualIgnoringAsciiCase(item.define, name);
  });
  if (it == items.end()) return std::nullopt;
  return *it;
}

}  // namespace tessel
