#include "services/MemorySettingsStore.h"

#include "text/Text.h"

namespace tessel {

std::optional<std::string> MemorySettingsStore::GetSetting(const std::string& section,
                                                           const std::string& key) {
  const auto& [entries, places, next] = sections_[AsciiLower(section)];
  const auto place = places.find(AsciiLower(key));
  if (place == places.end()) return std::nullopt;
  return entries.at(place->second).second;
}

std::vector<SettingsStore::Entry> MemorySettingsStore::GetAllSettings(const std::string& section) {
  std::vector<Entry> result;
  for (const auto& [place, entry] : sections_[AsciiLower(section)].entries) result.push_back(entry);
  return result;
}

void MemorySettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                      const std::string& value) {
  auto& [entries, places, next] = sections_[AsciiLower(section)];
  const auto [place, isNew] = places.try_emplace(AsciiLower(key), next);
  if (isNew) {
    entries.emplace(next++, Entry{key, value});
  } else {
    entries.at(place->second).second = value;
  }
}

void MemorySettingsStore::DeleteSetting(const std::string& section, const std::string& key) {
  auto& [entries, places, next] = sections_[AsciiLower(section)];
  const auto place = places.find(AsciiLower(key));
  if (place == places.end()) return;
  entries.erase(place->second);
  places.erase(place);
}

}  // namespace tessel
