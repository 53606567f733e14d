#include <nlohmann/json.hpp>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

const std::string kColouredText = "define A 1 // <b>\x1B[2J\x9D&'\xE9\r\nb";

class CommandLineColour : public CommandLineTest {
 protected:
  CommandLineColour() { Put("User.con", kColouredText); }
};

TEST_F(CommandLineColour, PrintsPlainTextWhereThereIsNoTerminal) {
  EXPECT_EQ(OutputOf({"colour", "User.con"}), "define A 1 // <b>?[2J?&'\xC3\xA9\nb");
}

TEST_F(CommandLineColour, PrintsColoursForTerminalsWhenAsked) {
  EXPECT_EQ(OutputOf({"colour", "User.con", "--format", "ansi"}),
            "\x1B[38;2;200;0;0mdefine\x1B[0m A 1 "
            "\x1B[38;2;0;128;0m// <b>?[2J?&'\xC3\xA9\x1B[0m\nb");
}

TEST_F(CommandLineColour, PrintsAskedForColoursEvenWithNoColorSet) {
  const Outcome outcome =
      Tessel({"colour", "User.con", "--format", "ansi"}, [] { ::setenv("NO_COLOR", "1", 1); });
  EXPECT_EQ(outcome.out, OutputOf({"colour", "User.con", "--format", "ansi"}));
}

TEST_F(CommandLineColour, PrintsHtmlThatTheTextCannotBreak) {
  EXPECT_EQ(OutputOf({"colour", "User.con", "--format", "html"}),
            "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<pre>"
            "<span style=\"color:rgb(200,0,0)\">define</span> A 1 "
            "<span style=\"color:rgb(0,128,0)\">// &lt;b&gt;\xEF\xBF\xBD[2J\xEF\xBF\xBD&amp;&#39;"
            "\xC3\xA9</span>\r\nb</pre>\n");
}

TEST_F(CommandLineColour, PrintsTheColouredRunsAsJson) {
  EXPECT_EQ(json::parse(OutputOf({"colour", "User.con", "--format", "json"})),
            json::parse("[[0,6,200],[11,14,32768]]"));
}

TEST_F(CommandLineColour, KnowsItsFormats) {
  EXPECT_EQ(Tessel({"colour", "User.con", "--format", "pdf"}).status, 2);
}

/// What the program writes to a terminal.
std::string OnTerminal(const std::string& directory, std::vector<const char*> arguments,
                       bool noColour) {
  const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
  if (terminal == -1 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0) return "no terminal";
  const int line = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(line, STDOUT_FILENO);
    if (noColour) {
      ::setenv("NO_COLOR", "1", 1);
    } else {
      ::unsetenv("NO_COLOR");
    }
    if (::chdir(directory.c_str()) != 0) ::_exit(126);
    arguments.insert(arguments.begin(), "tessel");
    arguments.push_back(nullptr);
    ::execv(TesselProgram().c_str(), const_cast<char* const*>(arguments.data()));
    ::_exit(127);
  }
  ::waitpid(child, nullptr, 0);
  char buffer[4096];
  const ssize_t length = ::read(terminal, buffer, sizeof buffer);
  ::close(line);
  ::close(terminal);
  return {buffer, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

TEST_F(CommandLineColour, ColoursATerminalUnlessNoColorIsSet) {
  Put("short.con", "define A");
  EXPECT_EQ(OnTerminal(Directory(), {"colour", "short.con"}, false),
            "\x1B[38;2;200;0;0mdefine\x1B[0m A");
  EXPECT_EQ(OnTerminal(Directory(), {"colour", "short.con"}, true), "define A");
}

TEST_F(CommandLineColour, ColoursDifferencesOnATerminalUnlessNoColorIsSet) {
  Put("short.con", "define A 1 // \x1B[2J\r\n");
  const std::vector<const char*> set = {"set", "short.con", "A=2", "--dry-run"};
  // The terminal makes CR LF of each line feed.
  const std::string coloured = OnTerminal(Directory(), set, false);
  EXPECT_THAT(coloured, testing::HasSubstr("\x1B[31m-define A 1 // ?[2J\x1B[0m\r\n"
                                           "\x1B[32m+define A 2 // ?[2J\x1B[0m\r\n"));
  const std::string plain = OnTerminal(Directory(), set, true);
  EXPECT_THAT(plain, testing::HasSubstr("-define A 1 // ?[2J\r\n+define A 2 // ?[2J\r\n"));
  EXPECT_EQ(plain.find('\x1B'), std::string::npos);
}

}  // namespace
}  // namespace tessel::test
