// The game templates: blocks that open and close, names that are known, words that are listed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "data/DataFiles.h"

namespace tessel::test {
namespace {

struct Game {
  const char* game;
  const char* user;
  const char* defs;
};

void PrintTo(const Game& game, std::ostream* out) { *out << game.game; }

std::set<std::string> NamesThatFollow(const std::vector<std::string>& tokens,
                                      const std::set<std::string>& words) {
  std::set<std::string> names;
  for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
    if (words.contains(tokens[i])) names.insert(tokens[i + 1]);
  }
  return names;
}

class GameFile : public testing::TestWithParam<Game> {
 protected:
  const std::string bare_ = WithoutComments(ReadDataFile(GetParam().game));
  const std::vector<std::string> tokens_ = Tokens(bare_);
};

TEST_P(GameFile, ClosesEveryBlockBeforeTheNextOneOpens) {
  std::string open;
  int braces = 0;
  std::set<std::string> kinds;
  for (const auto& line : Lines(bare_, "\r\n")) {
    const auto tokens = Tokens(line);
    if (tokens.empty()) continue;
    if (line[0] != ' ') {
      const auto& word = tokens[0];
      if (word == "actor" || word == "useractor" || word == "state") {
        EXPECT_EQ(open, "") << line;
        open = word == "state" ? "ends" : "enda";
        kinds.insert(word);
      } else if (word == "enda" || word == "ends") {
        EXPECT_EQ(open, word);
        EXPECT_EQ(braces, 0) << "at the end of a block";
        open.clear();
      }
    }
    braces += static_cast<int>(std::count(tokens.begin(), tokens.end(), "{"));
    braces -= static_cast<int>(std::count(tokens.begin(), tokens.end(), "}"));
    EXPECT_GE(braces, 0) << line;
  }
  EXPECT_EQ(open, "");
  EXPECT_EQ(braces, 0);
  EXPECT_EQ(kinds, (std::set<std::string>{"actor", "state", "useractor"}));
}

TEST_P(GameFile, UsesNoNameThatNobodyDefines) {
  auto all = tokens_;
  for (const char* file : {GetParam().user, GetParam().defs}) {
    const auto more = Tokens(WithoutComments(ReadDataFile(file)));
    all.insert(all.end(), more.begin(), more.end());
  }
  std::set<std::string> defined = {"DEFS.CON", "USER.CON"};
  defined.merge(NamesThatFollow(all, {"define"}));
  for (const auto& line : Lines(bare_, "\r\n")) {
    if (line.starts_with("action ") || line.starts_with("move ") || line.starts_with("ai ")) {
      defined.insert(Tokens(line)[1]);
    }
  }
  for (const auto& token : tokens_) {
    if (std::isupper(static_cast<unsigned char>(token[0]))) {
      EXPECT_TRUE(defined.contains(token)) << token;
    }
  }
}

TEST_P(GameFile, PlaysSoundsThatTheUserFileDefines) {
  const auto sounds =
      NamesThatFollow(Tokens(WithoutComments(ReadDataFile(GetParam().user))), {"definesound"});
  for (const auto& sound :
       NamesThatFollow(tokens_, {"sound", "soundonce", "globalsound", "stopsound"})) {
    EXPECT_TRUE(sounds.contains(sound)) << sound;
  }
}

TEST_P(GameFile, ShowsQuotesThatTheUserFileDefines) {
  const auto quotes =
      NamesThatFollow(Tokens(WithoutComments(ReadDataFile(GetParam().user))), {"definequote"});
  for (const auto& quote : NamesThatFollow(tokens_, {"quote"})) {
    EXPECT_TRUE(quotes.contains(quote)) << quote;
  }
}

TEST_P(GameFile, IsWrittenInListedWordsAndItsOwnStates) {
  std::set<std::string> known;
  for (const auto& line : Lines(ReadDataFile("words.txt"), "\n")) {
    known.insert(line.substr(0, line.find('\t')));
  }
  std::set<std::string> states;
  for (const auto& line : Lines(bare_, "\r\n")) {
    if (line.starts_with("state ")) states.insert(Tokens(line)[1]);
  }
  for (std::size_t i = 0; i < tokens_.size(); ++i) {
    const auto& token = tokens_[i];
    if (!std::islower(static_cast<unsigned char>(token[0]))) continue;
    if (i > 0 && tokens_[i - 1] == "state") {
      EXPECT_TRUE(states.contains(token)) << "state " << token;
    } else {
      EXPECT_TRUE(known.contains(token)) << token;
    }
  }
}

// A text with "definequote" or "definesound" in it has none of the block words coloured.
TEST_P(GameFile, LeavesTheColouringOfItsBlocksAlone) {
  const auto text = ReadDataFile(GetParam().game);
  EXPECT_EQ(text.find("definequote"), std::string::npos);
  EXPECT_EQ(text.find("definesound"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Both, GameFile,
                         testing::Values(Game{"zmgame.dat", "zmuser.dat", "zmdefs.dat"},
                                         Game{"zmgamep.dat", "zmuserp.dat", "zmdefsp.dat"}),
                         [](const auto& param) {
                           return std::string(param.param.game) == "zmgame.dat" ? "Older" : "Newer";
                         });

}  // namespace
}  // namespace tessel::test
