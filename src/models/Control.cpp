#include "models/Control.h"

#include <algorithm>

namespace tessel {

Control::Control(ControlSet& set, std::string name, int index)
    : set_(set), name_(std::move(name)), index_(index) {
  set_.controls_.push_back(this);
}

Control::~Control() { std::erase(set_.controls_, this); }

bool Control::Usable() const {
  for (const Control* c = this; c != nullptr; c = c->container_) {
    if (!c->enabled_ || c->left_ <= kParkedLeft) return false;
  }
  return true;
}

Control* ControlSet::Find(std::string_view name, int index) const {
  const auto it = std::ranges::find_if(controls_, [&](const Control* control) {
    return control->Name() == name && control->Index() == index;
  });
  return it == controls_.end() ? nullptr : *it;
}

}  // namespace tessel
