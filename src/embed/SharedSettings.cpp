#include "embed/SharedSettings.h"

#include <map>

#include "posix/FallbackSettingsStore.h"
#include "qt/services/QtMessageBox.h"

namespace tessel {

std::shared_ptr<SettingsStore> SharedSettings(const std::string& path) {
  static std::map<std::string, std::weak_ptr<SettingsStore>> stores;
  std::weak_ptr<SettingsStore>& known = stores[path];
  if (auto store = known.lock()) return store;
  auto store = std::make_shared<FallbackSettingsStore>(path, TellWhenIdle);
  known = store;
  return store;
}

}  // namespace tessel
