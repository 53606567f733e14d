// Memory that ends, at any moment from before the start of the program to its end.
#include <sys/resource.h>

#include <algorithm>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using testing::AnyOf;
using testing::StartsWith;

class CommandLineWithoutMemory : public CommandLineTest, public testing::WithParamInterface<bool> {
 protected:
  void SetUp() override {
#ifdef TESSEL_SANITIZED
    GTEST_SKIP() << "the sanitizers have a memory of their own";
#endif
    Put("User.con", old_);
  }
  Outcome ConvertWithout(int allocation) {
    return Tessel({"convert", "User.con", "-o", "new.con"}, [&] {
      ::setenv("LD_PRELOAD", TESSEL_FAILING_NEW, 1);
      ::setenv("FAILING_NEW_AT", std::to_string(allocation).c_str(), 1);
      if (GetParam()) ::setenv("FAILING_NEW_FOREVER", "1", 1);
    });
  }

  const std::string old_ = TemplateText("zmuser.dat");
};

TEST_P(CommandLineWithoutMemory, SaysSoAndEndsWithStatusOne) {
  int told = 0;
  Outcome outcome;
  for (int allocation = 1; outcome.status != 0; allocation += std::max(1, allocation / 40)) {
    outcome = ConvertWithout(allocation);
    ASSERT_THAT(outcome.status, AnyOf(0, 1)) << "allocation " << allocation << ": " << outcome.err;
    if (outcome.status == 0) break;
    EXPECT_THAT(outcome.err, StartsWith("tessel: ")) << "allocation " << allocation;
    EXPECT_EQ(Bytes("User.con"), old_);
    EXPECT_EQ(files_.Names(), std::vector<std::string>{"User.con"});
    ++told;
  }
  EXPECT_GE(told, 50);
}

TEST_F(CommandLineTest, NeedsNoMoreMemoryThanThreeTimesTheFile) {
#ifdef TESSEL_SANITIZED
  GTEST_SKIP() << "the sanitizers have a memory of their own";
#endif
  constexpr rlim_t kFile = 40'000'000;
  constexpr rlim_t kProgram = 16'000'000;  // its libraries and stacks, mapped rather than used
  std::string text = TemplateText("zmuser.dat");
  while (text.size() < kFile) text += "define OTHERNAME 12  // of a mod\r\n";
  Put("User.con", text);
  const auto limited = [] {
    const rlimit memory{3 * kFile + kProgram, 3 * kFile + kProgram};
    ::setrlimit(RLIMIT_AS, &memory);
  };
  const std::vector<std::string> commands[] = {
      {"get", "User.con", "MAXPLAYERHEALTH"},
      {"set", "User.con", "MAXPLAYERHEALTH=5", "-o", "set.con"},
      {"settings", "User.con"},
      {"levels", "User.con"},
      {"randomize", "User.con", "--section", "Player", "--lower", "1", "--upper", "5", "-o",
       "random.con"},
      {"convert", "User.con", "-o", "converted.con"},
  };
  for (const auto& command : commands) {
    const Outcome outcome = Tessel(command, limited);
    EXPECT_EQ(outcome.status, 0) << command.front() << ": " << outcome.err;
  }
}

INSTANTIATE_TEST_SUITE_P(OnceAndForGood, CommandLineWithoutMemory, testing::Bool());

}  // namespace
}  // namespace tessel::test
