#include <sys/resource.h>
#include <sys/stat.h>

#include "cli/CommandLineTest.h"
#include "support/ChildProcess.h"

namespace tessel::test {
namespace {

const std::string kText = "define QSIZE 64\r\n";

class CommandLineBadInput : public CommandLineTest {
 protected:
  CommandLineBadInput() { Put("User.con", kText); }

  /// Every command that reads a file, on this one.
  static std::vector<std::vector<std::string>> ReadersOf(const std::string& file) {
    return {{"convert", file, "--in-place"},
            {"randomize", file, "--section", "All", "--lower", "1", "--upper", "2", "--in-place"},
            {"settings", file},
            {"get", file, "QSIZE"},
            {"set", file, "QSIZE", "1", "--in-place"},
            {"levels", file},
            {"level", file, "0 7", "--title", "X", "--in-place"},
            {"colour", file}};
  }
  void ExpectEveryReaderRefuses(const std::string& file, const std::string& sentence,
                                const BeforeStart& before = {}) {
    for (const auto& command : ReadersOf(file)) {
      SCOPED_TRACE(command.front());
      ExpectRefusal(command, sentence, before);
    }
  }
  /// A refusal of a file whose bytes are not to be compared.
  void ExpectUnreadable(const std::string& file, const std::string& sentence) {
    const Outcome outcome = Tessel({"get", file, "QSIZE"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "tessel: " + sentence + "\n");
    EXPECT_EQ(outcome.out, "");
  }
  const std::vector<std::string> kSet = {"set", "User.con", "QSIZE", "1"};
  std::vector<std::string> SetTo(const std::string& file) const {
    return {"set", "User.con", "QSIZE", "1", "-o", file};
  }
};

TEST_F(CommandLineBadInput, RefusesAFileThatIsNotThere) {
  ExpectEveryReaderRefuses("none.con", "Cannot open none.con: No such file or directory.");
}

TEST_F(CommandLineBadInput, RefusesAnEmptyName) {
  for (const auto& command : ReadersOf("")) {
    ExpectUsageError(command, "FILE: the name of the file is empty", "tessel " + command.front());
  }
}

TEST_F(CommandLineBadInput, RefusesADirectory) {
  std::filesystem::create_directory(PathOf("folder"));
  ExpectEveryReaderRefuses("folder", "Cannot open folder: it is a directory.");
  ExpectEveryReaderRefuses("folder/", "Cannot open folder/: it is a directory.");
  ExpectEveryReaderRefuses(".", "Cannot open .: it is a directory.");
}

TEST_F(CommandLineBadInput, RefusesAFileThatMustNotBeRead) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can compare the bytes";
  ::chmod(PathOf("User.con").c_str(), 0);
  ExpectEveryReaderRefuses("User.con", "Cannot open User.con: Permission denied.",
                           [] { BecomeOrdinaryUser(); });
}

TEST_F(CommandLineBadInput, NamesHostileFilesOnOneHarmlessLine) {
  const std::string name = "a\nb\x1B[31m<b>.con";
  ExpectEveryReaderRefuses(name, "Cannot open a?b?[31m<b>.con: No such file or directory.");
  Put(name, kText);
  EXPECT_EQ(OutputOf({"get", name, "QSIZE"}), "64\n");
  ExpectRefusal({"get", name, "Armor"}, "a?b?[31m<b>.con does not define STARTARMORHEALTH.");
}

TEST_F(CommandLineBadInput, TakesBinaryFilesAsTheyAre) {
  std::string all = "define QSIZE 64\n";
  for (int round = 0; round < 3; ++round) {
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  }
  Put("binary.con", all);
  EXPECT_EQ(OutputOf({"set", "binary.con", "QSIZE", "65"}), With(all, "64", "65"));
  EXPECT_EQ(OutputOf({"colour", "binary.con"}).find('\x1B'), std::string::npos);
  ExpectRefusal({"convert", "none-such.con", "--in-place"},
                "Cannot open none-such.con: No such file or directory.");
}

TEST_F(CommandLineBadInput, SaysSoWhenAFileIsTooLargeForTheMemory) {
#ifdef TESSEL_SANITIZED
  GTEST_SKIP() << "AddressSanitizer does not start with so little address space";
#endif
  Put("huge.con", "");
  std::filesystem::resize_file(PathOf("huge.con"), std::uintmax_t{1} << 30);
  const Outcome outcome = Tessel({"get", "huge.con", "QSIZE"}, [] {
    const rlimit limit = {rlim_t{1} << 30, rlim_t{1} << 30};
    ::setrlimit(RLIMIT_AS, &limit);
  });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tessel: Cannot open huge.con: Cannot allocate memory.\n");
  EXPECT_EQ(outcome.out, "");
}

TEST_F(CommandLineBadInput, ReadsNoMoreThanAGibibyte) {
  constexpr std::uintmax_t kGiB = std::uintmax_t{1} << 30;
  Put("huge.con", "");
  for (const auto length : {kGiB + 1, 2 * kGiB - 1, 2 * kGiB, 4 * kGiB + 1}) {
    std::filesystem::resize_file(PathOf("huge.con"), length);
    ExpectUnreadable("huge.con", "Cannot open huge.con: it has more than 1 GiB.");
  }
}

TEST_F(CommandLineBadInput, RefusesPlacesWhereNothingCanBeWritten) {
  std::filesystem::create_directory(PathOf("folder"));
  ExpectRefusal(SetTo("none/new.con"), "Cannot save none/new.con: No such file or directory.");
  ExpectRefusal(SetTo("folder"), "Cannot save folder: it is a directory.");
  ExpectRefusal(SetTo("/dev/full"), "Cannot write to /dev/full: No space left on device.");
}

TEST_F(CommandLineBadInput, LeavesAReadOnlyFileAlone) {
  ::chmod(PathOf("User.con").c_str(), 0444);
  ExpectRefusal({"set", "User.con", "QSIZE", "1", "--in-place"},
                "Cannot save User.con: the file is read-only.");
  EXPECT_EQ(ModeOf(PathOf("User.con")), 0444U);
}

TEST_F(CommandLineBadInput, KeepsPermissionsAndSymbolicLinksInPlace) {
  ::chmod(PathOf("User.con").c_str(), 0640);
  std::filesystem::create_symlink("User.con", PathOf("link.con"));
  OutputOf({"set", "link.con", "QSIZE", "1", "--in-place"});
  EXPECT_TRUE(std::filesystem::is_symlink(PathOf("link.con")));
  EXPECT_EQ(Bytes("User.con"), With(kText, "64", "1"));
  EXPECT_EQ(ModeOf(PathOf("User.con")), 0640U);
}

TEST_F(CommandLineBadInput, KeepsTheOldBytesWhenTheDiskIsFull) {
  const std::string big = kText + std::string(100000, '/');
  Put("big.con", big);
  const BeforeStart fullDisk = [] {
    const rlimit limit = {50000, 50000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  };
  ExpectRefusal({"set", "big.con", "QSIZE", "1", "--in-place"},
                "Cannot save big.con: File too large.", fullDisk);
}

TEST_F(CommandLineBadInput, SaysSoWhenStandardOutputIsFullOrClosed) {
  const std::string sentence = "tessel: Cannot write the result to standard output.\n";
  auto commands = ReadersOf("User.con");
  std::erase_if(commands, [](const auto& command) {
    return command.back() == "--in-place" || command.front() == "levels";
  });
  commands.insert(commands.end(), {kSet, {"new", "15AU"}, {"--help"}, {"--version"}});
  for (const auto& command : commands) {
    SCOPED_TRACE(command.front());
    const Outcome full =
        Tessel(command, [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); });
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, sentence);
    const Outcome closed = Tessel(command, [] { ::close(STDOUT_FILENO); });
    EXPECT_EQ(closed.status, 1);
    EXPECT_EQ(closed.err, sentence);
  }
}

TEST_F(CommandLineBadInput, LeavesNoTraceInTheSettingsOfTheUser) {
  for (const auto& command : ReadersOf("User.con")) Tessel(command);
  EXPECT_FALSE(std::filesystem::exists(store_));
}

}  // namespace
}  // namespace tessel::test
