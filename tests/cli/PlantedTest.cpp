// What somebody else has put into a shared folder to be given a result.
#include <sys/stat.h>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

constexpr unsigned kStranger = 1234;

class CommandLinePlanted : public CommandLineTest {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs two users";
    ASSERT_EQ(::chmod(Directory().c_str(), 01777), 0);
  }
  void Give(const std::string& name) const {
    ASSERT_EQ(::lchown(PathOf(name).c_str(), kStranger, kStranger), 0);
  }
  void PlantLink(const std::string& name, const std::string& target) const {
    std::filesystem::create_symlink(target, PathOf(name));
    Give(name);
  }
};

const std::string kLinkOfAStranger =
    "a symbolic link of somebody else leads there, in a folder that everybody can write to";
const std::string kThingOfAStranger =
    "it belongs to somebody else, in a folder that everybody can write to";

TEST_F(CommandLinePlanted, PipesGetNothing) {
  ASSERT_EQ(::mkfifo(PathOf("leak.con").c_str(), 0666), 0);
  Give("leak.con");
  // Without a reader, opening it would wait.
  ExpectRefusal({"new", "13DU", "-o", "leak.con"},
                "Cannot write to leak.con: " + kThingOfAStranger + ".");
  std::filesystem::create_symlink("leak.con", PathOf("own.con"));
  ExpectRefusal({"new", "13DU", "-o", "own.con"},
                "Cannot write to own.con: " + kThingOfAStranger + ".");
}

TEST_F(CommandLinePlanted, LinksToDevicesGetNothing) {
  PlantLink("out.con", "/dev/null");
  ExpectRefusal({"new", "13DU", "-o", "out.con"},
                "Cannot write to out.con: " + kLinkOfAStranger + ".");
  std::filesystem::create_symlink("/dev/null", PathOf("own.con"));
  EXPECT_EQ(OutputOf({"new", "13DU", "-o", "own.con"}), "");
}

TEST_F(CommandLinePlanted, StoresAreNotUsed) {
  const std::string theirs = home_ / "theirs.db";
  PlantLink("s.db", theirs);
  ExpectRefusal({"words", "--store", "s.db", "set", "foo", "[a]"},
                "Cannot use the settings store s.db: " + kLinkOfAStranger + ".");
  EXPECT_FALSE(std::filesystem::exists(theirs));
  Put("t.db", "");
  Give("t.db");
  ExpectRefusal({"words", "--store", "t.db", "set", "foo", "[a]"},
                "Cannot use the settings store t.db: " + kThingOfAStranger + ".");
}

TEST_F(CommandLinePlanted, NothingElseIsRefused) {
  std::filesystem::create_symlink("/dev/stdout", PathOf("own.con"));
  EXPECT_EQ(ShellOutputOf("tessel new 13DU -o own.con | head -c 2 | wc -c"), "2\n");
  EXPECT_EQ(ShellOutputOf("tessel new 13DU -o /proc/self/fd/1 | head -c 2 | wc -c"), "2\n");
  EXPECT_EQ(OutputOf({"words", "--store", "own.db", "set", "foo", "[a]"}), "");
  EXPECT_EQ(OutputOf({"words", "--store", "own.db", "list"}), "foo\n");
}

}  // namespace
}  // namespace tessel::test
