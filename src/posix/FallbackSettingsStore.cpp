#include "posix/FallbackSettingsStore.h"

#include <utility>

#include "base/RuntimeError.h"
#include "posix/SqliteSettingsStore.h"
#include "services/MemorySettingsStore.h"

namespace tessel {

FallbackSettingsStore::FallbackSettingsStore(const std::string& path, Report report)
    : report_(std::move(report)) {
  try {
    store_ = std::make_unique<SqliteSettingsStore>(path);
  } catch (const RuntimeError& error) {
    GoOnInMemory(error.what());
  }
}

void FallbackSettingsStore::GoOnInMemory(const std::string& reason) {
  store_ = std::make_unique<MemorySettingsStore>();
  inFile_ = false;
  if (report_) report_(reason + " Settings are kept in memory for now.");
}

template <class Call>
auto FallbackSettingsStore::Use(Call call) {
  if (inFile_) {
    try {
      return call(*store_);
    } catch (const RuntimeError& error) {
      GoOnInMemory(error.what());
    }
  }
  return call(*store_);
}

std::optional<std::string> FallbackSettingsStore::GetSetting(const std::string& section,
                                                             const std::string& key) {
  return Use([&](SettingsStore& store) { return store.GetSetting(section, key); });
}

std::vector<SettingsStore::Entry> FallbackSettingsStore::GetAllSettings(
    const std::string& section) {
  return Use([&](SettingsStore& store) { return store.GetAllSettings(section); });
}

void FallbackSettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                        const std::string& value) {
  Use([&](SettingsStore& store) { store.SaveSetting(section, key, value); });
}

void FallbackSettingsStore::SaveSettings(const std::string& section,
                                         const std::vector<Entry>& entries) {
  Use([&](SettingsStore& store) { store.SaveSettings(section, entries); });
}

void FallbackSettingsStore::DeleteSetting(const std::string& section, const std::string& key) {
  Use([&](SettingsStore& store) { store.DeleteSetting(section, key); });
}

}  // namespace tessel
