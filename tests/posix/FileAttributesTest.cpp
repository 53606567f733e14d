// What a saved file keeps besides its bytes, its owner and its permissions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <cstring>
#include <optional>
#include <string>

#include "posix/PosixFiles.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

constexpr const char* kList = "system.posix_acl_access";
constexpr const char* kListOfNewFiles = "system.posix_acl_default";

/// An access control list as the system takes it: the owner and one user more may read and write,
/// the group may read, others nothing.
std::string ListWithOneUserMore() {
  const posix_acl_xattr_header header{POSIX_ACL_XATTR_VERSION};
  constexpr auto kReadAndWrite = ACL_READ | ACL_WRITE;
  const std::array<posix_acl_xattr_entry, 5> entries{{
      {ACL_USER_OBJ, kReadAndWrite, static_cast<__le32>(ACL_UNDEFINED_ID)},
      {ACL_USER, kReadAndWrite, 1234},
      {ACL_GROUP_OBJ, ACL_READ, static_cast<__le32>(ACL_UNDEFINED_ID)},
      {ACL_MASK, kReadAndWrite, static_cast<__le32>(ACL_UNDEFINED_ID)},
      {ACL_OTHER, 0, static_cast<__le32>(ACL_UNDEFINED_ID)},
  }};
  std::string bytes(sizeof header + sizeof entries, '\0');
  std::memcpy(bytes.data(), &header, sizeof header);
  std::memcpy(bytes.data() + sizeof header, entries.data(), sizeof entries);
  return bytes;
}

bool Put(const std::string& path, const char* name, const std::string& value) {
  return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

std::optional<std::string> Get(const std::string& path, const char* name) {
  std::array<char, 4096> room;
  const ssize_t size = ::getxattr(path.c_str(), name, room.data(), room.size());
  if (size == -1) return std::nullopt;
  return std::string(room.data(), static_cast<std::size_t>(size));
}

mode_t PermissionsOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

class FileAttributesTest : public testing::Test {
 protected:
  void SetUp() override {
    path = directory.Put("User.con", "old");
    if (!Put(path, "user.probe", "1") || ::removexattr(path.c_str(), "user.probe") != 0) {
      GTEST_SKIP() << "this file system keeps no attributes";
    }
  }

  void Save() {
    files.Write(path, "new");
    ASSERT_EQ(BytesOf(path), "new");
  }

  TempDirectory directory;
  std::string path;
  PosixFiles files;
};

TEST_F(FileAttributesTest, KeepsWhatTheUserHasNoted) {
  const std::string long_(3000, 'x');
  ASSERT_TRUE(Put(path, "user.comment", "for the second level"));
  ASSERT_TRUE(Put(path, "user.empty", ""));
  ASSERT_TRUE(Put(path, "user.long", long_));
  Save();
  EXPECT_THAT(Get(path, "user.comment"), Optional(Eq("for the second level")));
  EXPECT_THAT(Get(path, "user.empty"), Optional(Eq("")));
  EXPECT_THAT(Get(path, "user.long"), Optional(Eq(long_)));
}

TEST_F(FileAttributesTest, KeepsTheAccessControlList) {
  const std::string list = ListWithOneUserMore();
  ASSERT_TRUE(Put(path, kList, list));
  ASSERT_EQ(PermissionsOf(path), 0660U);  // the group's place shows the mask
  Save();
  EXPECT_THAT(Get(path, kList), Optional(Eq(list)));
  EXPECT_EQ(PermissionsOf(path), 0660U);
}

TEST_F(FileAttributesTest, TakesNoListFromTheDirectoryForAFileThatHadNone) {
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  ASSERT_TRUE(Put(directory.Path(), kListOfNewFiles, ListWithOneUserMore()));
  Save();
  EXPECT_EQ(Get(path, kList), std::nullopt);
  EXPECT_EQ(PermissionsOf(path), 0640U);
}

TEST_F(FileAttributesTest, GivesANewFileTheListOfItsDirectory) {
  ASSERT_TRUE(Put(directory.Path(), kListOfNewFiles, ListWithOneUserMore()));
  files.Write(directory / "New.con", "new");
  EXPECT_THAT(Get(directory / "New.con", kList), Optional(Eq(ListWithOneUserMore())));
  EXPECT_THAT(directory.Names(), ElementsAre("New.con", "User.con"));
}

}  // namespace
}  // namespace tessel::test
