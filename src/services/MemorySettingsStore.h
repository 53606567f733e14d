// Settings that last as long as the program.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "services/Services.h"

namespace tessel {

class MemorySettingsStore : public SettingsStore {
 public:
  std::optional<std::string> GetSetting(const std::string& section,
                                        const std::string& key) override;
  std::vector<Entry> GetAllSettings(const std::string& section) override;
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override;
  void DeleteSetting(const std::string& section, const std::string& key) override;

 private:
  using Place = std::size_t;

  struct Section {
    std::map<Place, Entry> entries;       // in the order of first writing
    std::map<std::string, Place> places;  // by the key in lower case
    Place next = 0;
  };

  std::map<std::string, Section> sections_;  // by the name in lower case
};

}  // namespace tessel
