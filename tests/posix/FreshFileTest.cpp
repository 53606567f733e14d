// Files beside others that a save is at work on, and those that killed saves leave.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "posix/FreshFile.h"
#include "posix/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

constexpr const char* kPrefix = ".tessel-";
const std::string kLeftover = ".tessel-0123456789abcdef";
constexpr int kTwoHours = 7200;

class FreshFileTest : public testing::Test {
 protected:
  std::string Put(const std::string& name, int secondsAgo) {
    const std::string path = directory.Put(name, "half a te");
    MakeOlder(path, secondsAgo);
    return path;
  }
  static void MakeOlder(const std::string& path, int seconds) {
    const timespec then{::time(nullptr) - seconds, 0};
    const timespec times[] = {then, then};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
  }
  void Save() { PosixFiles().Write(directory / "user.con", "text"); }
  void Remove(int age) {
    posix::RemoveAbandonedFiles(folder.Number(), kPrefix, std::chrono::seconds(age));
  }

  TempDirectory directory;
  posix::Descriptor folder{::open(directory.Path().c_str(), O_RDONLY | O_DIRECTORY)};
};

TEST_F(FreshFileTest, ASaveTakesAwayWhatAKilledOneLeftHoursAgo) {
  Put(kLeftover, kTwoHours);
  Save();
  EXPECT_THAT(directory.Names(), ElementsAre("user.con"));
}

// Files get their times from a finer clock than programs do, and clocks are set back.
TEST_F(FreshFileTest, WhereAgeDoesNotMatterOneFromTheFutureGoesToo) {
  Put(kLeftover, -1);
  Remove(1);
  EXPECT_THAT(directory.Names(), SizeIs(1));
  Remove(0);
  EXPECT_THAT(directory.Names(), IsEmpty());
}

TEST_F(FreshFileTest, ASaveLeavesYoungOnesAlone) {
  Put(kLeftover, 60);
  Save();
  EXPECT_THAT(directory.Names(), SizeIs(2));
}

TEST_F(FreshFileTest, OnlyFilesOfExactlyThatNameGo) {
  const std::vector<std::string> others = {".tessel-0123456789abcde", ".tessel-0123456789abcdef0",
                                           ".tessel-0123456789ABCDEF", ".tessel-notes-of-mine-1",
                                           "tessel-0123456789abcdef"};
  for (const std::string& name : others) Put(name, kTwoHours);
  Save();
  EXPECT_THAT(directory.Names(), SizeIs(others.size() + 1));
}

TEST_F(FreshFileTest, OneThatIsBeingWrittenStaysHoweverLongThatTakes) {
  posix::FreshFile file(folder.Number(), kPrefix, 0600);
  const auto names = directory.Names();
  ASSERT_THAT(names, SizeIs(1));
  MakeOlder(directory / names[0], kTwoHours);
  // Another program's save, too.
  EXPECT_EQ(InChild([&] {
              Save();
              return std::string("saved");
            }),
            "saved");
  EXPECT_THAT(directory.Names(), UnorderedElementsAre(names[0], "user.con"));
  file.TakePlaceOf("done.con");
  EXPECT_THAT(directory.Names(), UnorderedElementsAre("done.con", "user.con"));
}

TEST_F(FreshFileTest, TheOneOfAKilledProgramGoes) {
  const pid_t child = ::fork();
  if (child == 0) {
    const posix::FreshFile file(folder.Number(), kPrefix, 0600);
    ::raise(SIGKILL);
  }
  ::waitpid(child, nullptr, 0);
  ASSERT_THAT(directory.Names(), SizeIs(1));
  Remove(0);
  EXPECT_THAT(directory.Names(), IsEmpty());
}

TEST_F(FreshFileTest, OneThatNeverTookItsPlaceGoesByItself) {
  { const posix::FreshFile file(folder.Number(), kPrefix, 0600); }
  EXPECT_THAT(directory.Names(), IsEmpty());
}

TEST_F(FreshFileTest, OneWithASecondNameStays) {
  const std::string path = Put(kLeftover, kTwoHours);
  ASSERT_EQ(::link(path.c_str(), (directory / "second").c_str()), 0);
  Remove(0);
  EXPECT_THAT(directory.Names(), SizeIs(2));
}

TEST_F(FreshFileTest, WhatIsNoFileStaysAndNothingWaits) {
  ASSERT_EQ(::mkfifo((directory / kLeftover).c_str(), 0600), 0);
  ASSERT_EQ(::symlink("/etc/passwd", (directory / ".tessel-1111111111111111").c_str()), 0);
  std::filesystem::create_directory(directory / ".tessel-2222222222222222");
  ::alarm(20);
  Remove(0);
  ::alarm(0);
  EXPECT_THAT(directory.Names(), SizeIs(3));
}

TEST_F(FreshFileTest, OneOfSomebodyElseStays) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  GiveToOrdinaryUser(Put(kLeftover, kTwoHours));
  Remove(0);
  EXPECT_THAT(directory.Names(), SizeIs(1));
}

TEST_F(FreshFileTest, ADirectoryThatCannotBeListedIsNoError) {
  const posix::Descriptor none(-1);
  posix::RemoveAbandonedFiles(none.Number(), kPrefix, std::chrono::seconds(0));
  EXPECT_THROW(posix::FreshFile(none.Number(), kPrefix, 0600), posix::FileProblem);
}

}  // namespace
}  // namespace tessel::test
