// A row of tabs of which one is selected.
#pragma once

#include <string>
#include <vector>

#include "models/Control.h"

namespace tessel {

struct Tab {
  std::string caption;
  std::string key;
  std::string tag;
  std::string image;  ///< key of an image of the strip's image list; empty: none
};

/// Tabs count from 1.
class TabStrip : public Control {
 public:
  using Control::Control;

  int Count() const { return static_cast<int>(tabs_.size()); }
  const Tab& At(int tab) const { return tabs_.at(static_cast<std::size_t>(tab - 1)); }

  void SetTabCaption(int tab, std::string caption);
  void SetTabTag(int tab, std::string tag);
  void SetTabImage(int tab, std::string image);

  /// Appends a tab. The first tab of a strip is selected, without an event.
  void Add(Tab tab);
  /// Takes a tab away, without an event. When the selection would then lie behind the last tab, the
  /// last one counts as selected.
  void Remove(int tab);

  /// The selected tab's number; 0 while the strip has none.
  int Selected() const { return selected_; }
  /// Selects a tab and raises Click, also when it was selected already.
  void Select(int tab);

  /// What a person does: clicks a tab.
  void Press(int tab) { Select(tab); }

  Event<> Click;

 private:
  Tab& Mutable(int tab) { return tabs_.at(static_cast<std::size_t>(tab - 1)); }

  std::vector<Tab> tabs_;
  int selected_ = 0;
};

}  // namespace tessel
