#include "models/PopupMenu.h"

#include <utility>

namespace tessel {
namespace {

template <class Items>
auto FindIn(Items& items, std::string_view name) -> decltype(items.data()) {
  for (auto& item : items) {
    if (item.name == name) return &item;
    if (auto* found = FindIn(item.children, name)) return found;
  }
  return nullptr;
}

void CollectLeaves(const std::vector<MenuItem>& items, std::vector<const MenuItem*>& leaves) {
  for (const MenuItem& item : items) {
    if (item.IsSeparator()) continue;
    if (item.children.empty()) leaves.push_back(&item);
    CollectLeaves(item.children, leaves);
  }
}

}  // namespace

void PopupMenu::SetItems(std::vector<MenuItem> items) { Assign(items_, std::move(items)); }

const MenuItem* PopupMenu::Find(std::string_view name) const {
  return name.empty() ? nullptr : FindIn(items_, name);
}

void PopupMenu::SetItemEnabled(std::string_view name, bool enabled) {
  if (MenuItem* item = FindIn(items_, name)) Assign(item->enabled, enabled);
}

std::vector<const MenuItem*> PopupMenu::Leaves() const {
  std::vector<const MenuItem*> leaves;
  CollectLeaves(items_, leaves);
  return leaves;
}

}  // namespace tessel
