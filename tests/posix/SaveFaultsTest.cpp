// Saving when the system does not play along: either the old bytes stay or the new ones are whole.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "base/RuntimeError.h"
#include "posix/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/FileLimits.h"
#include "support/SystemCalls.h"
#include "support/TempDirectory.h"
#include "support/TinyDisk.h"

namespace tessel::test {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

const std::string kOld(5000, 'o');
const std::string kNew(200'000, 'n');

/// What is in the file, in a word.
std::string ContentOf(const std::string& path) {
  const std::string bytes = BytesOf(path);
  return bytes == kOld ? "old" : bytes == kNew ? "new" : "neither";
}

ino_t InodeOf(const std::string& path) {
  struct stat status {};
  ::stat(path.c_str(), &status);
  return status.st_ino;
}

std::string Save(const std::string& path, std::string_view bytes = kNew) {
  PosixFiles files;
  files.KeepOldBytesBy([](const std::string&, std::string_view) {});
  files.Write(path, bytes);
  return "saved";
}

bool SavesWithoutError(const std::string& path) {
  try {
    return Save(path) == "saved";
  } catch (const RuntimeError&) {
    return false;
  }
}

/// An ordinary user's file in a directory in which that user can make no files.
class SaveInPlaceTest : public testing::Test {
 protected:
  void SetUp() override {
    path = directory.Put("User.con", kOld);
    GiveToOrdinaryUser(path);
    ASSERT_EQ(::chmod(directory.Path().c_str(), 0555), 0);
  }
  void TearDown() override { ::chmod(directory.Path().c_str(), 0755); }

  TempDirectory directory;
  std::string path;
};

TEST_F(SaveInPlaceTest, WritesIntoTheOldFileWhereTheDirectoryAllowsNoNewOnes) {
  const ino_t inode = InodeOf(path);
  EXPECT_EQ(AsOrdinaryUser([&] { return Save(path); }), "saved");
  EXPECT_EQ(ContentOf(path), "new");
  EXPECT_EQ(InodeOf(path), inode);
}

TEST_F(SaveInPlaceTest, ShortensTheFileToTheNewBytes) {
  EXPECT_EQ(AsOrdinaryUser([&] { return Save(path, "short"); }), "saved");
  EXPECT_EQ(BytesOf(path), "short");
}

TEST_F(SaveInPlaceTest, KeepsTheOldBytesWhenTheDiskIsFull) {
  EXPECT_EQ(AsOrdinaryUser([&] {
              LimitFileSize(100'000);
              return Save(path);
            }),
            "error: Cannot save " + path + ": File too large.");
  EXPECT_EQ(ContentOf(path), "old");
}

TEST_F(SaveInPlaceTest, CannotMakeAMissingFile) {
  const std::string missing = directory / "new.con";
  EXPECT_EQ(AsOrdinaryUser([&] { return Save(missing); }),
            "error: Cannot save " + missing + ": Permission denied.");
}

TEST_F(SaveInPlaceTest, PutsTheOldBytesBackWhenAWritingFails) {
  if (!kCallsCanFail) GTEST_SKIP() << "calls cannot be failed on this processor or in this build";
  bool reached = true;
  int failed = 0;
  for (int call = 1; reached; ++call) {
    ::chmod(directory.Path().c_str(), 0755);
    directory.Put("User.con", kOld);
    ::chmod(directory.Path().c_str(), 0555);
    DisturbedChild child([&] { return SavesWithoutError(path); }, BecomeOrdinaryUser);
    const auto outcome = child.FailAt(call, EIO, reached);
    if (outcome == DisturbedChild::Outcome::kFailed) ++failed;
    EXPECT_EQ(ContentOf(path), outcome == DisturbedChild::Outcome::kFailed ? "old" : "new")
        << "call " << call;
  }
  EXPECT_GE(failed, 6);
}

TEST(SaveInAStickyDirectory, WritesIntoAFileThatBelongsToSomebodyElse) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  const TempDirectory directory;
  const std::string path = directory.Put("User.con", kOld);
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(directory.Path().c_str(), 01777), 0);
  EXPECT_EQ(AsOrdinaryUser([&] { return Save(path); }), "saved");
  EXPECT_EQ(ContentOf(path), "new");
  EXPECT_THAT(directory.Names(), ElementsAre("User.con"));
}

TEST(SaveOnAFullDisk, KeepsTheOldBytesAndLeavesNothingBehind) {
  const TempDirectory directory;
  const std::string path = directory.Put("User.con", kOld);
  EXPECT_EQ(InChild([&] {
              LimitFileSize(100'000);
              return Save(path);
            }),
            "error: Cannot save " + path + ": File too large.");
  EXPECT_EQ(ContentOf(path), "old");
  EXPECT_THAT(directory.Names(), ElementsAre("User.con"));
}

/// Saves on a disk of 64 KiB that is mounted for this process alone. Tells what is there
/// afterwards.
std::string SaveOnTinyDisk(const std::string& mountPoint, bool inPlace) {
  if (!MountTinyDisk(mountPoint, 64)) return "cannot mount";
  const std::string path = mountPoint + "/User.con";
  std::ofstream(path) << kOld;
  if (!inPlace && ::chown(mountPoint.c_str(), kNobody, kNobody) != 0) return "cannot give away";
  GiveToOrdinaryUser(path);
  const std::string result = AsOrdinaryUser([&] { return Save(path); });
  const bool alone = std::distance(std::filesystem::directory_iterator(mountPoint), {}) == 1;
  return result + (BytesOf(path) == kOld ? " Old bytes." : " Other bytes.") +
         (alone ? "" : " Something was left behind.");
}

class SaveOnATinyDisk : public testing::TestWithParam<bool> {};

TEST_P(SaveOnATinyDisk, KeepsTheOldBytesAndLeavesNothingBehind) {
  const TempDirectory directory;
  const std::string result = InChild([&] { return SaveOnTinyDisk(directory.Path(), GetParam()); });
  if (result == "cannot mount") GTEST_SKIP() << "only the superuser can mount a disk";
  EXPECT_EQ(result, "error: Cannot save " + directory / "User.con" +
                        ": No space left on device. Old bytes.");
}

INSTANTIATE_TEST_SUITE_P(BesideAndInPlace, SaveOnATinyDisk, testing::Bool());

TEST(SaveKilledHalfWay, LeavesTheOldBytesOrTheNewOnesWhole) {
  const TempDirectory directory;
  const std::string path = directory / "User.con";
  int withOld = 0;
  int withNew = 0;
  auto outcome = DisturbedChild::Outcome::kKilled;
  for (int call = 1; outcome == DisturbedChild::Outcome::kKilled; ++call) {
    directory.Put("User.con", kOld);
    outcome = DisturbedChild([&] { return SavesWithoutError(path); }).KillAt(call);
    const std::string content = ContentOf(path);
    ASSERT_THAT(content, AnyOf("old", "new")) << "killed at call " << call;
    ++(content == "old" ? withOld : withNew);
    // A file that never took the old one's place stays hidden.
    for (const std::string& name : directory.Names()) {
      EXPECT_THAT(name, AnyOf("User.con", StartsWith(".tessel-")));
    }
  }
  EXPECT_EQ(outcome, DisturbedChild::Outcome::kSucceeded);
  EXPECT_GE(withOld, 5);
  EXPECT_GE(withNew, 2);
}

TEST(SaveThatMeetsAnError, KeepsTheOldBytesOrHasTheNewOnesAndLeavesNothingBehind) {
  if (!kCallsCanFail) GTEST_SKIP() << "calls cannot be failed on this processor or in this build";
  for (const int error : {EIO, ENOSPC, EACCES, EINTR}) {
    bool reached = true;
    bool fileInPlace = false;  // the last call that can fail is the flush of the directory
    for (int call = 1; reached; ++call) {
      const TempDirectory directory;
      const std::string path = directory.Put("User.con", kOld);
      std::string told;
      DisturbedChild child([&] {
        try {
          return Save(path) == "saved";
        } catch (const RuntimeError& failure) {
          const bool inPlace =
              std::string(failure.what()).find("new text is in the file") != std::string::npos;
          if (inPlace) std::ofstream(path + ".in-place") << "";
          return false;
        }
      });
      const auto outcome = child.FailAt(call, error, reached);
      ASSERT_NE(outcome, DisturbedChild::Outcome::kKilled);
      const bool unflushed = std::filesystem::remove(path + ".in-place");
      fileInPlace = fileInPlace || unflushed;
      const bool saved = outcome == DisturbedChild::Outcome::kSucceeded || unflushed;
      EXPECT_EQ(ContentOf(path), saved ? "new" : "old") << "call " << call << ", error " << error;
      EXPECT_THAT(directory.Names(), ElementsAre("User.con")) << "call " << call;
    }
    EXPECT_EQ(fileInPlace, error != EINTR) << "error " << error;
  }
}

class SaveOfOneByteAtATime : public testing::TestWithParam<bool> {};

TEST_P(SaveOfOneByteAtATime, IsWholeAllTheSame) {
  if (!kCallsCanFail) GTEST_SKIP() << "calls cannot be changed on this processor or in this build";
  const TempDirectory directory;
  const std::string path = directory.Put("User.con", "old bytes");
  if (GetParam()) std::filesystem::create_hard_link(path, directory / "second.con");
  DisturbedChild child([&] { return Save(path, "the new bytes") == "saved"; });
  EXPECT_EQ(child.ShortenAll(), DisturbedChild::Outcome::kSucceeded);
  EXPECT_EQ(BytesOf(path), "the new bytes");
  DisturbedChild reader([&] { return PosixFiles().Read(path) == "the new bytes"; });
  EXPECT_EQ(reader.ShortenAll(), DisturbedChild::Outcome::kSucceeded);
}

INSTANTIATE_TEST_SUITE_P(BesideAndInPlace, SaveOfOneByteAtATime, testing::Bool());

}  // namespace
}  // namespace tessel::test
