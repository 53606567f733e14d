// The settings file: where it lies, who may read it, several programs at once, and damage.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/SqliteSettingsStore.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// Runs SQL on a file, without the code under test.
void RunSql(const std::string& path, const char* sql) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(database);
}

class SqliteSettingsStoreTest : public testing::Test {
 protected:
  std::string OpeningError() {
    try {
      SqliteSettingsStore store(path);
    } catch (const RuntimeError& error) {
      return error.what();
    }
    return "no error";
  }

  /// A store that falls back; what it reports is collected.
  FallbackSettingsStore Fallback() {
    return {path, [this](const std::string& text) { reports.push_back(text); }};
  }

  /// Everything works, in memory, and was reported once.
  void ExpectInMemory(FallbackSettingsStore& store) {
    EXPECT_THAT(store.GetAllSettings("s"), IsEmpty());
    store.SaveSetting("s", "key", "value");
    EXPECT_EQ(store.GetSetting("s", "key"), "value");
    store.DeleteSetting("s", "key");
    EXPECT_EQ(store.GetSetting("s", "key"), std::nullopt);
    EXPECT_THAT(reports, ElementsAre(AllOf(HasSubstr(path),
                                           EndsWith(" Settings are kept in memory for now."))));
  }

  TempDirectory directory;
  std::string path = directory / "settings.db";
  std::vector<std::string> reports;
};

TEST_F(SqliteSettingsStoreTest, OutlivesTheProgram) {
  SqliteSettingsStore(path).SaveSetting("Paths", "CONPath", "/games");
  EXPECT_EQ(SqliteSettingsStore(path).GetSetting("paths", "conpath"), "/games");
}

TEST_F(SqliteSettingsStoreTest, IsOneFileThatNobodyElseCanRead) {
  const mode_t mask = ::umask(0);
  SqliteSettingsStore store(directory / "config/ZanthMan/settings.db");
  store.SaveSetting("Paths", "CONPath", "/games");
  ::umask(mask);
  EXPECT_EQ(ModeOf(directory / "config"), 0700U);
  EXPECT_EQ(ModeOf(directory / "config/ZanthMan"), 0700U);
  EXPECT_EQ(ModeOf(directory / "config/ZanthMan/settings.db"), 0600U);
  const auto files = std::filesystem::directory_iterator(directory / "config/ZanthMan");
  EXPECT_EQ(std::distance(files, {}), 1);
}

TEST_F(SqliteSettingsStoreTest, TakesAnEmptyFileAsANewStore) {
  directory.Put("settings.db", "");
  SqliteSettingsStore(path).SaveSetting("s", "key", "value");
  EXPECT_EQ(SqliteSettingsStore(path).GetSetting("s", "key"), "value");
}

TEST_F(SqliteSettingsStoreTest, TakesAMemoryNameForAFileName) {
  EXPECT_EQ(InChild([&] {
              std::filesystem::current_path(directory.Path());
              SqliteSettingsStore(":memory:").SaveSetting("s", "key", "value");
              return SqliteSettingsStore(":memory:").GetSetting("s", "key").value_or("none");
            }),
            "value");
}

TEST_F(SqliteSettingsStoreTest, ShowsOneProgramWhatAnotherWrote) {
  SqliteSettingsStore first(path);
  SqliteSettingsStore second(path);
  first.SaveSetting("s", "a", "1");
  second.SaveSetting("s", "b", "2");
  EXPECT_EQ(first.GetAllSettings("s"), second.GetAllSettings("s"));
  EXPECT_EQ(first.GetAllSettings("s").size(), 2U);
}

