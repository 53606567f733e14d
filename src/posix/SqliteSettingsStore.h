// Settings in a file that several programs may use at once.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "services/Services.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tessel {

/// The settings store of the user: $ZANTHMAN_STORE, else ZanthMan/settings.db under
/// $XDG_CONFIG_HOME, else under .config in $HOME.
std::string DefaultSettingsPath();

/// A SQLite file. Opening it makes it, readable for its user alone, where it is missing, and the
/// directories on the way to it. Keys, names and values are any bytes. Every call is a transaction
/// of its own and waits up to two seconds for another program's.
///
/// What is in the file is not trusted: one whose tables are not exactly those of a settings store
/// is none, nothing in it runs, and a call that takes too many steps fails.
///
/// A file that is damaged, locked for longer, no settings store or one of a newer version is a
/// RuntimeError that names it, in the constructor or in a later call.
class SqliteSettingsStore : public SettingsStore {
 public:
  explicit SqliteSettingsStore(std::string path);
  ~SqliteSettingsStore() override;

  std::optional<std::string> GetSetting(const std::string& section,
                                        const std::string& key) override;
  std::vector<Entry> GetAllSettings(const std::string& section) override;
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override;
  void SaveSettings(const std::string& section, const std::vector<Entry>& entries) override;
  void DeleteSetting(const std::string& section, const std::string& key) override;

 private:
  class Statement;
  struct Closer {
    void operator()(sqlite3* database) const;
  };

  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Prepared = std::unique_ptr<sqlite3_stmt, Finalizer>;

  void Open();
  void TrustNothingInIt();
  void MakeSchema();
  void RefuseOtherSchema();
  void RefuseIfDamaged();
  Prepared Prepare(const char* sql);
  void Execute(const char* sql);
  int Number(const char* sql);
  [[noreturn]] void Fail(const std::string& reason) const;
  [[noreturn]] void Fail() const;

  std::string path_;
  int steps_ = 0;  // of the present statement, in thousands
  std::unique_ptr<sqlite3, Closer> database_;
  std::map<std::string_view, Prepared> prepared_;  // those that nobody uses, by their words
};

}  // namespace tessel
