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
  ExpectUsageError({"set", "a.con"}, "ITEM is required", "tessel set");
  ExpectUsageError({"set", "a.con", "QSIZE"}, "VALUE is required", "tessel set");
  ExpectUsageError({"new", "15AU", "9"}, "\"9\" is one argument too many", "tessel new");
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

TEST_F(CommandLineUsage, GuessesMistypedCommandsAndOptions) {
  const auto guess = [this](const std::vector<std::string>& arguments) {
    const Outcome outcome = Tessel(arguments);
    EXPECT_EQ(outcome.status, 2);
    const std::size_t from = outcome.err.find("Did you mean");
    return from == outcome.err.npos ? "" : outcome.err.substr(from, outcome.err.find('?') - from);
  };
  EXPECT_EQ(guess({"convrt", "User.con"}), "Did you mean \"convert\"");
  EXPECT_EQ(guess({"color", "User.con"}), "Did you mean \"colour\"");
  EXPECT_EQ(guess({"words", "improt"}), "Did you mean \"import\"");
  EXPECT_EQ(guess({"eat", "User.con"}), "");
  EXPECT_EQ(guess({"set", "a.con", "A=1", "--in-plce"}), "Did you mean \"--in-place\"");
  EXPECT_EQ(guess({"set", "a.con", "A=1", "--bakup=.x"}), "Did you mean \"--backup\"");
  EXPECT_EQ(guess({"settings", "a.con", "--section", "Playr"}), "Did you mean \"Player\"");
  EXPECT_EQ(guess({"new", "15UA"}), "Did you mean \"15AU\"");
  EXPECT_EQ(guess({"help", "convrt"}), "Did you mean \"convert\"");
}

TEST_F(CommandLineUsage, HelpsOnACommandByName) {
  EXPECT_EQ(OutputOf({"help"}), OutputOf({"--help"}));
  for (auto command : kCommands) {
    auto asked = command;
    asked.insert(asked.begin(), "help");
    command.push_back("--help");
    EXPECT_EQ(OutputOf(asked), OutputOf(command)) << asked.back();
  }
  ExpectUsageError({"help", "eat"}, "help: there is no subcommand \"eat\"", "tessel help");
}

TEST_F(CommandLineUsage, ShowsWhatBelongsBehindTheOptions) {
  EXPECT_THAT(OutputOf({"help", "set"}),
              testing::HasSubstr(
                  "Usage: tessel set [OPTIONS] FILE... ITEM=VALUE... | FILE... ITEM VALUE\n"));
  EXPECT_THAT(OutputOf({"help", "words", "set"}),
              testing::HasSubstr("Usage: tessel words set [OPTIONS] WORD PARAMETERS\n"));
}

}  // namespace
}  // namespace tessel::test
