// Files that others change while they are open.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/RuntimeError.h"
#include "posix/PosixFiles.h"
#include "safekeeping/DiskState.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class Guarded : public testing::Test {
 protected:
  TempDirectory directory_;
  PosixFiles plain_;
  GuardedFiles files_{plain_};
};

TEST_F(Guarded, AFileThatOthersChangedIsNotWrittenOver) {
  const std::string path = directory_.Put("user.con", "text");
  files_.Read(path);
  directory_.Put("user.con", "theirs");
  EXPECT_THROW(files_.Write(path, "mine"), RuntimeError);
  EXPECT_THROW(files_.WriteAs(path, "mine"), RuntimeError);
  EXPECT_EQ(BytesOf(path), "theirs");
}

TEST_F(Guarded, WhatIsKnownOfAFileIsItsStateWhenItWasRead) {
  const std::string path = directory_.Put("user.con", "text");
  EXPECT_FALSE(files_.Known(path).has_value());
  files_.Read(path);
  ASSERT_TRUE(files_.Known(path).has_value());
  EXPECT_EQ(files_.Known(path)->state, DiskStateOf(path));
  EXPECT_TRUE(files_.Known(path)->hash.has_value());
}

TEST_F(Guarded, AFileThatOthersChangedHindersNoNewOneOfAnotherSpelling) {
  const std::string path = directory_.Put("user.con", "text");
  const std::string other = directory_ / "USER.CON";
  files_.Read(other);
  directory_.Put("user.con", "theirs");
  files_.WriteAs(other, "mine");
  EXPECT_EQ(BytesOf(path), "theirs");
  EXPECT_EQ(BytesOf(other), "mine");
  EXPECT_FALSE(files_.ChangedByOthers(other));
}

TEST_F(Guarded, AFileThatIsGoneIsWrittenAnewAndNotIntoOneOfAnotherSpelling) {
  const std::string other = directory_.Put("user.con", "another file");
  const std::string path = directory_.Put("USER.CON", "text");
  files_.Read(path);
  std::filesystem::remove(path);
  EXPECT_TRUE(files_.ChangedByOthers(path));
  files_.Accept(path);
  files_.Write(path, "mine");
  EXPECT_EQ(BytesOf(path), "mine");
  EXPECT_EQ(BytesOf(other), "another file");
}

TEST_F(Guarded, AFileThatIsGoneMakesNoOtherOneWritable) {
  const std::string other = directory_.Put("user.con", "another file");
  const std::string path = directory_.Put("USER.CON", "text");
  ASSERT_EQ(::chmod(other.c_str(), 0444), 0);
  files_.Read(path);
  std::filesystem::remove(path);
  files_.SetAttributesNormal(path);
  EXPECT_EQ(std::filesystem::status(other).permissions(), std::filesystem::perms(0444));
}

TEST_F(Guarded, WhatWasReadByAnotherSpellingIsWrittenToWhereItWasFound) {
  const std::string path = directory_.Put("user.con", "text");
  files_.Read(directory_ / "USER.CON");
  files_.Write(directory_ / "USER.CON", "mine");
  EXPECT_EQ(BytesOf(path), "mine");
  EXPECT_FALSE(std::filesystem::exists(directory_ / "USER.CON"));
}

/// Puts other bytes into a file, and its time of writing back.
void ChangeUnseen(const std::string& path, const std::string& bytes) {
  ::usleep(20'000);  // the clock of the file system is a coarse one
  const auto written = std::filesystem::last_write_time(path);
  std::ofstream(path, std::ios::binary) << bytes;
  std::filesystem::last_write_time(path, written);
}

TEST_F(Guarded, AChangeThatKeepsSizeAndTimeIsSeen) {
  const std::string path = directory_.Put("user.con", "text");
  files_.Read(path);
  ChangeUnseen(path, "TEXT");
  EXPECT_TRUE(files_.ChangedByOthers(path));
  EXPECT_THROW(files_.Write(path, "mine"), RuntimeError);
  EXPECT_EQ(BytesOf(path), "TEXT");
}

TEST_F(Guarded, AChangeThatKeepsSizeAndTimeIsSeenAfterASaveToo) {
  const std::string path = directory_.Put("user.con", "old");
  files_.Write(path, "text");
  EXPECT_FALSE(files_.ChangedByOthers(path));
  ChangeUnseen(path, "TEXT");
  EXPECT_TRUE(files_.ChangedByOthers(path));
  files_.Accept(path);
  EXPECT_FALSE(files_.ChangedByOthers(path));
  ChangeUnseen(path, "tEXT");
  EXPECT_TRUE(files_.ChangedByOthers(path));
}

TEST_F(Guarded, OtherPermissionsAndNamesAreNoChangeOfTheText) {
  const std::string path = directory_.Put("user.con", "text");
  files_.Read(path);
  ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
  EXPECT_FALSE(files_.ChangedByOthers(path));
  ASSERT_EQ(::link(path.c_str(), (directory_ / "second.con").c_str()), 0);
  plain_.KeepOldBytesBy([](const std::string&, std::string_view) {});
  files_.Write(path, "mine");
  EXPECT_EQ(BytesOf(path), "mine");
}

TEST_F(Guarded, ClearingTheReadOnlyAttributeIsAChangeOfOnesOwn) {
  const std::string path = directory_.Put("user.con", "text");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  files_.Read(path);
  files_.Accept(path);
  files_.SetAttributesNormal(path);
  EXPECT_FALSE(files_.ChangedByOthers(path));
}

TEST_F(Guarded, ClearingTheReadOnlyAttributeHidesNoChangeOfOthers) {
  const std::string path = directory_.Put("user.con", "text");
  files_.Read(path);
  ChangeUnseen(path, "TEXT");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  files_.SetAttributesNormal(path);
  EXPECT_TRUE(files_.ChangedByOthers(path));
}

/// Another program writes while a save is on its way already.
class Overtaken : public PosixFiles {
 public:
  void WriteAs(const std::string& path, std::string_view bytes) override {
    std::ofstream(path, std::ios::binary) << "theirs";
    PosixFiles::WriteAs(path, bytes);
  }
};

TEST(OvertakenSave, LeavesWhatAnotherProgramWroteMeanwhile) {
  const TempDirectory directory;
  Overtaken plain;
  GuardedFiles files(plain);
  plain.SaveOnlyWhere([&files] { return files.AsItBegan(); });
  const std::string path = directory.Put("user.con", "text");
  files.Read(path);
  EXPECT_THROW(files.Write(path, "mine"), RuntimeError);
  EXPECT_EQ(BytesOf(path), "theirs");
  EXPECT_TRUE(files.ChangedByOthers(path));

  const std::string created = directory / "new.con";
  EXPECT_THROW(files.WriteAs(created, "mine"), RuntimeError);
  EXPECT_EQ(BytesOf(created), "theirs");
}

}  // namespace
}  // namespace tessel::test
