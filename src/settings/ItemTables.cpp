#include "settings/ItemTables.h"

#include <algorithm>

#include "text/Text.h"

namespace tessel {

std::string PlayerKey(const Item& item) {
  return item.key.empty() ? ToUpperText(item.displayName) + "_AMOUNT" : std::string(item.key);
}

std::string WeaponKey(int category, std::string_view weapon, int position) {
  if (category < 0 || category >= std::ssize(WeaponCategoryTable)) return {};
  const WeaponCategory& rules = WeaponCategoryTable[static_cast<std::size_t>(category)];
  const auto fixed = std::ranges::find(rules.fixedKeys, position, &FixedKey::position);
  const bool isFixed = fixed != rules.fixedKeys.end();
  if (isFixed && fixed->wholeKey) return std::string(fixed->before);
  return std::string(isFixed ? fixed->before : rules.before) + ToUpperText(weapon) +
         std::string(isFixed ? fixed->behind : rules.behind);
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
