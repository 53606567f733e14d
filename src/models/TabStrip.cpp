#include "models/TabStrip.h"

#include <algorithm>
#include <utility>

namespace tessel {

void TabStrip::SetTabCaption(int tab, std::string caption) {
  Assign(Mutable(tab).caption, std::move(caption));
}

void TabStrip::SetTabTag(int tab, std::string tag) { Assign(Mutable(tab).tag, std::move(tag)); }

void TabStrip::SetTabImage(int tab, std::string image) {
  Assign(Mutable(tab).image, std::move(image));
}

void TabStrip::Add(Tab tab) {
  tabs_.push_back(std::move(tab));
  if (selected_ == 0) selected_ = 1;
  Refresh.Raise();
}

void TabStrip::Remove(int tab) {
  tabs_.erase(tabs_.begin() + (tab - 1));
  selected_ = std::min(selected_, Count());
  Refresh.Raise();
}

void TabStrip::Select(int tab) {
  Assign(selected_, tab);
  Click.Raise();
}

}  // namespace tessel
