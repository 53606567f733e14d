// A row of buttons, some with a drop-down menu.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "models/Control.h"

namespace tessel {

/// An item of a button's drop-down. Items are compared and found by key.
struct ButtonMenuItem {
  std::string text;  ///< "-" for a separator, which has no tag
  std::string key;
  std::string tag;

  bool IsSeparator() const { return text == "-" && tag.empty(); }
};

enum class ButtonStyle { kButton, kTwoState, kDropDown, kSeparator };

struct ToolbarButton {
  std::string key;
  std::string toolTip;
  ButtonStyle style = ButtonStyle::kButton;
  std::vector<ButtonMenuItem> menu = {};  ///< of a drop-down button
  bool enabled = true;
  bool pressed = false;  ///< a two-state button's value
};

/// Buttons are addressed by key (compared exactly), menu items by their place, from 1.
class Toolbar : public Control {
 public:
  using Control::Control;

  void Add(ToolbarButton button);
  const std::vector<ToolbarButton>& Buttons() const { return buttons_; }
  /// The button, or null.
  const ToolbarButton* Find(std::string_view key) const;

  bool Pressed(std::string_view key) const;
  /// Raises no event.
  void SetPressed(std::string_view key, bool pressed);
  /// Raises no event.
  void SetButtonEnabled(std::string_view key, bool enabled);

  int MenuCount(std::string_view key) const;
  const ButtonMenuItem& MenuItem(std::string_view key, int item) const;
  void InsertMenuItem(std::string_view key, int position, ButtonMenuItem item);
  void RemoveMenuItem(std::string_view key, int item);

  /// What a person does: presses a button; a two-state button toggles first.
  void Press(std::string_view key);
  /// What a person does: chooses an item of a button's drop-down. A separator does nothing.
  void PressMenuItem(std::string_view key, int item);

  Event<const ToolbarButton&> ButtonClick;
  /// The item is a copy: a handler may change the menu.
  Event<const ToolbarButton&, const ButtonMenuItem&> ButtonMenuClick;

 private:
  ToolbarButton& At(std::string_view key);

  std::vector<ToolbarButton> buttons_;
};

}  // namespace tessel
