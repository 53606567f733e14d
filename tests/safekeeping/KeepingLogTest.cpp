// The log of what was kept and when.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "safekeeping/KeepingLog.h"
#include "safekeeping/RecoveryStore.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class Log : public testing::Test {
 protected:
  /// The lines without their times, which never go back.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream text(BytesOf(path_));
    long long before = 0;
    long long time = 0;
    std::string what;
    while (text >> time && std::getline(text >> std::ws, what)) {
      EXPECT_GE(time, before);
      before = time;
      lines.push_back(what);
    }
    return lines;
  }

  TempDirectory directory_;
  std::string path_ = directory_ / "log";
};

TEST_F(Log, TellsOfKeysAndOfTextsUntilTheyAreOnTheDisk) {
  KeepingLog log(path_);
  RecoveryStore store(directory_ / "recovery");
  store.LogTo(&log);
  log.Key();
  store.Keep(1, "", "a");
  ASSERT_TRUE(store.Flush());
  log.Key();
  store.Keep(1, "", "ab");
  ASSERT_TRUE(store.Flush());
  store.Drop(1);
  ASSERT_TRUE(store.Flush());
  EXPECT_THAT(Lines(), ElementsAre("key", "taken 1", "kept 1", "key", "taken 2", "kept 2"));
}

TEST_F(Log, TellsOfNoTextThatCouldNotBeKept) {
  KeepingLog log(path_);
  RecoveryStore store(directory_.Put("recovery", "no folder"));
  store.LogTo(&log);
  store.Keep(1, "", "a");
  EXPECT_FALSE(store.Flush());
  EXPECT_THAT(Lines(), ElementsAre("taken 1"));
}

TEST_F(Log, GoesOnAtTheEndOfItsFile) {
  KeepingLog(path_).Key();
  KeepingLog(path_).Key();
  EXPECT_THAT(Lines(), ElementsAre("key", "key"));
}

TEST_F(Log, SaysWhyItCannotBeWritten) {
  EXPECT_THROW(KeepingLog(directory_ / "none/log"), posix::FileProblem);
}

}  // namespace
}  // namespace tessel::test
