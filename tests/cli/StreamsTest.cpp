#include <sys/stat.h>

#include <chrono>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

const std::string kStreamText = "define QSIZE 64\r\ndefine THAWTIME 138\r\n";

class CommandLineStreams : public CommandLineTest {
 protected:
  CommandLineStreams() { Put("User.con", kStreamText); }
};

TEST_F(CommandLineStreams, ReadsStandardInput) {
  EXPECT_EQ(ShellOutputOf("cat User.con | tessel get - QSIZE"), "64\n");
  EXPECT_EQ(ShellOutputOf("tessel get - QSIZE < User.con"), "64\n");
  EXPECT_EQ(ShellOutputOf("cat User.con | tessel get /dev/stdin QSIZE"), "64\n");
  EXPECT_EQ(ShellOutputOf("tessel get /dev/stdin QSIZE < User.con"), "64\n");
  EXPECT_EQ(ShellOutputOf("tessel get /dev/fd/5 QSIZE 5< User.con"), "64\n");
}

TEST_F(CommandLineStreams, ReadsAndWritesWhatBashNamesForProcesses) {
  EXPECT_EQ(ShellOutputOf("tessel get <(cat User.con) QSIZE"), "64\n");
  EXPECT_EQ(
      ShellOutputOf("tessel set User.con QSIZE=5 -o >(cat > copy.con); wait $!; cat copy.con"),
      With(kStreamText, "64", "5"));
}

TEST_F(CommandLineStreams, WorksInPipelines) {
  EXPECT_EQ(
      ShellOutputOf("cat User.con | tessel set - QSIZE=5 | tessel set - THAWTIME=9 -o - | cat"),
      With(With(kStreamText, "64", "5"), "138", "9"));
  Put("Old.con", TemplateText("zmuser.dat"));
  EXPECT_EQ(ShellOutputOf("tessel convert Old.con | tessel set - QSIZE=5 | tessel get - QSIZE"),
            "5\n");
  EXPECT_EQ(ShellOutputOf("tessel new 15AU | tessel levels - | head -n 1 | cut -f 1"), "0 0\n");
  EXPECT_EQ(ShellOutputOf("printf 'define A' | tessel colour - --format json"), "[[0,6,200]]\n");
}

TEST_F(CommandLineStreams, EveryReaderTakesStandardInput) {
  Put("Whole.con", TemplateText("zmuserp.dat"));
  const std::string pipe = "cat Whole.con | tessel ";
  EXPECT_EQ(ShellOutputOf(pipe + "settings - --tsv | wc -l"),
            ShellOutputOf("tessel settings Whole.con --tsv | wc -l"));
  EXPECT_EQ(ShellOutputOf(pipe + "level - E1L1"), OutputOf({"level", "Whole.con", "0 0"}));
  EXPECT_EQ(ShellOutputOf(pipe + "level - E1L1 --title X"),
            OutputOf({"level", "Whole.con", "0 0", "--title", "X"}));
  EXPECT_EQ(
      ShellOutputOf(pipe + "randomize - --section Player --lower 1 --upper 9"),
      OutputOf({"randomize", "Whole.con", "--section", "Player", "--lower", "1", "--upper", "9"}));
  EXPECT_EQ(
      ShellOutputOf("printf 'a\\t[x]\\n' | tessel words import - && tessel words export -o -"),
      "a\t[x]\n");
}

TEST_F(CommandLineStreams, WritesToDevices) {
  EXPECT_EQ(ShellOutputOf("tessel set User.con QSIZE=5 -o /dev/stdout | cat"),
            With(kStreamText, "64", "5"));
  EXPECT_EQ(
      ShellOutputOf("tessel set User.con QSIZE=5 -o /dev/stdout > redirected; cat redirected"),
      With(kStreamText, "64", "5"));
  EXPECT_EQ(OutputOf({"set", "User.con", "QSIZE=5", "-o", "/dev/null"}), "");
  struct stat null {};
  ASSERT_EQ(::stat("/dev/null", &null), 0);
  EXPECT_TRUE(S_ISCHR(null.st_mode));
}

TEST_F(CommandLineStreams, WritesToANamedPipe) {
  ASSERT_EQ(::mkfifo(PathOf("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ShellOutputOf("tessel set User.con QSIZE=5 -o pipe & cat pipe"),
            With(kStreamText, "64", "5"));
  EXPECT_EQ(ShellOutputOf("cat User.con > pipe & tessel get pipe QSIZE"), "64\n");
  EXPECT_TRUE(std::filesystem::is_fifo(PathOf("pipe")));
}

TEST_F(CommandLineStreams, TakesAFileCalledDashWithItsFolder) {
  Put("-", "define QSIZE 1\r\n");
  EXPECT_EQ(OutputOf({"get", "./-", "QSIZE"}), "1\n");
  EXPECT_EQ(OutputOf({"set", "./-", "QSIZE=2", "--in-place"}), "");
  EXPECT_EQ(Bytes("-"), "define QSIZE 2\r\n");
  OutputOf({"set", "User.con", "QSIZE=3", "-o", "./-", "--force"});
  EXPECT_EQ(Bytes("-"), With(kStreamText, "64", "3"));
}

TEST_F(CommandLineStreams, WritesNoStreamInPlace) {
  const Outcome outcome = Shell("cat User.con | tessel set - QSIZE=5 --in-place");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tessel: Cannot save -: it is a stream.\n");
}

TEST_F(CommandLineStreams, SaysSoWhenStandardInputCannotBeRead) {
  EXPECT_EQ(Shell("tessel get - QSIZE <&-").err, "tessel: Cannot read -: Bad file descriptor.\n");
  EXPECT_EQ(Shell("tessel get - QSIZE < .").err, "tessel: Cannot read -: Is a directory.\n");
  using Arguments = std::vector<std::string>;
  for (const Arguments& arguments : {Arguments{"get", "-", "-", "QSIZE"},
                                     {"settings", "-", "-"},
                                     {"levels", "-", "-"},
                                     {"level", "-", "-", "0 0"},
                                     {"convert", "-", "-", "--dry-run"}}) {
    const std::string& command = arguments.front();
    ExpectUsageError(arguments, command + ": standard input can be read only once",
                     "tessel " + command);
  }
}

TEST_F(CommandLineStreams, SaysSoWhenAStreamHasNoEnd) {
#ifdef TESSEL_SANITIZED
  GTEST_SKIP() << "AddressSanitizer does not start with so little address space";
#endif
  const Outcome outcome =
      Shell("cat /dev/zero 2> cat.log | (ulimit -v 262144; tessel get - QSIZE)");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tessel: Cannot read -: Cannot allocate memory.\n");
}

TEST_F(CommandLineStreams, RefusesADeviceThatHasNoEndAtOnce) {
  const auto start = std::chrono::steady_clock::now();
  ExpectRefusal({"get", "/dev/zero", "QSIZE"},
                "Cannot read /dev/zero: it is a device with more than 16 MiB.");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  EXPECT_EQ(Shell("tessel get - QSIZE < /dev/urandom").err,
            "tessel: Cannot read -: it is a device with more than 16 MiB.\n");
  ExpectRefusal({"get", "/dev/null", "QSIZE"}, "/dev/null does not define QSIZE.");
}

}  // namespace
}  // namespace tessel::test
