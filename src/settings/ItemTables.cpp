#include "settings/ItemTables.h"

#include <algorithm>

#include "text/Text.h"

namespace tessel {
namespace {

const Weapon* RowAt(const WeaponCategory& category, int position) {
  const bool listed = position >= 0 && position < std::ssize(category.weapons);
  return listed ? &category.weapons[static_cast<std::size_t>(position)] : nullptr;
}

/// The row's key with another name in the place of the row's own.
std::string KeyFor(const Weapon& row, std::string_view weapon) {
  std::string key(row.key);
  const std::string own = ToUpperText(row.name);
  const std::size_t at = row.keyOfPlace ? std::string::npos : key.find(own);
  return at == std::string::npos ? key : key.replace(at, own.size(), ToUpperText(weapon));
}

}  // namespace

std::string WeaponKey(int category, std::string_view weapon, int position) {
  if (category < 0 || category >= std::ssize(WeaponCategoryTable)) return {};
  const WeaponCategory& rules = WeaponCategoryTable[static_cast<std::size_t>(category)];
  if (const Weapon* row = RowAt(rules, position)) return KeyFor(*row, weapon);
  const auto unlisted = std::ranges::find(rules.unlisted, position, &UnlistedKey::position);
  if (unlisted != rules.unlisted.end()) return std::string(unlisted->key);
  return std::string(rules.before) + ToUpperText(weapon) + std::string(rules.behind);
}

std::vector<std::string> PresetValues() {
  struct Range {
    int first, last, step;
  };
  std::vector<std::string> values;
  for (const Range range :
       {Range{0, 19, 5}, Range{25, 100, 25}, Range{200, 1000, 100}, Range{2000, 7000, 1000}}) {
    for (int value = range.first; value <= range.last; value += range.step) {
      values.push_back(std::to_string(value));
    }
  }
  return values;
}

}  // namespace tessel
