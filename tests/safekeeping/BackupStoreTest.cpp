// Backups, without a window.
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <set>

#include "posix/PosixFiles.h"
#include "safekeeping/BackupStore.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class Backups : public testing::Test {
 protected:
  void Save(const std::string& path, const std::string& bytes) { files_.Write(path, bytes); }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Backup& backup : store_.List()) texts.push_back(store_.Read(backup).bytes);
    return texts;
  }
  static void ExpectPrivate(const std::string& folder) {
    EXPECT_EQ(ModeOf(folder), 0700U);
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      EXPECT_EQ(ModeOf(entry.path()), 0600U) << entry.path();
      EXPECT_TRUE(std::filesystem::is_regular_file(entry.symlink_status())) << entry.path();
    }
  }

  /// As if the clock had been ahead by years when they were kept.
  void MoveAllIntoTheFuture() const {
    constexpr std::size_t kTime = 17;  // where it stands in a name
    const std::string time = "09000000000000000000";
    for (const Backup& backup : store_.List()) {
      std::string name = backup.name;
      name.replace(kTime, time.size(), time);
      std::filesystem::rename(folder_ + "/" + backup.name, folder_ + "/" + name);
    }
  }

  TempDirectory directory_;
  std::string folder_ = directory_ / "state/ZanthMan/backups";
  PosixFiles plain_;
  BackupStore store_{folder_};
  BackupFiles files_{plain_, store_};
};

TEST_F(Backups, ThereAreNoneBeforeTheFirstSave) { EXPECT_TRUE(store_.List().empty()); }

TEST_F(Backups, ASaveKeepsTheBytesThatItReplaces) {
  const std::string old("define A 1\r\n\x80\0\xff", 15);
  const std::string path = directory_.Put("user.con", old);
  Save(path, "define A 2\r\n");
  EXPECT_EQ(BytesOf(path), "define A 2\r\n");
  EXPECT_EQ(Texts(), std::vector{old});
  const Backup backup = store_.List().at(0);
  EXPECT_EQ(backup.path, path);
  EXPECT_EQ(backup.size, old.size());
  EXPECT_NEAR(static_cast<double>(backup.seconds), static_cast<double>(::time(nullptr)), 5);
}

TEST_F(Backups, AreForTheOwnersEyesAlone) {
  const mode_t before = ::umask(0);
  Save(directory_.Put("user.con", "old"), "new");
  ::umask(before);
  ExpectPrivate(folder_);
}

TEST_F(Backups, AFolderThatOthersCouldReadIsClosedToThem) {
  std::filesystem::create_directories(folder_);
  ::chmod(folder_.c_str(), 0777);
  Save(directory_.Put("user.con", "old"), "new");
  ExpectPrivate(folder_);
}

TEST_F(Backups, ANewFileAndEqualBytesNeedNone) {
  Save(directory_ / "fresh.con", "text");
  Save(directory_ / "fresh.con", "text");
  EXPECT_TRUE(store_.List().empty());
}

TEST_F(Backups, ANewFileBesideOneOfAnotherSpellingNeedsNone) {
  const std::string path = directory_.Put("user.con", "text");
  files_.WriteAs(directory_ / "USER.CON", "new");
  EXPECT_TRUE(store_.List().empty());
  files_.WriteAs(path, "other");
  ASSERT_EQ(store_.List().size(), 1U);
  EXPECT_EQ(store_.List()[0].path, path);
  EXPECT_EQ(Texts(), std::vector<std::string>{"text"});
}

TEST_F(Backups, BytesThatTheNewestOneHoldsAreNotKeptTwice) {
  store_.Keep("/a", "one");
  store_.Keep("/a", "one");
  store_.Keep("/b", "one");
  store_.Keep("/a", "two");
  store_.Keep("/a", "one");
  EXPECT_EQ(Texts(), (std::vector<std::string>{"one", "two", "one", "one"}));
}

TEST_F(Backups, OfTwentyFiveSavesTheLastTwentyAreKept) {
  const std::string path = directory_.Put("user.con", "text 0");
  Save(directory_.Put("other.con", "other"), "changed");
  for (int i = 1; i <= 25; ++i) Save(path, "text " + std::to_string(i));
  const std::vector<std::string> texts = Texts();
  ASSERT_EQ(texts.size(), 21U);
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(texts[static_cast<std::size_t>(i)], "text " + std::to_string(24 - i));
  }
  EXPECT_EQ(texts[20], "other");
}

TEST_F(Backups, TheOldestMakeRoomWhenAllTogetherAreTooMuch) {
  BackupStore small(folder_, {20, 1000});
  for (int i = 0; i < 10; ++i) {
    small.Keep("/file" + std::to_string(i), std::string(300, static_cast<char>('0' + i)));
  }
  const std::vector<Backup> left = small.List();
  ASSERT_EQ(left.size(), 2U);  // three with what describes them are more than 1000 bytes
  EXPECT_EQ(left[0].path, "/file9");
  EXPECT_EQ(left[1].path, "/file8");
}

