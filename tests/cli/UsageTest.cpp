#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

const std::vector<std::vector<std::string>> kCommands = {{"convert"},
                                                         {"randomize"},
                                                         {"settings"},
                                                         {"get"},
                                                         {"set"},
                                                         {"levels"},
                                                         {"level"},
                                                         {"colour"},
                                                         {"words"},
                                                         {"new"},
                                                         {"words", "list"},
                                                         {"words", "get"},
                                                         {"words", "set"},
                                                         {"words", "remove"},
                                                         {"words", "import"},
                                                         {"words", "export"}};

class CommandLineUsage : public CommandLineTest {};

TEST_F(CommandLineUsage, TellsItsVersionEverywhere) {
  EXPECT_EQ(OutputOf({"--version"}), "tessel " TESSEL_VERSION "\n");
  for (auto command : kCommands) {
    command.push_back("--version");
    EXPECT_EQ(OutputOf(command), "tessel " TESSEL_VERSION "\n") << command.front();
  }
}

TEST_F(CommandLineUsage, HelpsEverywhere) {
  const std::string help = OutputOf({"--help"});
  for (auto command : kCommands) {
    if (command.size() == 1) {
      EXPECT_THAT(help, testing::HasSubstr("\n  " + command[0] + " "));
    }
    command.push_back("-h");
    const std::string own = OutputOf(command);
    EXPECT_THAT(own, testing::HasSubstr("\nUsage: "));
    EXPECT_THAT(own, testing::HasSubstr("--version"));
  }
}

TEST_F(CommandLineUsage, NeedsASubcommandThatThereIs) {
  ExpectUsageError({}, "A subcommand is required", "tessel");
  ExpectUsageError({"eat", "User.con"}, "there is no subcommand \"eat\"", "tessel");
}

TEST_F(CommandLineUsage, NamesWhatIsMissingOrTooMuch) {
  ExpectUsageError({"get"}, "FILE is required", "tessel get");
  ExpectUsageError({"get", "a.con"}, "ITEM is required", "tessel get");
  ExpectUsageError({"get", "a.con", "QSIZE", "9"}, "\"9\" is one argument too many", "tessel get");
  ExpectUsageError({"set", "a.con", "QSIZE", "9", "-o", ""},
                   "--output: the name of the file is empty", "tessel set");
  ExpectUsageError({"set", "a.con", "QSIZE", "9", "-o", "b", "--in-place"},
                   "--output excludes --in-place", "tessel set");
}

TEST_F(CommandLineUsage, TellsHowToWriteANameWithADashInFront) {
  ExpectUsageError({"get", "-x.con", "QSIZE"},
                   "there is no option \"-x.con\" here; a file of that name is written "
                   "\"./-x.con\"",
                   "tessel get");
  Put("-x.con", "define QSIZE 64");
  EXPECT_EQ(OutputOf({"get", "./-x.con", "QSIZE"}), "64\n");
  EXPECT_EQ(OutputOf({"get", "--", "-x.con", "QSIZE"}), "64\n");
}

TEST_F(CommandLineUsage, RepeatsArgumentsHarmlessly) {
  ExpectUsageError({"\x1B[31m\neat"}, "there is no subcommand \"?[31m?eat\"", "tessel");
}

}  // namespace
}  // namespace tessel::test
