// Settings that never stop the program.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "services/Services.h"

namespace tessel {

/// The settings in a file (see SqliteSettingsStore) for as long as that works. When it does not,
/// from the start or in any later call, this says so once and goes on with an empty store in
/// memory; the file is left as it is.
class FallbackSettingsStore : public SettingsStore {
 public:
  /// Is given a sentence for the user.
  using Report = std::function<void(const std::string&)>;

  /// May report already.
  FallbackSettingsStore(const std::string& path, Report report);

  std::optional<std::string> GetSetting(const std::string& section,
                                        const std::string& key) override;
  std::vector<Entry> GetAllSettings(const std::string& section) override;
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override;
  void SaveSettings(const std::string& section, const std::vector<Entry>& entries) override;
  void DeleteSetting(const std::string& section, const std::string& key) override;

 private:
  template <class Call>
  auto Use(Call call);
  void GoOnInMemory(const std::string& reason);

  Report report_;
  std::unique_ptr<SettingsStore> store_;
  bool inFile_ = true;
};

}  // namespace tessel
