// What is kept survives a power failure: it is flushed before it gets its name, and the name
// afterwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

#include "posix/PosixFiles.h"
#include "safekeeping/BackupStore.h"
#include "safekeeping/RecoveryStore.h"
#include "support/TempDirectory.h"

namespace {

std::mutex guard;
std::vector<std::string> flushes;

std::vector<std::string> TakeFlushes() {
  const std::lock_guard locked(guard);
  return std::exchange(flushes, {});
}

/// A file as its size and whether it has its name already, a folder as the number of whole files in
/// it.
std::string Describe(int file) {
  struct stat status {};
  ::fstat(file, &status);
  if (!S_ISDIR(status.st_mode)) {
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file));
    const bool hidden = path.filename().string().starts_with('.');
    return (hidden ? "hidden file of " : "file of ") + std::to_string(status.st_size);
  }
  std::size_t files = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator("/proc/self/fd/" + std::to_string(file))) {
    if (!entry.path().filename().string().starts_with('.')) ++files;
  }
  return "folder of " + std::to_string(files);
}

}  // namespace

/// Takes the place of the system's for this program, and makes the same call.
extern "C" int fsync(int file) {
  {
    const std::lock_guard locked(guard);
    flushes.push_back(Describe(file));
  }
  return static_cast<int>(::syscall(SYS_fsync, file));
}

namespace tessel::test {
namespace {

using testing::ElementsAre;

class Flushes : public testing::Test {
 protected:
  Flushes() { TakeFlushes(); }
  static std::string SizeOf(const std::string& path) {
    return std::to_string(std::filesystem::file_size(path));
  }

  TempDirectory directory_;
  std::string folder_ = directory_ / "kept";
};

TEST_F(Flushes, ABackupIsFlushedWholeAndThenItsFolder) {
  BackupStore store(folder_);
  store.Keep("/a", "text");
  const std::string kept = folder_ + "/" + store.List().at(0).name;
  EXPECT_THAT(TakeFlushes(),
              ElementsAre("folder of 1", "hidden file of " + SizeOf(kept), "folder of 1"));
  store.Keep("/a", "another");
  EXPECT_THAT(TakeFlushes(), ElementsAre(testing::StartsWith("hidden file of "), "folder of 2"));
}

TEST_F(Flushes, AnUnsavedTextIsFlushedWholeAndThenItsFolder) {
  RecoveryStore store(folder_);
  store.Keep(1, "/a", std::string(100'000, 'x'));
  ASSERT_TRUE(store.Flush());
  const std::string run = std::filesystem::directory_iterator(folder_)->path();
  // The names of the folders first: of all runs, and of this one before and after it is locked.
  EXPECT_THAT(TakeFlushes(),
              ElementsAre("folder of 1", "folder of 0", "folder of 1",
                          "hidden file of " + SizeOf(run + "/text-1"), "folder of 1"));
}

TEST_F(Flushes, ASavedFileIsFlushedWholeAndThenItsFolder) {
  const std::string path = directory_ / "user.con";
  PosixFiles().Write(path, std::string(100'000, 'x'));
  EXPECT_THAT(TakeFlushes(), ElementsAre("hidden file of 100000", "folder of 1"));
  PosixFiles().Write(path, "shorter");
  EXPECT_THAT(TakeFlushes(), ElementsAre("hidden file of 7", "folder of 1"));
}

TEST_F(Flushes, AFileWrittenInPlaceIsFlushedBehindItsBackup) {
  const std::string path = directory_.Put("user.con", "old");
  std::filesystem::create_hard_link(path, directory_ / "second.con");
  PosixFiles files;
  files.KeepOldBytesBy(KeepAsBackups(folder_));
  files.Write(path, "new bytes");
  EXPECT_THAT(TakeFlushes(), ElementsAre("folder of 3", testing::StartsWith("hidden file of "),
                                         "folder of 1", "file of 9"));
}

}  // namespace
}  // namespace tessel::test
