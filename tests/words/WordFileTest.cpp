// Word lists as text files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "words/WordFile.h"

namespace tessel {
namespace {

using testing::HasSubstr;

std::string Pairs(const std::vector<ScriptWord>& words) {
  std::string text;
  for (const ScriptWord& word : words) text += word.word + "=" + word.parameters + ";";
  return text;
}

std::string ErrorOf(const std::string& text) {
  try {
    ParseWordFile(text);
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "no error";
}

TEST(WordFile, HasAWordATabAndItsParametersOnALine) {
  EXPECT_EQ(FormatWordFile({{"addammo", "[weapon] [amount]"}, {"killit", ""}}),
            "addammo\t[weapon] [amount]\nkillit\t\n");
  EXPECT_EQ(FormatWordFile({}), "");
}

TEST(WordFile, HasBlanksWhereAWordHasLineBreaks) {
  EXPECT_EQ(FormatWordFile({{"a", "[x]\r\n[y]"}}), "a\t[x]  [y]\n");
}

TEST(WordFile, IsReadWithAnyLineEnds) {
  EXPECT_EQ(Pairs(ParseWordFile("a\t[x]\r\n\r\nb\t\nc\t[z]")), "a=[x];b=;c=[z];");
}

TEST(WordFile, NamesTheLineThatIsNone) {
  EXPECT_THAT(ErrorOf("a\t[x]\nb\n"), HasSubstr("2"));
  EXPECT_THAT(ErrorOf("\t[x]\n"), HasSubstr("1"));
  EXPECT_THAT(ErrorOf("a\t\n\nb[\t[x]\n"), HasSubstr("3"));
}

TEST(WordFile, HoldsNoParametersThatTheListWouldTakeForAWord) {
  EXPECT_EQ(ErrorOf("a\t[x]\nfoo\tplain\n"),
            "Line 2 of the word list: Parameters need a \"[\", as in \"[amount]\": that mark tells "
            "them from words.");
}

TEST(WordFile, HoldsNoControlCharacters) {
  for (const std::string line : {"a\x01\t[x]", "a\t[x]\x7F", "a\t[x]\t[y]", "a\rb\t[x]"}) {
    EXPECT_THAT(ErrorOf(line), HasSubstr("Line 1 of the word list: A word and its")) << line;
  }
}

}  // namespace
}  // namespace tessel
