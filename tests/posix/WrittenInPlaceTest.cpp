// Files that no new one can replace without a loss: they are written in place, once their old bytes
// are kept.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <string>

#include "posix/PosixFiles.h"
#include "support/ChildProcess.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

constexpr unsigned kSomebody = 1234;
constexpr const char* kList = "system.posix_acl_access";

class WrittenInPlace : public testing::Test {
 protected:
  WrittenInPlace() {
    files.KeepOldBytesBy([this](const std::string& file, std::string_view old) {
      kept += "[" + file.substr(directory.Path().size() + 1) + ": " + std::string(old) + "]";
      if (BytesOf(file) != old) kept += " too late";
    });
  }
  /// Saves as an ordinary user; what was kept first.
  std::string Save() {
    return AsOrdinaryUser([&] {
      files.Write(path, "new");
      return kept;
    });
  }
  struct stat Status() const {
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status;
  }
  /// Gives the file away, in a folder of the ordinary user's own.
  void PutFileOf(unsigned user, unsigned group) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
    GiveToOrdinaryUser(directory.Path());
    ASSERT_EQ(::chown(path.c_str(), user, group), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
  }

  TempDirectory directory;
  std::string path = directory.Put("User.con", "old");
  PosixFiles files;
  std::string kept;
};

TEST_F(WrittenInPlace, AFileOfSomebodyElseStaysTheirs) {
  PutFileOf(kSomebody, kNobody);
  if (IsSkipped()) return;
  EXPECT_EQ(Save(), "[User.con: old]");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(Status().st_uid, kSomebody);
  EXPECT_EQ(Status().st_gid, kNobody);
  EXPECT_EQ(ModeOf(path), 0660U);
  EXPECT_THAT(directory.Names(), ElementsAre("User.con"));
}

TEST_F(WrittenInPlace, AFileOfAGroupOfOthersStaysTheirs) {
  PutFileOf(kNobody, kSomebody);
  if (IsSkipped()) return;
  EXPECT_EQ(Save(), "[User.con: old]");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(Status().st_gid, kSomebody);
}

TEST_F(WrittenInPlace, AnAccessListStaysAsItWas) {
  PutFileOf(kSomebody, kSomebody);
  if (IsSkipped()) return;
  constexpr auto kReadAndWrite = ACL_READ | ACL_WRITE;
  constexpr auto kNoId = static_cast<__le32>(ACL_UNDEFINED_ID);
  struct {
    posix_acl_xattr_header header{POSIX_ACL_XATTR_VERSION};
    std::array<posix_acl_xattr_entry, 5> entries{{{ACL_USER_OBJ, kReadAndWrite, kNoId},
                                                  {ACL_USER, kReadAndWrite, kNobody},
                                                  {ACL_GROUP_OBJ, ACL_READ, kNoId},
                                                  {ACL_MASK, kReadAndWrite, kNoId},
                                                  {ACL_OTHER, 0, kNoId}}};
  } list;
  if (::setxattr(path.c_str(), kList, &list, sizeof list, 0) != 0) {
    GTEST_SKIP() << "this file system keeps no access lists";
  }
  EXPECT_EQ(Save(), "[User.con: old]");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(Status().st_uid, kSomebody);
  decltype(list) after;
  ASSERT_EQ(::getxattr(path.c_str(), kList, &after, sizeof after), static_cast<long>(sizeof list));
  EXPECT_EQ(std::memcmp(&after, &list, sizeof list), 0);
}

TEST_F(WrittenInPlace, AFileWithASecondNameHasTheNewBytesUnderBoth) {
  const std::string second = directory / "second.con";
  ASSERT_EQ(::link(path.c_str(), second.c_str()), 0);
  files.Write(path, "new");
  EXPECT_EQ(kept, "[User.con: old]");
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(BytesOf(second), "new");
}

TEST_F(WrittenInPlace, AFileOfOnesOwnIsNot) {
  GiveToOrdinaryUser(directory.Path());
  GiveToOrdinaryUser(path);
  EXPECT_EQ(Save(), "");
  EXPECT_EQ(BytesOf(path), "new");
}

TEST_F(WrittenInPlace, WithoutAnybodyToKeepTheOldBytesNothingIs) {
  ASSERT_EQ(::link(path.c_str(), (directory / "second.con").c_str()), 0);
  EXPECT_EQ(InChild([&] {
              PosixFiles().Write(path, "new");
              return "saved";
            }),
            "error: Cannot save " + path +
                ": it can only be written in place, and nothing keeps its old bytes.");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST_F(WrittenInPlace, WhatCannotBeKeptIsNotWrittenOver) {
  ASSERT_EQ(::link(path.c_str(), (directory / "second.con").c_str()), 0);
  files.KeepOldBytesBy([](const std::string&, std::string_view) {
    throw std::runtime_error("No space left on device");
  });
  EXPECT_EQ(InChild([&] {
              files.Write(path, "new");
              return "saved";
            }),
            "error: Cannot save " + path +
                ": it can only be written in place, and its old bytes cannot be kept first (No "
                "space left on device).");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST_F(WrittenInPlace, NoSecondNameInASharedFolder) {
  const std::string second = directory.Put("shared/second.con", "old");
  std::filesystem::remove(path);
  ASSERT_EQ(::link(second.c_str(), path.c_str()), 0);
  ASSERT_EQ(::chmod((directory / "shared").c_str(), 01777), 0);
  EXPECT_EQ(InChild([&] {
              files.Write(second, "new");
              return "saved";
            }),
            "error: Cannot save " + second +
                ": it has a second name, in a folder that everybody can write to.");
  EXPECT_EQ(BytesOf(path), "old");
}

}  // namespace
}  // namespace tessel::test
