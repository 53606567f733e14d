// A settings store that cannot be used: the program says so once, works, and keeps the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "posix/SqliteSettingsStore.h"
#include "support/ChildProcess.h"
#include "support/RealWorld.h"
#include "support/RecentNames.h"

namespace tessel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t kPage = 4096;

/// Runs SQL on a file, without the code under test.
void RunSql(const std::string& path, const char* sql) {
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(database);
}

class StoreTest : public testing::Test {
 protected:
  /// A store with some use behind it.
  void MakeStore() {
    SqliteSettingsStore store(path);
    store.SaveSetting("Paths", "CONPath", "/games");
    std::vector<SettingsStore::Entry> words;
    for (int i = 0; i < 300; ++i) {
      const std::string word = "word" + std::to_string(i);
      words.emplace_back("NAME" + word, word);
      words.emplace_back("PARAMS" + word, "[n]");
    }
    store.SaveSettings("ConWords", words);
  }

  /// A person works with the program on a store that it cannot use.
  void ExpectWorkWithout(const std::string& reason) {
    const std::string before = BytesOf(path);
    {
      Program program(path);
      EXPECT_THAT(program.reports, ElementsAre("Cannot use the settings store " + path + ": " +
                                               reason + ". Settings are kept in memory for now."));
      Work(program);
      EXPECT_EQ(program.reports.size(), 1U);
    }
    EXPECT_TRUE(BytesOf(path) == before) << "the file changed";
  }

  void Work(Program& program) {
    const std::string file = directory.Put("user.con", "define A 1");
    program.Open(file);
    program.Retype("define A 2");
    program.Save();
    EXPECT_THAT(program.Told(), IsEmpty());
    EXPECT_EQ(BytesOf(file), "define A 2");
    EXPECT_EQ(RecentNames(program.Controls().tbToolBar).at(0), "user.con");
    program.settings.SaveSetting("ConWords", "NAMEai", "ai");
    EXPECT_EQ(program.settings.GetSetting("ConWords", "NAMEai"), "ai");
  }

  TempDirectory directory;
  std::string path = directory / "settings.db";
};

TEST_F(StoreTest, IsReplacedInMemoryWhenItIsNoDatabase) {
  directory.Put("settings.db", "This is a text, and a long one, but no database at all.");
  ExpectWorkWithout("file is not a database");
}

TEST_F(StoreTest, IsReplacedInMemoryWhenItIsTruncated) {
  MakeStore();
  const std::string whole = BytesOf(path);
  directory.Put("settings.db", whole.substr(0, whole.size() * 2 / 3));
  ExpectWorkWithout("database disk image is malformed");
}

TEST_F(StoreTest, IsReplacedInMemoryWhenAPageIsDamaged) {
  MakeStore();
  std::string bytes = BytesOf(path);
  bytes.replace(3 * kPage, kPage, kPage, '\xAA');
  directory.Put("settings.db", bytes);
  ExpectWorkWithout("it is damaged");
}

// Asked for a word, such a store would say that there is none.
TEST_F(StoreTest, IsReplacedInMemoryWhenItsIndexLostEntries) {
  {
    SqliteSettingsStore store(path);
    store.SaveSetting("Paths", "CONPath", "/games");
  }
  std::string bytes = BytesOf(path);
  bytes[2 * kPage + 4] = 0;  // the number of entries in the index's page
  directory.Put("settings.db", bytes);
  ExpectWorkWithout("it is damaged");
}

TEST_F(StoreTest, IsReplacedInMemoryWhenItIsOfANewerVersion) {
  MakeStore();
  RunSql(path, "PRAGMA user_version = 2");
  ExpectWorkWithout("it was written by a newer version of this program");
}

TEST_F(StoreTest, IsReplacedInMemoryWhenAnotherProgramKeepsItLocked) {
  MakeStore();
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  ExpectWorkWithout("database is locked");
  sqlite3_close(other);
  EXPECT_EQ(SqliteSettingsStore(path).GetSetting("Paths", "CONPath"), "/games");
}

TEST_F(StoreTest, IsReplacedInMemoryWhenItIsADirectory) {
  std::filesystem::create_directory(path);
  Program program(path);
  EXPECT_THAT(program.reports,
              ElementsAre(AllOf(StartsWith("Cannot use the settings store " + path),
                                EndsWith(": it is a directory. Settings are kept "
                                         "in memory for now."))));
  Work(program);
}

TEST_F(StoreTest, IsReplacedInMemoryWhenItIsAPipeWithoutWaitingForIt) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(InChild([&] {
              ::alarm(20);
              Program program(path);
              Work(program);
              return program.reports.at(0);
            }),
            "Cannot use the settings store " + path +
                ": it is not a regular file. Settings are kept in memory for now.");
}

TEST_F(StoreTest, IsReadAndThenReplacedInMemoryWhenItIsReadOnly) {
  MakeStore();
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  const std::string before = BytesOf(path);
  const std::string file = directory.Put("user.con", "define A 1");
  EXPECT_EQ(AsOrdinaryUser([&] {
              Program program(path);
              std::string result = program.control.CONPath() + ", ";
              program.Open(file);
              result += program.Editor().Text() + ", " + program.ToldInALine();
              return result + program.reports.at(0);
            }),
            "/games, define A 1, Cannot use the settings store " + path +
                ": attempt to write a readonly database. Settings are kept in memory for now.");
  EXPECT_TRUE(BytesOf(path) == before);
}

TEST_F(StoreTest, IsKeptInMemoryWhereItsFolderCannotBeMade) {
  ASSERT_EQ(::chmod(directory.Path().c_str(), 0555), 0);
  const std::string file = directory / "config/ZanthMan/settings.db";
  EXPECT_EQ(AsOrdinaryUser([&] {
              Program program(file);
              program.settings.SaveSetting("s", "key", "value");
              return program.settings.GetSetting("s", "key").value_or("none") + ", " +
                     program.reports.at(0);
            }),
            "value, Cannot use the settings store " + file +
                ": Permission denied. Settings are kept in memory for now.");
  EXPECT_FALSE(std::filesystem::exists(directory / "config"));
}

TEST_F(StoreTest, IsKeptInMemoryWhereItsFolderVanishesMeanwhile) {
  const std::string folder = directory / "config";
  Program program(folder + "/settings.db");
  std::filesystem::remove_all(folder);
  Work(program);
  EXPECT_LE(program.reports.size(), 1U);
}

}  // namespace
}  // namespace tessel::test
