#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

using nlohmann::json;

class CommandLineCheck : public CommandLineTest {
 protected:
  CommandLineCheck() {
    Put("User.con", TemplateText("zmuser.dat"));
    Put("Defs.con", TemplateText("zmdefs.dat"));
    Put("Game.con", TemplateText("zmgame.dat"));
  }
};

TEST_F(CommandLineCheck, SaysNothingAboutTheTemplates) {
  EXPECT_EQ(OutputOf({"check", "User.con", "Defs.con", "Game.con"}), "");
}

TEST_F(CommandLineCheck, PrintsALineForEachFindingAsCompilersDo) {
  Put("odd.con", "define A 1\r\n  define A 2\r\n");
  const Outcome outcome = Tessel({"check", "odd.con"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "odd.con:2:3: error: \"A\" stands in line 1 already [doubled-define]\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(CommandLineCheck, EndsWellWithWarningsAlone) {
  Put("odd.con", "define BOOT_AMOUNT lots\n");
  EXPECT_EQ(Tessel({"check", "odd.con"}).status, 0);
  EXPECT_EQ(Tessel({"check", "odd.con", "--warnings-as-errors"}).status, 1);
  EXPECT_EQ(Tessel({"check", "odd.con", "--warnings-as-errors", "--no", "panel-value"}).status, 0);
}

TEST_F(CommandLineCheck, AppliesTheRulesThatAreNamed) {
  Put("odd.con", "define BOOT_AMOUNT lots\ndefine A\n");
  EXPECT_EQ(Tessel({"check", "odd.con", "--only", "define-without-value"}).out,
            "odd.con:2:1: error: \"A\" has no value [define-without-value]\n");
  EXPECT_EQ(OutputOf({"check", "odd.con", "--no", "define-without-value", "--no", "panel-value",
                      "--no", "randomizer-stops"}),
            "");
  const Outcome outcome = Tessel({"check", "odd.con", "--no", "panel-valu"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, testing::HasSubstr("Did you mean \"panel-value\"?"));
}

TEST_F(CommandLineCheck, LooksForNamesInAllFiles) {
  Put("Game.con", Bytes("Game.con") + "state mine\r\n  spawn BLOD\r\nends\r\n");
  EXPECT_EQ(Tessel({"check", "Game.con"}).status, 0);
  const Outcome outcome = Tessel({"check", "User.con", "Defs.con", "Game.con"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, testing::HasSubstr("\"BLOD\" is defined in none of these files"));
}

TEST_F(CommandLineCheck, KnowsTheWordsOfTheUsersList) {
  Put("odd.con", "state a\n  explode 5\nends\n");
  EXPECT_EQ(Tessel({"check", "odd.con", "--store", "words.db"}).status, 1);
  OutputOf({"words", "--store", "words.db", "set", "explode", "[strength]"});
  EXPECT_EQ(OutputOf({"check", "odd.con", "--store", "words.db"}), "");
}

TEST_F(CommandLineCheck, GoesOnBehindAFileThatCannotBeRead) {
  Put("odd.con", "define A\n");
  const Outcome outcome = Tessel({"check", "none.con", "odd.con"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, testing::HasSubstr("odd.con:1:1: error:"));
  EXPECT_THAT(outcome.err, testing::HasSubstr("none.con"));
  EXPECT_EQ(Tessel({"check"}).status, 2);
}

TEST_F(CommandLineCheck, ReportsAsJson) {
  Put("odd.con", "define A 1\ndefine a 1\n");
  const json report = json::parse(Tessel({"check", "odd.con", "--json"}).out);
  EXPECT_EQ(report["command"], "check");
  EXPECT_EQ(report["files"][0]["rows"], (json::array({{{"line", 2},
                                                       {"column", 1},
                                                       {"severity", "error"},
                                                       {"rule", "doubled-define"},
                                                       {"text", "\"a\" stands in line 1 already"},
                                                       {"fix", "take the line out"}}})));
}

TEST_F(CommandLineCheck, ReportsAsSarif) {
  Put("my odd.con", "define A 1\r\ndefine A 1\r\n");
  const json log = json::parse(Tessel({"check", "my odd.con", "--sarif"}).out);
  EXPECT_EQ(log["version"], "2.1.0");
  const json& run = log["runs"][0];
  EXPECT_EQ(run["tool"]["driver"]["name"], "tessel");
  const json& result = run["results"][0];
  EXPECT_EQ(result["ruleId"], "doubled-define");
  EXPECT_EQ(run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()]["id"],
            "doubled-define");
  EXPECT_EQ(result["level"], "error");
  const json& place = result["locations"][0]["physicalLocation"];
  EXPECT_EQ(place["artifactLocation"]["uri"], "my%20odd.con");
  EXPECT_EQ(place["region"],
            (json{{"startLine", 2}, {"startColumn", 1}, {"endLine", 2}, {"endColumn", 11}}));
  const json& fix = result["fixes"][0]["artifactChanges"][0]["replacements"][0];
  EXPECT_EQ(fix["deletedRegion"],
            (json{{"startLine", 2}, {"startColumn", 1}, {"endLine", 3}, {"endColumn", 1}}));
  EXPECT_EQ(fix["insertedContent"]["text"], "");
}

TEST_F(CommandLineCheck, ListsAndExplainsItsRules) {
  const std::string list = OutputOf({"check", "--list-rules"});
  EXPECT_THAT(list, testing::HasSubstr("open-brace            error    a brace is not closed\n"));
  std::istringstream lines(list);
  for (std::string line; std::getline(lines, line);) {
    const std::string rule = line.substr(0, line.find(' '));
    const std::string text = OutputOf({"check", "--explain", rule});
    EXPECT_TRUE(text.starts_with(rule + ": ")) << text;
    EXPECT_THAT(text, testing::HasSubstr("\nBad:\n"));
  }
  EXPECT_EQ(Tessel({"check", "--explain", "nothing"}).status, 2);
}

TEST_F(CommandLineCheck, PrintsNoEscapeSequences) {
  Put("odd.con", "define \x1B[31mA\n");
  for (const char* form : {"--json", "--sarif", "--tsv", "--no=unknown-rule"}) {
    EXPECT_EQ(Tessel({"check", "odd.con", form}).out.find('\x1B'), std::string::npos) << form;
  }
}

}  // namespace
}  // namespace tessel::test
