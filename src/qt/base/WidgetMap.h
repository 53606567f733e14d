// Which widget shows which control.
#pragma once

#include <QPointer>
#include <QWidget>
#include <unordered_map>

#include "models/Control.h"

namespace tessel {

/// The widgets of one TesselWidget, its open and its hidden forms included. For the service that
/// moves the focus, and for whoever plays the user.
class WidgetMap {
 public:
  void Add(const Control& control, QWidget* widget) { widgets_[&control] = widget; }
  void Remove(const Control& control) { widgets_.erase(&control); }

  /// The widget a person acts on, or null.
  QWidget* Find(const Control& control) const {
    const auto it = widgets_.find(&control);
    return it == widgets_.end() ? nullptr : it->second.data();
  }

 private:
  std::unordered_map<const Control*, QPointer<QWidget>> widgets_;
};

}  // namespace tessel
