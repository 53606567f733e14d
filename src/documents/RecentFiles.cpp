#include "documents/RecentFiles.h"

#include "base/RuntimeError.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr const char* kMenu = "FileNew";
constexpr const char* kSection = "PreviousCons";
constexpr int kFixedItems = 9;  // templates and separators
constexpr int kMostItems = 14;

}  // namespace

void AddRecentFile(Toolbar& toolbar, SettingsStore& settings, const std::string& name,
                   const std::string& path) {
  const int count = toolbar.MenuCount(kMenu);
  for (int k = kFixedItems; k <= count; ++k) {
    const ButtonMenuItem& item = toolbar.MenuItem(kMenu, k);
    if (item.tag == path && item.text == name) return;
  }
  if (count == kMostItems) {
    settings.DeleteSetting(kSection, ToUpperText(toolbar.MenuItem(kMenu, kMostItems).text));
    toolbar.RemoveMenuItem(kMenu, kMostItems);
  }
  toolbar.InsertMenuItem(kMenu, kFixedItems + 1, {name, {}, path});
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
