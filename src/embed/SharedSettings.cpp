#include "embed/SharedSettings.h"

#include <QCoreApplication>
#include <map>

#include "platform/FallbackSettingsStore.h"
#include "platform/qt/QtMessageBox.h"

namespace tessel {

std::shared_ptr<SettingsStore> SharedSettings(const std::string& path) {
  static std::map<std::string, std::weak_ptr<SettingsStore>> stores;
  std::weak_ptr<SettingsStore>& known = stores[path];
  if (auto store = known.lock()) return store;
  // It may come at any time, also inside of a command: the box waits until that is through.
  const auto tell = [](const std::string& problem) {
    const auto show = [problem] {
      QtMessageBox().Show(problem, MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
    };
    QMetaObject::invokeMethod(qApp, show, Qt::QueuedConnection);
  };
  auto store = std::make_shared<FallbackSettingsStore>(path, tell);
  known = store;
  return store;
}

}  // namespace tessel
