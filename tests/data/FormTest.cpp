// The form of the data files: bytes, line ends, word list.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "data/DataFiles.h"

namespace tessel::test {
namespace {

class Template : public testing::TestWithParam<const char*> {
 protected:
  const std::string text_ = ReadDataFile(GetParam());
};

TEST_P(Template, EndsEveryLineWithCrLf) {
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_[i] == '\n') {
      ASSERT_TRUE(i > 0 && text_[i - 1] == '\r') << "lone LF at " << i;
    }
    if (text_[i] == '\r') {
      ASSERT_TRUE(i + 1 < text_.size() && text_[i + 1] == '\n') << "lone CR at " << i;
    }
  }
  EXPECT_TRUE(text_.ends_with("\r\n"));
}

TEST_P(Template, HoldsPlainCharactersAndBlanksOnly) {
  for (const auto& line : Lines(text_, "\r\n")) {
    EXPECT_TRUE(std::all_of(line.begin(), line.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
  }
}

TEST_P(Template, ClosesEveryBlockComment) {
  std::size_t at = 0;
  while ((at = text_.find("/*", at)) != std::string::npos) {
    const auto end = text_.find("*/", at);
    ASSERT_NE(end, std::string::npos) << "opened at " << at;
    at = end + 2;
  }
}

INSTANTIATE_TEST_SUITE_P(All, Template, testing::ValuesIn(kTemplates), [](const auto& param) {
  const std::string file = param.param;
  return file.substr(0, file.find('.'));
});

struct Entry {
  std::string word;
  std::string parameters;
};

std::vector<Entry> WordList() {
  std::vector<Entry> entries;
  for (const auto& line : Lines(ReadDataFile("words.txt"), "\n")) {
    const auto tab = line.find('\t');
    entries.push_back({line.substr(0, tab), tab == std::string::npos ? "" : line.substr(tab + 1)});
  }
  return entries;
}

TEST(WordListFile, GivesEveryWordAParameterTextThatIsToldFromAWord) {
  const auto entries = WordList();
  EXPECT_GE(entries.size(), 120u);
  for (const auto& entry : entries) {
    EXPECT_FALSE(entry.word.empty());
    EXPECT_EQ(entry.word.find_first_of("[ \r"), std::string::npos) << entry.word;
    EXPECT_NE(entry.parameters.find('['), std::string::npos) << entry.word;
    EXPECT_EQ(entry.parameters.find_first_of("\t\r"), std::string::npos) << entry.word;
  }
}

TEST(WordListFile, NamesEveryWordOnceWhateverItsCase) {
  std::set<std::string> seen;
  for (auto [word, parameters] : WordList()) {
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_TRUE(seen.insert(word).second) << word;
  }
}

TEST(WordListFile, HoldsEveryWordThatIsColoured) {
  std::set<std::string> words;
  for (const auto& entry : WordList()) words.insert(entry.word);
  for (const char* word : {"gamestartup", "define", "definequote", "definevolumename",
                           "defineskillname", "definelevelname", "music", "definesound", "action",
                           "actor", "ai", "enda", "ends", "move", "state", "useractor"}) {
    EXPECT_TRUE(words.contains(word)) << word;
  }
}

}  // namespace
}  // namespace tessel::test
