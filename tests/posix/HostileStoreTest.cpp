// A settings file that somebody made to do harm: nothing in it runs, and nothing waits for it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <ctime>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/SqliteSettingsStore.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

constexpr const char* kEndless =
    "WITH RECURSIVE endless(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM endless)";
// The columns of the true table.
constexpr const char* kColumns =
    "place INTEGER PRIMARY KEY, section BLOB NOT NULL, key BLOB NOT NULL, value BLOB NOT NULL,"
    " section_folded BLOB NOT NULL, key_folded BLOB NOT NULL";

void RunSql(const std::string& path, const std::string& sql) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
  char* problem = nullptr;
  EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &problem), SQLITE_OK) << problem;
  sqlite3_close(database);
}

class HostileStore : public testing::Test {
 protected:
  /// A true store, with one entry.
  void PutStore() { SqliteSettingsStore(path).SaveSetting("s", "key", "value"); }

  /// A program starts with it: it says so at once and goes on in memory; the file stays.
  void ExpectRefusal(const std::string& reason) {
    const std::string before = BytesOf(path);
    const std::clock_t start = std::clock();
    FallbackSettingsStore store(path, [&](const std::string& text) { reports.push_back(text); });
    EXPECT_THAT(store.GetAllSettings("s"), IsEmpty());
    store.SaveSetting("s", "other", "1");
    store.DeleteSetting("s", "key");
    EXPECT_EQ(store.GetSetting("s", "other"), "1");
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
    EXPECT_THAT(reports, ElementsAre("Cannot use the settings store " + path + ": " + reason +
                                     ". Settings are kept in memory for now."));
    EXPECT_TRUE(BytesOf(path) == before);
  }

  TempDirectory directory;
  std::string path = directory / "settings.db";
  std::vector<std::string> reports;
};

TEST_F(HostileStore, IsRefusedWithAViewInTheTablesPlace) {
  const std::string endless = std::string(kEndless) +
                              " SELECT n AS place, x'73' AS section, x'6b' AS key, x'76' AS value,"
                              " x'73' AS section_folded, x'6b' AS key_folded FROM endless";
  RunSql(path, "CREATE VIEW settings AS " + endless + "; PRAGMA user_version = 1");
  ExpectRefusal("it is no settings store");
}

TEST_F(HostileStore, IsRefusedWithWhatTheTrueOneDoesNotHave) {
  for (const std::string more :
       {"CREATE TRIGGER all_gone AFTER INSERT ON settings BEGIN DELETE FROM settings; END",
        "CREATE VIEW more AS SELECT * FROM settings", "CREATE TABLE more (a)",
        "CREATE INDEX more ON settings (abs(value))"}) {
    std::filesystem::remove(path);
    reports.clear();
    PutStore();
    RunSql(path, more);
    SCOPED_TRACE(more);
    ExpectRefusal("it is no settings store");
  }
}

TEST_F(HostileStore, IsRefusedWithAnotherTableOfThatName) {
  const std::string columns = kColumns;
  for (const std::string& table :
       {"TABLE settings (" + columns + ")",
        "TABLE settings (" + columns + ", UNIQUE (section_folded, key_folded), CHECK (key <> 1))",
        "TABLE settings (" + columns +
            ", harm AS (zeroblob(1000000000)), UNIQUE (section_folded, key_folded))",
        std::string("TABLE settings (a)"),
        std::string("VIRTUAL TABLE settings USING fts5(section, key, value)")}) {
    std::filesystem::remove(path);
    reports.clear();
    RunSql(path, "CREATE " + table + "; PRAGMA user_version = 1");
    SCOPED_TRACE(table);
    ExpectRefusal("it is no settings store");
  }
}

TEST_F(HostileStore, IsRefusedWithoutATable) {
  RunSql(path, "PRAGMA user_version = 1");
  ExpectRefusal("it is no settings store");
}

TEST_F(HostileStore, IsRefusedWithSoManyRowsThatLookingAtThemTakesLong) {
  PutStore();
  RunSql(path, std::string("BEGIN; ") +
                   "WITH RECURSIVE many(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM many LIMIT "
                   "1000000) INSERT INTO settings (section, key, value, section_folded, "
                   "key_folded) SELECT x'73', n, x'76', x'73', n FROM many; COMMIT");
  ExpectRefusal("it takes too long to read");
}

// --- What another program makes of it while it is open

TEST_F(HostileStore, RunsNoTriggerThatComesLater) {
  PutStore();
  SqliteSettingsStore store(path);
  RunSql(path, "CREATE TRIGGER all_gone AFTER INSERT ON settings BEGIN DELETE FROM settings; END");
  store.SaveSetting("s", "other", "1");
  EXPECT_EQ(store.GetAllSettings("s").size(), 2U);
}

TEST_F(HostileStore, ReadsNoViewThatComesLater) {
  PutStore();
  SqliteSettingsStore store(path);
  RunSql(path, "DROP TABLE settings; CREATE VIEW settings AS " + std::string(kEndless) +
                   " SELECT n AS place, x'73' AS section, n AS key, n AS value, x'73' AS"
                   " section_folded, n AS key_folded FROM endless");
  const std::clock_t start = std::clock();
  EXPECT_THROW(store.GetSetting("s", "key"), RuntimeError);
  EXPECT_THROW(store.GetAllSettings("s"), RuntimeError);
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

// --- What is no harm

TEST_F(HostileStore, IsNotOneOfTheFirstRelease) {
  RunSql(path, R"(
  CREATE TABLE settings (
    place INTEGER PRIMARY KEY,
    section BLOB NOT NULL,
    key BLOB NOT NULL,
    value BLOB NOT NULL,
    section_folded BLOB NOT NULL,
    key_folded BLOB NOT NULL,
    UNIQUE (section_folded, key_folded)
  );
  PRAGMA user_version = 1;
  INSERT INTO settings VALUES (1, x'73', x'6b', x'76', x'73', x'6b');)");
  EXPECT_EQ(SqliteSettingsStore(path).GetSetting("s", "k"), "v");
}

TEST_F(HostileStore, IsNotOneWithManyEntries) {
  PutStore();
  {
    SqliteSettingsStore store(path);
    std::vector<SettingsStore::Entry> entries;
    for (int i = 0; i < 20'000; ++i) entries.emplace_back(std::to_string(i), "value");
    store.SaveSettings("s", entries);
  }
  EXPECT_EQ(SqliteSettingsStore(path).GetAllSettings("s").size(), 20'001U);
}

}  // namespace
}  // namespace tessel::test
