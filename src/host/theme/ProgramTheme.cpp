#include "host/theme/ProgramTheme.h"

#include <QApplication>
#include <algorithm>

#include "automation/SessionBus.h"
#include "host/theme/DesktopColours.h"

namespace tessel {

ColourScheme WishedScheme(const Preferences& preferences) {
  return static_cast<ColourScheme>(std::clamp(preferences.Number(Wish::kTheme), 0, 2));
}

ProgramTheme::ProgramTheme(Preferences& preferences) {
  changed_ = preferences.Changed.Connect([this, &preferences](Wish wish) {
    if (wish != Wish::kTheme) return;
    scheme_ = WishedScheme(preferences);
    Apply();
  });
}

void ProgramTheme::FollowDesktop() {
  QString problem;
  const auto bus = SessionBus(problem);
  if (!bus) return;
  desktop_ = new DesktopColours(*bus, this);
  connect(desktop_, &DesktopColours::changed, this, [this] {
    if (scheme_ == ColourScheme::kDesktop) Apply();
  });
}

void ProgramTheme::Apply() {
  ApplyTheme(*qApp, scheme_, desktop_ == nullptr ? DesktopWishes() : desktop_->Wishes());
}

}  // namespace tessel
