// The disk is full while unsaved text is recovered: the text is on the disk all the time, and is
// offered until it is somewhere else.
#include <gmock/gmock.h>

#include <QStatusBar>
#include <fstream>

#include "HostFixture.h"
#include "faults/HostWorld.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "support/TinyDisk.h"

namespace tessel::test {
namespace {

class FullDiskInRecovery : public HostTest {
 protected:
  /// The state folder and `user_` are on a small disk of their own, with a text of an ended run.
  void SetUp() override {
    run_.reset();
    std::filesystem::create_directory(disk_);
    if (!MountTinyDisk(disk_, 512)) GTEST_SKIP() << "only the superuser can mount a disk";
    mounted_ = true;
    ::setenv("XDG_STATE_HOME", (disk_ + "/state").c_str(), 1);
    std::ofstream(user_) << kOld;
    run_ = std::make_unique<HostRun>(State(), settings_);
    Run().window->OpenFiles({user_});
    Run().Editor(0).Type(typed_);
    ASSERT_TRUE(Run().window->findChild<RecoveryKeeper*>()->KeepNow());
    Restart();
  }
  ~FullDiskInRecovery() override {
    run_.reset();
    if (mounted_) ::umount2(disk_.c_str(), MNT_DETACH);
  }

  /// Not one more byte has room.
  void FillDisk() {
    std::ofstream filler(filler_, std::ios::binary);
    while (filler.put('f') && filler.flush()) {
    }
  }
  void MakeRoom() { std::filesystem::remove(filler_); }
  bool Recover() { return Run().Press<RecoveryOffer>("&Recover"); }
  std::string Said() { return Run().window->statusBar()->currentMessage().toStdString(); }
  bool SaysThatThereIsNoRoom() {
    const std::string sentence =
        "Unsaved text cannot be kept for recovery: No space left on device.";
    return QTest::qWaitFor([&] { return Said() == sentence; }, kPatience);
  }
  /// The program is killed; what its next start would offer.
  std::vector<std::string> OfferedAfterAKill() {
    run_.reset();
    return Offered(State());
  }

  static constexpr const char* kOld = "define A 1\r\n";
  const std::string typed_ = "// mine" + std::string(50'000, '!') + "\r\n";
  const std::string disk_ = directory_ / "disk";
  const std::string user_ = disk_ + "/user.con";
  const std::string filler_ = disk_ + "/filler";
  const std::vector<std::string> theText_ = {user_ + ": " + typed_ + kOld};
  bool mounted_ = false;
};

TEST_F(FullDiskInRecovery, TheTextIsShownAndOfferedAgainAfterAKill) {
  FillDisk();
  ASSERT_TRUE(Recover());
  EXPECT_EQ(Run().Editor(0).Text(), typed_ + kOld);
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_TRUE(SaysThatThereIsNoRoom()) << Said();
  EXPECT_EQ(OfferedAfterAKill(), theText_);
}

TEST_F(FullDiskInRecovery, TheTextIsOfferedWhereTheProgramStartsOnAFullDisk) {
  FillDisk();
  Restart();
  ASSERT_TRUE(Recover());
  EXPECT_EQ(Run().Editor(0).Text(), typed_ + kOld);
  EXPECT_EQ(OfferedAfterAKill(), theText_);
}

TEST_F(FullDiskInRecovery, TheTextStaysWhenItsFileHasNoRoomForIt) {
  FillDisk();
  ASSERT_TRUE(Recover());
  Run().SaveInPlace();
  ASSERT_EQ(Run().fakes.messages.shown.size(), 1U);
  EXPECT_EQ(Run().fakes.messages.shown[0].text,
            "Cannot save " + user_ + ": No space left on device.");
  EXPECT_EQ(BytesOf(user_), kOld);
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_EQ(OfferedAfterAKill(), theText_);
}

TEST_F(FullDiskInRecovery, TheTextIsKeptAsSoonAsThereIsRoom) {
  FillDisk();
  ASSERT_TRUE(Recover());
  MakeRoom();
  Run().Editor(0).Type("// more\r\n");
  // A writing from before there was room may still be on its way, and be told.
  auto* keeper = Run().window->findChild<RecoveryKeeper*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return keeper->KeepNow(); }, kPatience));
  EXPECT_THAT(OfferedAfterAKill(), testing::Contains(user_ + ": // more\r\n" + typed_ + kOld));
}

TEST_F(FullDiskInRecovery, NothingIsOfferedOnceTheTextIsInItsFile) {
  FillDisk();
  ASSERT_TRUE(Recover());
  MakeRoom();
  Run().SaveInPlace();
  EXPECT_EQ(BytesOf(user_), typed_ + kOld);
  EXPECT_THAT(OfferedAfterAKill(), testing::IsEmpty());
}

}  // namespace
}  // namespace tessel::test
