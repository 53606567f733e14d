// Levels, music, quotes and sounds of the user templates.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "data/DataFiles.h"
#include "text/TextSearch.h"

namespace tessel::test {
namespace {

struct Dialect {
  const char* user;
  const char* defs;
  int episodes;
  int quotes;
  int soundSlots;
};

void PrintTo(const Dialect& dialect, std::ostream* out) { *out << dialect.user; }

class UserFile : public testing::TestWithParam<Dialect> {
 protected:
  std::vector<std::string> LinesThatBeginWith(const std::string& word) const {
    std::vector<std::string> found;
    for (auto& line : Lines(WithoutComments(text_), "\r\n")) {
      if (line.starts_with(word + " ")) found.push_back(line);
    }
    return found;
  }

  const std::string text_ = ReadDataFile(GetParam().user);
};

TEST_P(UserFile, HoldsElevenLevelsForEveryEpisodeInOrder) {
  const std::regex form(
      R"(definelevelname (\d) (\d+) (E(\d)L(\d+)\.map) \d\d:\d\d \d\d:\d\d \S.*)");
  int count = 0;
  for (const auto& line : LinesThatBeginWith("definelevelname")) {
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(line, parts, form)) << line;
    EXPECT_EQ(std::stoi(parts[1]), count / 11) << line;
    EXPECT_EQ(std::stoi(parts[2]), count % 11) << line;
    EXPECT_EQ(std::stoi(parts[4]), count / 11 + 1) << line;
    EXPECT_EQ(std::stoi(parts[5]), count % 11 + 1) << line;
    ++count;
  }
  EXPECT_EQ(count, GetParam().episodes * 11);
}

TEST_P(UserFile, NamesLevelsInNoCommentSoThatNoneIsListedThatIsNoLevel) {
  std::size_t count = 0;
  for (Position at = 0;; at += 4) {
    at = FindText(text_, "definelevelname", at, std::ssize(text_), kFindDefault);
    if (at == kNotFound) break;
    ++count;
  }
  EXPECT_EQ(count, LinesThatBeginWith("definelevelname").size());
}

TEST_P(UserFile, HoldsEveryMapAndTitleFirstInItsOwnLevelLine) {
  for (const auto& line : LinesThatBeginWith("definelevelname")) {
    const auto tokens = Tokens(line);
    const auto title = line.substr(line.find(tokens[5], line.find(tokens[4]) + 1) + 6);
    const auto begin = static_cast<Position>(text_.find(line));
    for (const auto& sought : {tokens[3], title}) {
      const auto first = FindText(text_, sought, 0, std::ssize(text_), kFindDefault);
      EXPECT_TRUE(first >= begin && first < begin + std::ssize(line)) << sought;
    }
  }
}

TEST_P(UserFile, NumbersItsQuotesWithoutAGapAndKeepsThemShort) {
  int number = 0;
  for (const auto& line : LinesThatBeginWith("definequote")) {
    EXPECT_EQ(Tokens(line)[1], std::to_string(number++));
    EXPECT_LE(line.substr(22).size(), 64u) << line;
    EXPECT_EQ(line[21], ' ') << line;
  }
  EXPECT_EQ(number, GetParam().quotes);
}

TEST_P(UserFile, HoldsASongForEveryLevelAndTheTitle) {
  std::map<std::string, std::size_t> songs;
  std::string episode;
  for (const auto& token : Tokens(WithoutComments(text_))) {
    if (episode == "next") {
      episode = token;
    } else if (token == "music") {
      episode = "next";
    } else if (token.ends_with(".mid") || token.ends_with(".MID")) {
      ++songs[episode];
      EXPECT_LE(token.size(), 12u) << token;
    }
  }
  EXPECT_EQ(songs.size(), static_cast<std::size_t>(GetParam().episodes) + 1);
  for (const auto& [number, count] : songs) EXPECT_EQ(count, number == "0" ? 2u : 11u) << number;
}

TEST_P(UserFile, GivesEverySoundAFileFiveNumbersAndASlot) {
  std::map<std::string, std::string> slots;
  const auto defs = WithoutComments(ReadDataFile(GetParam().defs));
  for (const auto& line : Lines(defs.substr(defs.find("FIST_SWING") - 8), "\r\n")) {
    const auto tokens = Tokens(line);
    if (tokens.size() == 3) slots[tokens[1]] = tokens[2];
  }
  std::set<std::string> taken;
  for (const auto& [name, slot] : slots) {
    EXPECT_TRUE(taken.insert(slot).second) << name << " has the slot of another sound";
    EXPECT_LT(std::stoi(slot), GetParam().soundSlots) << name;
  }
  std::set<std::string> names;
  const std::regex form(R"(definesound \w+ +\w{1,8}\.voc( +-?\d+){5})");
  for (const auto& line : LinesThatBeginWith("definesound")) {
    EXPECT_TRUE(std::regex_match(line, form)) << line;
    const auto name = Tokens(line)[1];
    EXPECT_TRUE(names.insert(name).second) << name << " is defined twice";
    EXPECT_TRUE(slots.contains(name)) << name << " has no slot";
  }
}

TEST_P(UserFile, DefinesNoNameTwice) {
  std::set<std::string> names;
  for (const char* file : {GetParam().user, GetParam().defs}) {
    for (const auto& line : Lines(WithoutComments(ReadDataFile(file)), "\r\n")) {
      const auto tokens = Tokens(line);
      if (tokens.empty() || tokens[0] != "define") continue;
      ASSERT_EQ(tokens.size(), 3u) << line;
      EXPECT_TRUE(names.insert(tokens[1]).second) << tokens[1];
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Both, UserFile,
                         testing::Values(Dialect{"zmuser.dat", "zmdefs.dat", 3, 122, 348},
                                         Dialect{"zmuserp.dat", "zmdefsp.dat", 4, 125, 400}),
                         [](const auto& param) {
                           return param.param.episodes == 3 ? "Older" : "Newer";
                         });

}  // namespace
}  // namespace tessel::test
