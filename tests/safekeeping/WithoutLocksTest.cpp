// Unsaved texts in a folder whose files cannot be locked.
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "safekeeping/RecoveryStore.h"
#include "safekeeping/RunMark.h"
#include "support/ChildProcess.h"
#include "support/RefusedCalls.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

class RecoveryWithoutLocks : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    if (InChild([] { return RefuseCall(SYS_flock, ENOLCK) ? "yes" : "no"; }) == "no") {
      GTEST_SKIP() << "calls cannot be refused on this system";
    }
  }
  void TearDown() override { End(); }

  /// Starts a program that keeps the text and waits to be killed.
  void Start(const std::string& text) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    program_ = ::fork();
    if (program_ == 0) {
      RefuseCall(SYS_flock, GetParam());
      RecoveryStore store(folder_);
      store.Keep(1, "/a", text);
      const char kept = store.Flush() && !store.TakeProblem() ? 'y' : 'n';
      if (::write(ends[1], &kept, 1) != 1) ::_exit(1);
      for (;;) ::pause();
    }
    char kept = 0;
    EXPECT_EQ(::read(ends[0], &kept, 1), 1);
    EXPECT_EQ(kept, 'y');
    ::close(ends[0]);
    ::close(ends[1]);
  }
  void End() {
    if (program_ == 0) return;
    ::kill(program_, SIGKILL);
    ::waitpid(program_, nullptr, 0);
    program_ = 0;
  }
  /// What another program is offered, and told.
  std::string Offered() const {
    return InChild([&] {
      RefuseCall(SYS_flock, GetParam());
      const AbandonedTexts abandoned(folder_, [](const std::string&) { return std::nullopt; });
      std::string all;
      for (const KeptBytes& text : abandoned.Texts()) all += "[" + text.bytes + "]";
      return all + abandoned.Problem().value_or("");
    });
  }
  std::string Run() const { return std::filesystem::directory_iterator(folder_)->path(); }
  /// Gives the run the number of a process that lives, and another mark.
  void MarkAs(const std::string& mark) const {
    const std::string run = folder_ + "/run-" + std::to_string(::getpid()) + "-0123456789abcdef";
    std::filesystem::rename(Run(), run);
    std::ofstream(run + "/.lock") << mark;
  }

  TempDirectory directory_;
  std::string folder_ = directory_ / "recovery";
  pid_t program_ = 0;
};

TEST_P(RecoveryWithoutLocks, TheTextOfALivingProgramIsKeptAndNotOffered) {
  Start("text");
  EXPECT_EQ(Offered(), "");
  End();
  EXPECT_EQ(Offered(), "[text]");
}

TEST_P(RecoveryWithoutLocks, AProcessNumberThatIsInUseAgainHidesNoText) {
  Start("text");
  End();
  std::string mark = MarkOfThisRun();
  MarkAs(mark);
  EXPECT_EQ(Offered(), "");
  MarkAs("another-start" + mark.substr(mark.find(' ')));
  EXPECT_EQ(Offered(), "[text]");
  const std::size_t start = mark.find(' ') + 1;
  mark.replace(start, mark.find(' ', start) - start, "1");
  MarkAs(mark);
  EXPECT_EQ(Offered(), "[text]");
}

// The system counts the time of a start in hundredths of a second.
TEST(RunMark, DiffersForProcessesThatStartOneAfterTheOther) {
  ::usleep(50'000);
  EXPECT_NE(InChild(MarkOfThisRun), MarkOfThisRun());
}

TEST_P(RecoveryWithoutLocks, ARunWithoutAMarkIsToldByItsProcessNumber) {
  Start("text");
  std::ofstream(Run() + "/.lock") << "";
  EXPECT_EQ(Offered(), "");
  End();
  EXPECT_EQ(Offered(), "[text]");
}

TEST_P(RecoveryWithoutLocks, ARunOfAnotherComputerStaysAndIsTold) {
  Start("text");
  End();
  MarkAs("start 1 some other computer\n");
  EXPECT_EQ(Offered(), "it may be in use on the computer some other computer");
  EXPECT_TRUE(std::filesystem::exists(Run() + "/text-1"));
}

INSTANTIATE_TEST_SUITE_P(Errors, RecoveryWithoutLocks, testing::Values(ENOLCK, EOPNOTSUPP, ENOSYS));

}  // namespace
}  // namespace tessel::test
