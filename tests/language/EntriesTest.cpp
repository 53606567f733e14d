// What quotes, titles, sounds and lists say, and what is missing in them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/DataFiles.h"
#include "language/Entries.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> TextsOf(std::string_view text, Keyword keyword) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const NumberedText& entry : NumberedTexts(script, keyword)) {
    shown.push_back(std::string(script.Text(entry.number)) + "|" +
                    std::string(script.Text(entry.text)) + (entry.IsComplete() ? "" : "?"));
  }
  return shown;
}

std::vector<std::string> SoundsOf(std::string_view text) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const Sound& sound : Sounds(script)) {
    std::string line(script.Text(sound.name));
    (line += '|') += script.Text(sound.file);
    for (const Range number : sound.numbers) (line += '|') += script.Text(number);
    if (!sound.rest.IsEmpty()) (line += '+') += script.Text(sound.rest);
    shown.push_back(line + (sound.IsComplete() ? "" : "?"));
  }
  return shown;
}

std::vector<std::string> ListsOf(std::string_view text, Keyword keyword) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const List& list : Lists(script, keyword)) {
    std::string line = std::string(script.Text(list.number)) + ":";
    for (const Range entry : list.entries) (line += ' ') += script.Text(entry);
    shown.push_back(line);
  }
  return shown;
}

TEST(NumberedTexts, HaveANumberAndAText) {
  constexpr std::string_view kText =
      "definequote 60 GOT  SHRINKER/EXPANDER! // x\r\ndefinevolumename 0 L.A.\r\n"
      "defineskillname 3 DAMN I'M GOOD {}\n";
  EXPECT_THAT(TextsOf(kText, Keyword::kDefineQuote), ElementsAre("60|GOT  SHRINKER/EXPANDER!"));
  EXPECT_THAT(TextsOf(kText, Keyword::kDefineVolumeName), ElementsAre("0|L.A."));
  EXPECT_THAT(TextsOf(kText, Keyword::kDefineSkillName), ElementsAre("3|DAMN I'M GOOD {}"));
}

TEST(NumberedTexts, AreIncompleteWithoutANumberOrAText) {
  EXPECT_THAT(TextsOf("definequote\ndefinequote 5\ndefinequote X Y\ndefinequote -1 Y\n"
                      "definequote 5 // x",
                      Keyword::kDefineQuote),
              ElementsAre("|?", "5|?", "X|Y?", "-1|Y?", "5|?"));
}

TEST(Sounds, HaveANameAFileAndFiveNumbers) {
  EXPECT_THAT(SoundsOf("definesound SLIM_ROAM a.voc -128  128   3 0\t0 // x\r\n"),
              ElementsAre("SLIM_ROAM|a.voc|-128|128|3|0|0"));
}

TEST(Sounds, AreIncompleteWithFewerOrMoreWords) {
  EXPECT_THAT(SoundsOf("definesound\ndefinesound S\ndefinesound S f 1 2 3 4\n"
                       "definesound S f 1 2 3 4 5 6 7\n// definesound T f 0 0 0 0 0"),
              ElementsAre("||||||?", "S||||||?", "S|f|1|2|3|4|?", "S|f|1|2|3|4|5+6 7?"));
}

TEST(Lists, RunOverLinesUpToTheNextStatement) {
  constexpr std::string_view kText =
      "music 0 a.mid\nmusic 1 b.mid c.mid\n  d.mid // e\n\ngamestartup A\n B\ndefine C 1";
  EXPECT_THAT(ListsOf(kText, Keyword::kMusic), ElementsAre("0: a.mid", "1: b.mid c.mid d.mid"));
  EXPECT_THAT(ListsOf(kText, Keyword::kGameStartup), ElementsAre(": A B"));
}

TEST(Lists, MayBeEmpty) {
  EXPECT_THAT(ListsOf("music\nmusic 1\n", Keyword::kMusic), ElementsAre(":", "1:"));
  EXPECT_THAT(ListsOf("gamestartup", Keyword::kGameStartup), ElementsAre(":"));
  EXPECT_THAT(ListsOf("// music 1 a", Keyword::kMusic), IsEmpty());
}

class TemplateEntries : public testing::TestWithParam<const char*> {
 protected:
  const std::string text_ = test::ReadDataFile(GetParam());
  const Script script_{text_};
};

TEST_P(TemplateEntries, AreAllComplete) {
  for (const Keyword keyword :
       {Keyword::kDefineQuote, Keyword::kDefineVolumeName, Keyword::kDefineSkillName}) {
    for (const NumberedText& entry : NumberedTexts(script_, keyword)) {
      EXPECT_TRUE(entry.IsComplete()) << script_.Text(entry.range);
    }
  }
  for (const Sound& sound : Sounds(script_)) {
    EXPECT_TRUE(sound.IsComplete()) << script_.Text(sound.range);
  }
  for (const List& music : Lists(script_, Keyword::kMusic)) {
    EXPECT_FALSE(music.number.IsEmpty());
    for (const Range song : music.entries) {
      EXPECT_NE(script_.Text(song).find('.'), std::string_view::npos) << script_.Text(song);
    }
  }
}

TEST_P(TemplateEntries, AreAsManyAsItsLinesThatBeginWithTheirKeywords) {
  const auto lines = test::Lines(test::WithoutComments(text_), "\r\n");
  const auto linesOf = [&](const std::string& keyword) {
    std::size_t count = 0;
    for (const auto& line : lines) {
      count += static_cast<std::size_t>(line.starts_with(keyword + " "));
    }
    return count;
  };
  EXPECT_EQ(NumberedTexts(script_, Keyword::kDefineQuote).size(), linesOf("definequote"));
  EXPECT_EQ(NumberedTexts(script_, Keyword::kDefineSkillName).size(), linesOf("defineskillname"));
  EXPECT_EQ(Sounds(script_).size(), linesOf("definesound"));
  EXPECT_EQ(Lists(script_, Keyword::kMusic).size(), linesOf("music"));
  EXPECT_EQ(Lists(script_, Keyword::kGameStartup).size(), linesOf("gamestartup"));
}

INSTANTIATE_TEST_SUITE_P(All, TemplateEntries, testing::ValuesIn(test::kTemplates),
                         [](const auto& param) {
                           return std::string(param.param, std::string(param.param).find('.'));
                         });

}  // namespace
}  // namespace tessel::language
