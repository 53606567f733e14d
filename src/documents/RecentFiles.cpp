#include "documents/RecentFiles.h"

#include "base/RuntimeError.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr const char* kMenu = "FileNew";
constexpr const char* kSection = "PreviousCons";
constexpr int kMostRecentFiles = 5;

}  // namespace

int FirstRecentFile(const Toolbar& toolbar) {
  int place = toolbar.MenuCount(kMenu);
  while (place > 0 && !toolbar.MenuItem(kMenu, place).IsSeparator()) --place;
  return place + 1;
}

void AddRecentFile(Toolbar& toolbar, SettingsStore& settings, const std::string& name,
                   const std::string& path) {
  const int count = toolbar.MenuCount(kMenu);
  const int first = FirstRecentFile(toolbar);
  // From the separator on: an entry that would be one more separator counts as listed.
  for (int k = first - 1; k <= count; ++k) {
    const ButtonMenuItem& item = toolbar.MenuItem(kMenu, k);
    if (item.tag == path && item.text == name) return;
  }
  if (count - first + 1 == kMostRecentFiles) {
    settings.DeleteSetting(kSection, ToUpperText(toolbar.MenuItem(kMenu, count).text));
    toolbar.RemoveMenuItem(kMenu, count);
  }
  toolbar.InsertMenuItem(kMenu, first, {name, {}, path});
  settings.SaveSetting(kSection, ToUpperText(name), ToUpperText(path));
}

void LoadRecentFiles(Toolbar& toolbar, SettingsStore& settings) {
  for (const auto& [key, value] : settings.GetAllSettings(kSection)) {
    try {
      AddRecentFile(toolbar, settings, ToUpperText(key), ToUpperText(value));
    } catch (const RuntimeError&) {  // on the list, but not in the store: the next entry
    }
  }
}

}  // namespace tessel