TEST_F(SqliteSettingsStoreTest, LosesNothingWhenSeveralProgramsStartAndWriteAtOnce) {
  // Not so many that a slow disk makes one of them wait for longer than it is willing to.
  constexpr int kPrograms = 4;
  constexpr int kWritings = 5;
  std::vector<pid_t> children;
  for (int program = 0; program < kPrograms; ++program) {
    children.push_back(::fork());
    if (children.back() != 0) continue;
    int status = 0;
    try {
      SqliteSettingsStore store(path);
      for (int i = 0; i < kWritings; ++i) {
        store.SaveSetting("s", std::to_string(program) + "-" + std::to_string(i), "value");
      }
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s\n", error.what());
      status = 1;
    }
    ::_exit(status);
  }
  for (const pid_t child : children) {
    int status = 1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(SqliteSettingsStore(path).GetAllSettings("s").size(), kPrograms * kWritings);
}

TEST_F(SqliteSettingsStoreTest, SavesAllOfManyEntriesOrNone) {
  SqliteSettingsStore store(path);
  RunSql(path, "CREATE UNIQUE INDEX refuse ON settings (value)");
  EXPECT_THROW(store.SaveSettings("s", {{"good", "1"}, {"bad", "1"}}), RuntimeError);
  EXPECT_THAT(store.GetAllSettings("s"), IsEmpty());
  RunSql(path, "DROP INDEX refuse");
  store.SaveSettings("s", {{"good", "1"}, {"better", "2"}});
  EXPECT_EQ(SqliteSettingsStore(path).GetAllSettings("s").size(), 2U);
}

// --- What cannot be used

TEST_F(SqliteSettingsStoreTest, RefusesAFileThatIsNoDatabase) {
  directory.Put("settings.db", "This is a text, and a long one, but no database at all.");
  EXPECT_EQ(OpeningError(), "Cannot use the settings store " + path + ": file is not a database.");
}

TEST_F(SqliteSettingsStoreTest, RefusesAStoreOfANewerVersion) {
  { const SqliteSettingsStore store(path); }
  RunSql(path, "PRAGMA user_version = 2");
  EXPECT_EQ(OpeningError(), "Cannot use the settings store " + path +
                                ": it was written by a newer version of this program.");
}

TEST_F(SqliteSettingsStoreTest, RefusesSomebodyElsesDatabase) {
  RunSql(path, "CREATE TABLE bookmarks (name TEXT)");
  const std::string before = BytesOf(path);
  EXPECT_EQ(OpeningError(), "Cannot use the settings store " + path + ": it is no settings store.");
  EXPECT_EQ(BytesOf(path), before);
}

TEST_F(SqliteSettingsStoreTest, RefusesADirectoryAndAPipe) {
  std::filesystem::create_directory(path);
  EXPECT_THAT(OpeningError(), EndsWith(": it is a directory."));
  std::filesystem::remove(path);
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_THAT(OpeningError(), EndsWith(": it is not a regular file."));
}

TEST_F(SqliteSettingsStoreTest, TellsWhenItsDirectoryCannotBeMade) {
  directory.Put("file", "");
  path = directory / "file/ZanthMan/settings.db";
  EXPECT_THAT(OpeningError(), AllOf(HasSubstr(path), EndsWith(": Not a directory.")));
}

TEST_F(SqliteSettingsStoreTest, TellsWhenItMayNotReadTheFile) {
  { const SqliteSettingsStore store(path); }
  if (::geteuid() != 0) ::chmod(path.c_str(), 0);
  EXPECT_THAT(AsOrdinaryUser([&] { return OpeningError(); }),
              StartsWith("Cannot use the settings store " + path));
}

// --- Going on without

TEST_F(SqliteSettingsStoreTest, GoesOnInMemoryAndKeepsADamagedFile) {
  const std::string damaged = "SQLite format 3" + std::string(5000, '\xAA');
  directory.Put("settings.db", damaged);
  auto store = Fallback();
  ExpectInMemory(store);
  EXPECT_EQ(BytesOf(path), damaged);
}

// A head without tables, whose list of free space does not fit.
TEST_F(SqliteSettingsStoreTest, KeepsADamagedFileInWhichNothingIs) {
  std::string damaged = "SQLite format 3" + std::string(91, '\0');
  const std::vector<std::pair<std::size_t, int>> bytes = {
      {16, 2},  {18, 1},  {19, 1}, {21, 64},  {22, 32}, {23, 32},   {27, 2},  {31, 6},
      {42, 32}, {43, 1},  {51, 1}, {55, 1},   {92, 39}, {93, 96},   {94, 40}, {95, 232},
      {97, 46}, {98, 99}, {99, 1}, {100, 13}, {101, 1}, {102, 248}, {105, 57}};
  for (const auto& [at, byte] : bytes) damaged[at] = static_cast<char>(byte);
  directory.Put("settings.db", damaged);
  FallbackSettingsStore store = Fallback();
  ExpectInMemory(store);
  EXPECT_TRUE(BytesOf(path) == damaged);
  EXPECT_THAT(directory.Names(), ElementsAre("settings.db"));
}

TEST_F(SqliteSettingsStoreTest, GoesOnInMemoryWhenThePagesOfAnOpenStoreTurnBad) {
  {
    SqliteSettingsStore store(path);
    for (int i = 0; i < 200; ++i) {
      store.SaveSetting("s", std::to_string(i), std::string(100, 'v'));
    }
  }
  auto store = Fallback();
  std::string damaged = BytesOf(path);
  std::fill(damaged.begin() + 4096, damaged.end(), '\xAA');
  directory.Put("settings.db", damaged);
  ExpectInMemory(store);
  EXPECT_TRUE(BytesOf(path) == damaged);
}

TEST_F(SqliteSettingsStoreTest, GoesOnInMemoryWhenAnotherProgramKeepsItLocked) {
  auto store = Fallback();
  store.SaveSetting("s", "key", "value");
  EXPECT_THAT(reports, IsEmpty());
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  ExpectInMemory(store);
  EXPECT_THAT(reports.at(0), HasSubstr("database is locked"));
  sqlite3_close(other);
  EXPECT_EQ(SqliteSettingsStore(path).GetSetting("s", "key"), "value");
}

TEST_F(SqliteSettingsStoreTest, GoesOnInMemoryWhenTheFileIsReadOnly) {
  SqliteSettingsStore(path).SaveSetting("s", "key", "value");
  GiveToOrdinaryUser(path);
  ::chmod(path.c_str(), 0400);
  EXPECT_EQ(AsOrdinaryUser([&] {
              auto store = Fallback();
              std::string result = store.GetSetting("s", "key").value_or("none");
              store.SaveSetting("s", "key", "other");
              result += ", " + store.GetSetting("s", "key").value_or("none");
              return result + ", " + std::to_string(reports.size());
            }),
            "value, other, 1");
}

TEST_F(SqliteSettingsStoreTest, NeedsNoReportToGoOn) {
  directory.Put("settings.db", "no database, but a text that is long enough");
  FallbackSettingsStore store(path, nullptr);
  store.SaveSetting("s", "key", "value");
  EXPECT_EQ(store.GetSetting("s", "key"), "value");
}

// --- Where it lies

struct Variables {
  const char* store;
  const char* config;
  const char* home;
};

std::string DefaultPathWith(const Variables& variables) {
  return InChild([&] {
    const auto set = [](const char* name, const char* value) {
      value == nullptr ? ::unsetenv(name) : ::setenv(name, value, 1);
    };
    set("ZANTHMAN_STORE", variables.store);
    set("XDG_CONFIG_HOME", variables.config);
    set("HOME", variables.home);
    return DefaultSettingsPath();
  });
}

TEST(DefaultSettingsPath, FollowsTheEnvironment) {
  EXPECT_EQ(DefaultPathWith({"/a/b.db", "/config", "/home/u"}), "/a/b.db");
  EXPECT_EQ(DefaultPathWith({nullptr, "/config", "/home/u"}), "/config/ZanthMan/settings.db");
  EXPECT_EQ(DefaultPathWith({"", "", "/home/u"}), "/home/u/.config/ZanthMan/settings.db");
  EXPECT_EQ(DefaultPathWith({nullptr, "relative", "/home/u"}),
            "/home/u/.config/ZanthMan/settings.db");
  EXPECT_THAT(DefaultPathWith({nullptr, nullptr, nullptr}),
              AllOf(StartsWith("/"), EndsWith("/.config/ZanthMan/settings.db")));
}

}  // namespace
}  // namespace tessel::test
