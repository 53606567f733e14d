// A menu that opens at the mouse.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "models/Control.h"

namespace tessel {

/// An item: a command, a sub-menu (with children), or a separator. "&" in the caption stands before
/// its mnemonic.
struct MenuItem {
  std::string name;
  std::string caption;  ///< "-" for a separator
  std::vector<MenuItem> children;
  bool enabled = true;

  bool IsSeparator() const { return caption == "-"; }
};

class PopupMenu : public Control {
 public:
  using Control::Control;

  void SetItems(std::vector<MenuItem> items);
  const std::vector<MenuItem>& Items() const { return items_; }
  /// The item of that name, wherever it stands in the tree, or null.
  const MenuItem* Find(std::string_view name) const;
  void SetItemEnabled(std::string_view name, bool enabled);
  /// The commands of the tree in its order: neither sub-menus nor separators.
  std::vector<const MenuItem*> Leaves() const;

  /// Opens the menu at the mouse; returns at once.
  void PopUp() { Opened.Raise(); }

  /// What a person does: chooses an item.
  void Choose(const std::string& name) { ItemClick.Raise(name); }

  Event<> Opened;
  Event<const std::string&> ItemClick;

 private:
  std::vector<MenuItem> items_;
};

}  // namespace tessel