TEST_F(Backups, TheNewestIsTheOneKeptLastAlsoWhenTheClockWasPutBack) {
  store_.Keep("/a", "one");
  MoveAllIntoTheFuture();
  store_.Keep("/a", "two");
  store_.Keep("/b", "three");
  EXPECT_EQ(Texts(), (std::vector<std::string>{"three", "two", "one"}));
}

TEST_F(Backups, TheOldestMakeRoomAlsoWhenTheClockWasPutBack) {
  BackupStore small(folder_, {20, 1000});
  small.Keep("/file0", std::string(300, '0'));
  MoveAllIntoTheFuture();
  for (const std::string digit : {"1", "2", "3"}) {
    small.Keep("/file" + digit, std::string(300, digit[0]));
  }
  const std::vector<Backup> left = small.List();
  ASSERT_EQ(left.size(), 2U);
  EXPECT_EQ(left[0].path, "/file3");
  EXPECT_EQ(left[1].path, "/file2");
}

TEST_F(Backups, OneThatIsTooMuchByItselfIsRefusedAndTakesNoOthersPlace) {
  BackupStore small(folder_, {20, 1000});
  small.Keep("/file", "text");
  EXPECT_THROW(small.Keep("/huge", std::string(1001, 'x')), posix::FileProblem);
  EXPECT_EQ(small.List().size(), 1U);
}

TEST_F(Backups, WhatIsNoFileTakesNoRoomFromThem) {
  store_.Keep("/con/first.con", "text");
  store_.Keep("/con/other.con", "text");
  std::size_t total = 0;
  for (const Backup& backup : store_.List()) {
    total += std::filesystem::file_size(folder_ + "/" + backup.name);
  }
  std::filesystem::create_directory(folder_ + "/0123456789abcdef-00000000000000000001-01234567");
  BackupStore(folder_, {.totalBytes = total}).Keep("/con/other.con", "text");
  EXPECT_EQ(Texts().size(), 2U);
}

TEST_F(Backups, APartThatAKilledSaveLeftGoesWithTheNextOne) {
  store_.Keep("/con/user.con", "text");
  std::ofstream(folder_ + "/.new-0123456789abcdef") << "half a te";
  store_.Keep("/con/user.con", "newer");
  EXPECT_FALSE(std::filesystem::exists(folder_ + "/.new-0123456789abcdef"));
}

TEST_F(Backups, APipeInTheirPlaceIsNotRead) {
  store_.Keep("/con/user.con", "text");
  const Backup backup = store_.List().at(0);
  const std::string file = folder_ + "/" + backup.name;
  std::filesystem::remove(file);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_THROW(store_.Read(backup), posix::FileProblem);
}

TEST_F(Backups, HostileNamesOfFilesNeverBecomeNamesInTheFolder) {
  const std::string longName = "/" + std::string(4000, 'n');
  const std::vector<std::string> paths = {"../../escape", "/a/../../b", "/new\nline 1 2\n", "", "/",
                                          longName,       "/\xff\x80"};
  for (const std::string& path : paths) store_.Keep(path, "text of " + path);
  std::set<std::string> listed;
  for (const Backup& backup : store_.List()) {
    listed.insert(backup.path);
    EXPECT_EQ(store_.Read(backup).bytes, "text of " + backup.path);
  }
  EXPECT_EQ(listed, std::set<std::string>(paths.begin(), paths.end()));
  EXPECT_EQ(directory_.Names(), std::vector<std::string>{"state"});
  ExpectPrivate(folder_);
}

TEST_F(Backups, AFileIsTheSameFileThroughALink) {
  const std::string path = directory_.Put("user.con", "one");
  ASSERT_EQ(::symlink(path.c_str(), (directory_ / "link.con").c_str()), 0);
  Save(directory_ / "link.con", "two");
  Save(directory_ / "USER.CON", "three");
  ASSERT_EQ(store_.List().size(), 2U);
  EXPECT_EQ(store_.List()[0].path, path);
  EXPECT_EQ(store_.List()[1].path, path);
}

TEST_F(Backups, WhatIsLeftOfADamagedOneIsThere) {
  const std::string path = directory_.Put("user.con", "one");
  Save(path, "two");
  Save(path, "three");
  const std::string newest = folder_ + "/" + store_.List()[0].name;
  std::filesystem::resize_file(newest, std::filesystem::file_size(newest) - 1);
  const std::vector<Backup> backups = store_.List();
  ASSERT_EQ(backups.size(), 2U);
  EXPECT_TRUE(backups[0].damaged);
  EXPECT_EQ(backups[0].path, path);
  EXPECT_EQ(backups[0].size, 2U);
  EXPECT_EQ(store_.Read(backups[0]).bytes, "tw");
  EXPECT_TRUE(store_.Read(backups[0]).damaged);
  EXPECT_FALSE(backups[1].damaged);
  EXPECT_EQ(store_.Read(backups[1]).bytes, "one");
}

