// Several programs at work on one file.
#include <fcntl.h>
#include <sys/file.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

class CommandLineTogether : public CommandLineTest {};

TEST_F(CommandLineTogether, LosesNoChangeOfTwoThatAreMadeAtOnce) {
  for (int round = 1; round <= 20; ++round) {
    Put("a.con", "define A 0\r\ndefine B 0\r\n");
    const std::string value = std::to_string(round);
    ShellOutputOf("tessel set a.con A=" + value + " --in-place & first=$!; tessel set a.con B=" +
                  value + " --in-place && wait $first");
    ASSERT_EQ(Bytes("a.con"), "define A " + value + "\r\ndefine B " + value + "\r\n");
  }
}

TEST_F(CommandLineTogether, WaitsForAnotherThatHasLockedTheFile) {
  const std::string path = Put("a.con", "define A 0\r\ndefine B 0\r\n");
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(file, LOCK_EX), 0);
  std::thread other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::ofstream(path, std::ios::binary) << "define A 0\r\ndefine B 7\r\n";
    ::close(file);
  });
  EXPECT_EQ(OutputOf({"set", "a.con", "A=5", "--in-place"}), "");
  other.join();
  EXPECT_EQ(Bytes("a.con"), "define A 5\r\ndefine B 7\r\n");
}

TEST_F(CommandLineTogether, WaitsNotForEver) {
  const std::string path = Put("a.con", "define A 0\r\n");
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(file, LOCK_EX), 0);
  EXPECT_EQ(OutputOf({"set", "a.con", "A=5", "--in-place"}), "");
  EXPECT_EQ(Bytes("a.con"), "define A 5\r\n");
  ::close(file);
}

TEST_F(CommandLineTogether, GiveANewNameToOneOfTwoOnly) {
  for (int round = 0; round < 20; ++round) {
    std::filesystem::remove(PathOf("new.con"));
    const Outcome outcome = Shell(
        "tessel new 13DU -o new.con & first=$!; tessel new 13DG -o new.con; second=$?; wait "
        "$first; "
        "echo $((second + $?))");
    ASSERT_EQ(outcome.out, "1\n") << outcome.err;
    ASSERT_THAT(outcome.err, testing::StartsWith("tessel: Cannot save new.con: it exists already"));
  }
  EXPECT_THAT(files_.Names(), testing::ElementsAre("new.con"));
}

}  // namespace
}  // namespace tessel::test
