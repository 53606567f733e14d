#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Performance.h"
#include "Scenario.h"
#include "Turning.h"
#include "support/TempDirectory.h"

namespace scenario {
namespace {

using tessel::test::TempDirectory;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> AllScenarios() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(TESSEL_SCENARIOS)) {
    if (entry.path().extension() == ".scenario") files.push_back(entry.path());
  }
  return files;
}

void ExpectSame(const std::vector<Step>& one, const std::vector<Step>& other,
                const std::string& file) {
  ASSERT_EQ(one.size(), other.size()) << file;
  for (std::size_t i = 0; i < one.size(); ++i) {
    EXPECT_EQ(one[i].text, other[i].text) << file;
    EXPECT_EQ(one[i].bytes, other[i].bytes) << file;
    ASSERT_EQ(one[i].expected.All().size(), other[i].expected.All().size()) << file;
    for (std::size_t k = 0; k < one[i].expected.All().size(); ++k) {
      EXPECT_TRUE(SameValue(one[i].expected.All()[k], other[i].expected.All()[k])) << file;
    }
  }
}

TEST(ScenarioFile, SaysTheSameInJsonAndInWords) {
  const TempDirectory temp;
  const auto files = AllScenarios();
  ASSERT_FALSE(files.empty());
  for (const std::string& file : files) {
    const auto steps = ReadScenario(file, Directory());
    const auto json = temp.Put("json.scenario", InJson(file));
    ExpectSame(ReadScenario(json, Directory()), steps, file);
    const auto words = temp.Put("words.scenario", InWords(json));
    ExpectSame(ReadScenario(words, Directory()), steps, file);
  }
}

TEST(ScenarioFile, KeepsCommentsFilesAndNumbersWhenItIsPutIntoWords) {
  const TempDirectory temp;
  const auto file = temp.Put("a.scenario",
                             "# Why.\n"
                             "write a.con crlf\n"
                             "> {\"do\":\"text\"}\n"
                             "end\n"
                             "\n"
                             "> {\"do\":\"text\"}\n"
                             "< {\"text\":\"a\"}\n"
                             "> {\"do\":\"resize\",\"width\":1e3,\"height\":1}\n"
                             "> {\"do\"\n");
  EXPECT_EQ(InWords(file),
            "# Why.\n"
            "write a.con crlf\n"
            "> {\"do\":\"text\"}\n"
            "end\n"
            "\n"
            "text\n"
            "    is \"a\"\n"
            "> {\"do\":\"resize\",\"width\":1e3,\"height\":1}\n"
            "> {\"do\"\n");
}

TEST(ScenarioFile, NamesTheLineOfAMistake) {
  const TempDirectory temp;
  const auto file = temp.Put("a.scenario", "text\n    is \"a\"\nfly away\n");
  try {
    ReadScenario(file, Directory());
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_THAT(error.what(), HasSubstr("a.scenario:3: "));
    EXPECT_THAT(error.what(), HasSubstr("fly away"));
  }
}

/// A program that gives one reply to every command.
std::string Replying(const TempDirectory& temp, const std::string& reply) {
  const auto program = temp.Put(
      "program", "#!/bin/sh\nwhile read -r line; do cat <<'end'\n" + reply + "\nend\ndone\n");
  ::chmod(program.c_str(), 0755);
  return program;
}

Performance Played(const TempDirectory& temp, const std::string& scenario,
                   const std::string& reply) {
  const auto file = temp.Put("a.scenario", scenario);
  return Perform(file, Replying(temp, reply), "headless", temp / "played");
}

TEST(Performance, OfWhatCameAsExpectedHasNothingNew) {
  const TempDirectory temp;
  const auto played =
      Played(temp, "text\n    is \"~b\"\n", R"({"ok":true,"text":"abc","events":[]})");
  EXPECT_THAT(played.failures, ElementsAre());
  EXPECT_EQ(played.actual, "");
}

TEST(Performance, ShowsBothSidesAndWritesWhatCame) {
  const TempDirectory temp;
  const auto played = Played(
      temp,
      "# A comment.\n"
      "state\n"
      "    current 0\n"
      "    tab 1 is \"a.con\" saved\n"
      "\n"
      "restart\n",
      R"({"ok":true,"state":{"current":0,"tabs":[{"caption":"$DIR.con","tag":"x","image":"RedDot"}]}})");
  ASSERT_EQ(played.failures.size(), 1U);
  EXPECT_THAT(played.failures[0], HasSubstr("a.scenario:2: state"));
  EXPECT_THAT(played.failures[0], HasSubstr("\n    current 0\n"
                                            "  - tab 1 is \"a.con\" saved\n"
                                            "  + tab 1 is \"$DIR.con\" modified\n"));
  EXPECT_EQ(played.actual,
            "# A comment.\n"
            "state\n"
            "    current 0\n"
            "    tab 1 is \"$DIR.con\" modified\n"
            "\n"
            "restart\n");
}

TEST(Performance, WritesEventsThatNobodyExpected) {
  const TempDirectory temp;
  const auto played = Played(
      temp, "press FileClose\n    popup\n",
      R"({"ok":true,"events":[{"event":"popup","enabled":{}},{"event":"pointer","value":11}]})");
  EXPECT_EQ(played.actual, "press FileClose\n    popup\n    pointer becomes 11\n");
}

TEST(Performance, WritesThatACommandIsRefused) {
  const TempDirectory temp;
  const auto played = Played(temp, "press FileOpen\n    no events\n",
                             R"({"ok":false,"error":"disabled","events":[]})");
  ASSERT_EQ(played.failures.size(), 1U);
  EXPECT_THAT(played.failures[0], HasSubstr("refused"));
  EXPECT_EQ(played.actual, "press FileOpen\n    refused \"disabled\"\n");
}

TEST(Performance, WritesWhatAFileHolds) {
  const TempDirectory temp;
  const auto played =
      Played(temp, "write a.con \"old\"\nholds a.con crlf\nnew\nend\ntext\n", R"({"ok":true})");
  ASSERT_EQ(played.failures.size(), 1U);
  EXPECT_EQ(played.actual, "write a.con \"old\"\nholds a.con \"old\"\ntext\n");
}

TEST(Performance, NamesItsFolderAsTheScenarioDoes) {
  const TempDirectory temp;
  const auto played = Played(temp, "text\n    is \"\"\n",
                             R"({"ok":true,"text":")" + temp / "played" + R"(/a.con"})");
  EXPECT_EQ(played.actual, "text\n    is \"$DIR/a.con\"\n");
}

}  // namespace
}  // namespace scenario
