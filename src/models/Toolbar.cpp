#include "models/Toolbar.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tessel {

void Toolbar::Add(ToolbarButton button) {
  buttons_.push_back(std::move(button));
  Refresh.Raise();
}

const ToolbarButton* Toolbar::Find(std::string_view key) const {
  const auto it = std::ranges::find(buttons_, key, &ToolbarButton::key);
  return it == buttons_.end() || key.empty() ? nullptr : &*it;
}

ToolbarButton& Toolbar::At(std::string_view key) {
  const auto it = std::ranges::find(buttons_, key, &ToolbarButton::key);
  if (it == buttons_.end()) throw std::out_of_range("no such toolbar button");
  return *it;
}

bool Toolbar::Pressed(std::string_view key) const {
  const ToolbarButton* button = Find(key);
  return button != nullptr && button->pressed;
}

void Toolbar::SetPressed(std::string_view key, bool pressed) { Assign(At(key).pressed, pressed); }

void Toolbar::SetButtonEnabled(std::string_view key, bool enabled) {
  Assign(At(key).enabled, enabled);
}

int Toolbar::MenuCount(std::string_view key) const {
  const ToolbarButton* button = Find(key);
  return button == nullptr ? 0 : static_cast<int>(button->menu.size());
}

const ButtonMenuItem& Toolbar::MenuItem(std::string_view key, int item) const {
  return Find(key)->menu.at(static_cast<std::size_t>(item - 1));
}

void Toolbar::InsertMenuItem(std::string_view key, int position, ButtonMenuItem item) {
  auto& menu = At(key).menu;
  menu.insert(menu.begin() + (position - 1), std::move(item));
  Refresh.Raise();
}

void Toolbar::RemoveMenuItem(std::string_view key, int item) {
  auto& menu = At(key).menu;
  menu.erase(menu.begin() + (item - 1));
  Refresh.Raise();
}

void Toolbar::Press(std::string_view key) {
  ToolbarButton& button = At(key);
  if (button.style == ButtonStyle::kTwoState) Assign(button.pressed, !button.pressed);
  ButtonClick.Raise(button);
}

void Toolbar::PressMenuItem(std::string_view key, int item) {
  const ButtonMenuItem chosen = MenuItem(key, item);
  if (!chosen.IsSeparator()) ButtonMenuClick.Raise(At(key), chosen);
}

}  // namespace tessel
