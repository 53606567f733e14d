// Files that others change while they are open.
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tessel::test