TEST_F(Backups, OneOtherByteIsSeenWhenItIsRead) {
  const std::string path = directory_.Put("user.con", "one");
  Save(path, "two");
  const Backup backup = store_.List().at(0);
  std::fstream(folder_ + "/" + backup.name, std::ios::in | std::ios::out | std::ios::ate)
      .seekp(-1, std::ios::end)
      .write("X", 1);
  const KeptBytes kept = store_.Read(backup);
  EXPECT_TRUE(kept.damaged);
  EXPECT_EQ(kept.bytes, "onX");
}

TEST_F(Backups, OneWithoutItsHeadIsAllText) {
  Save(directory_.Put("user.con", "one"), "two");
  const std::string name = store_.List().at(0).name;
  for (const std::string head : {"", "Zanth", "ZanthMan text 1\n", "ZanthMan text 1\n1 2 3 4",
                                 "ZanthMan text 1\n1 99 3 4\npath", "ZanthMan text 1\n1 x"}) {
    directory_.Put("state/ZanthMan/backups/" + name, head);
    const std::vector<Backup> backups = store_.List();
    if (head.empty()) {
      EXPECT_TRUE(backups.empty());
      continue;
    }
    ASSERT_EQ(backups.size(), 1U) << head;
    EXPECT_TRUE(backups[0].damaged);
    EXPECT_EQ(backups[0].path, "");
    EXPECT_NEAR(static_cast<double>(backups[0].seconds), static_cast<double>(::time(nullptr)), 10);
    EXPECT_EQ(store_.Read(backups[0]).bytes, head);
  }
}

TEST_F(Backups, OneThatCannotBeKeptIsToldOnceAndTheSaveGoesOn) {
  directory_.Put("state/ZanthMan", "a file where the folder should be");
  std::vector<std::string> told;
  files_.TellProblems([&](const std::string& problem) { told.push_back(problem); });
  const std::string path = directory_.Put("user.con", "old");
  Save(path, "new");
  Save(path, "newer");
  EXPECT_EQ(BytesOf(path), "newer");
  ASSERT_EQ(told.size(), 1U);
  EXPECT_NE(told[0].find("No backup of the old user.con was kept"), std::string::npos);
}

TEST_F(Backups, AFolderThatCannotBeWrittenKeepsNobodyFromSaving) {
  GiveToOrdinaryUser(directory_.Path());
  const std::string path = directory_.Put("user.con", "old");
  GiveToOrdinaryUser(path);
  std::filesystem::create_directories(directory_ / "state");
  ::chmod((directory_ / "state").c_str(), 0555);
  const std::string told = AsOrdinaryUser([&] {
    std::string problems;
    files_.TellProblems([&](const std::string& problem) { problems += problem; });
    Save(path, "new");
    return problems;
  });
  EXPECT_EQ(told, "No backup of the old user.con was kept: Permission denied");
  EXPECT_EQ(BytesOf(path), "new");
}

TEST_F(Backups, OneThatMayNotBeReadHindersNobody) {
  GiveToOrdinaryUser(directory_.Path());
  EXPECT_EQ(AsOrdinaryUser([&] {
              store_.Keep("/a", "one");
              store_.Keep("/a", "two");
              ::chmod((folder_ + "/" + store_.List().at(0).name).c_str(), 0);
              std::string texts = std::to_string(store_.List().size()) + " listed";
              store_.Keep("/a", "three");
              for (const std::string& text : Texts()) texts += ", " + text;
              return texts;
            }),
            "1 listed, three, one");
}

TEST_F(Backups, ALinkInPlaceOfTheFolderIsRefused) {
  std::filesystem::create_directories(directory_ / "elsewhere");
  std::filesystem::create_directories(directory_ / "state/ZanthMan");
  std::filesystem::create_directory_symlink(directory_ / "elsewhere", folder_);
  EXPECT_THROW(store_.Keep("/file", "text"), posix::FileProblem);
  EXPECT_TRUE(std::filesystem::is_empty(directory_ / "elsewhere"));
}

TEST_F(Backups, TheStateFolderFollowsTheEnvironment) {
  EXPECT_EQ(InChild([] {
              ::setenv("XDG_STATE_HOME", "/somewhere", 1);
              return DefaultStateFolder();
            }),
            "/somewhere/ZanthMan");
  EXPECT_EQ(InChild([] {
              ::setenv("XDG_STATE_HOME", "relative", 1);  // which counts for nothing
              ::setenv("HOME", "/home/somebody", 1);
              return DefaultStateFolder();
            }),
            "/home/somebody/.local/state/ZanthMan");
}

TEST_F(Backups, TheStateFolderIsNeverInTheWorkingDirectory) {
  const passwd* const user = ::getpwuid(::getuid());
  ASSERT_NE(user, nullptr);
  const std::string expected = std::string(user->pw_dir) + "/.local/state/ZanthMan";
  EXPECT_EQ(InChild([] {
              ::unsetenv("XDG_STATE_HOME");
              ::unsetenv("HOME");
              return DefaultStateFolder();
            }),
            expected);
  for (const char* home : {"", "relative", "./here"}) {
    EXPECT_EQ(InChild([&] {
                ::unsetenv("XDG_STATE_HOME");
                ::setenv("HOME", home, 1);
                return DefaultStateFolder();
              }),
              expected);
  }
}

}  // namespace
}  // namespace tessel::test
