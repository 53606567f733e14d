// What a script names, where the names are used, and the word at a place.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "data/DataFiles.h"
#include "language/Blocks.h"
#include "language/Definitions.h"
#include "language/Names.h"
#include "language/Statement.h"

namespace tessel::language {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> SymbolTexts(std::string_view text) {
  const Script script(text);
  std::vector<std::string> shown;
  for (const Symbol& symbol : Symbols(script)) {
    std::string line(GrammarOf(symbol.keyword).word);
    (line += '|') += script.Text(symbol.name);
    (line += '|') += script.Text(symbol.detail);
    shown.push_back(line + (symbol.terminated ? "" : "?"));
  }
  return shown;
}

/// The text with each use of a name in brackets, "=" behind those that define it.
std::string UsesIn(std::string_view text, std::string_view name) {
  const Script script(text);
  std::string marked(text);
  const auto uses = UsesOf(script, name);
  for (auto use = uses.rbegin(); use != uses.rend(); ++use) {
    marked.insert(static_cast<std::size_t>(use->word.end),
                  use->kind == UseKind::kDefines ? "=]" : "]");
    marked.insert(static_cast<std::size_t>(use->word.begin), "[");
  }
  return marked;
}

std::string WordTextAt(std::string_view text, Position offset) {
  const Script script(text);
  const auto word = WordAt(script, offset);
  return word ? std::string(script.Text(*word)) : "none";
}

TEST(DefinitionsOfName, AreTheUsesThatGiveIt) {
  const Script script("define a 1\nstate A ends actor b { state a action a } enda\naction A 0\n");
  std::vector<std::string> shown;
  for (const Use& use : DefinitionsOfName(script, "a")) {
    shown.push_back(std::string(GrammarOf(*use.keyword).word) + " " +
                    std::to_string(script.PlaceOf(use.word.begin).line));
  }
  EXPECT_THAT(shown, ElementsAre("define 1", "state 2", "action 3"));
}

TEST(Symbols, AreWhatHasANameOrANumber) {
  EXPECT_THAT(SymbolTexts("define A 1 // x\ndefinequote 5 HO HO\ndefinevolumename 0 V\n"
                          "definelevelname 0 7 E1L8.map 05:00 03:00 T U\n"
                          "definesound S f.voc 0 0 0 0 0\nmusic 1 a.mid\n b.mid\n"),
              ElementsAre("define|A|1", "definequote|5|HO HO", "definevolumename|0|V",
                          "definelevelname|0 7|E1L8.map 05:00 03:00 T U",
                          "definesound|S|f.voc 0 0 0 0 0", "music|1|a.mid\n b.mid"));
  EXPECT_THAT(SymbolTexts("include A\ngamestartup B\n{ }\nends"), IsEmpty());
}

TEST(Symbols, OfScriptsAreDefinedOutsideOfBlocks) {
  EXPECT_THAT(
      SymbolTexts("action A 0 1\nmove M\nai I A M face\nstate s\n action A\n state t\nends\n"
                  "actor B 1 A\n ai I\nenda\nuseractor 1 C 2\n"),
      ElementsAre("action|A|0 1", "move|M|", "ai|I|A M face", "state|s|", "actor|B|1 A",
                  "useractor|C|2?"));
}

TEST(Symbols, OfBlocksReachOverThem) {
  const Script script("state s\n x\nends\ndefine A 1\nactor B\n{");
  const auto symbols = Symbols(script);
  ASSERT_EQ(symbols.size(), 3U);
  EXPECT_EQ(script.Text(symbols[0].range), "state s\n x\nends");
  EXPECT_EQ(script.Text(symbols[1].range), "define A 1");
  EXPECT_EQ(script.Text(symbols[2].range), "actor B\n{");
}

TEST(Symbols, HaveEmptyNamesWhereTheyAreMissing) {
  EXPECT_THAT(SymbolTexts("define\ndefinelevelname\ndefinelevelname 3\nuseractor 1\nenda"),
              ElementsAre("define||", "definelevelname||", "definelevelname|3|", "useractor||1"));
}

TEST(Uses, AreWholeWordsInAnyCase) {
  EXPECT_EQ(UsesIn("define Ab 1\ngamestartup aB xAB AB_ A{AB}", "ab"),
            "define [Ab=] 1\ngamestartup [aB] xAB AB_ A{[AB]}");
}

TEST(Uses, AreNoneInCommentsTextsAndFileNames) {
  EXPECT_EQ(UsesIn("// A\n/* A */ definequote A A\ndefinelevelname 0 0 A 0 0 A\n"
                   "definevolumename 1 A\ndefineskillname 1 A\ninclude A\nmusic A A",
                   "A"),
            "// A\n/* A */ definequote A A\ndefinelevelname 0 0 A 0 0 A\n"
            "definevolumename 1 A\ndefineskillname 1 A\ninclude A\nmusic A A");
  EXPECT_EQ(UsesIn("definesound A A 0 A 0 0 0", "A"), "definesound [A=] A 0 [A] 0 0 0");
}

TEST(Uses, TellWhetherTheWordGivesTheName) {
  EXPECT_EQ(UsesIn("define A A\nactor A A\n spawn A\nenda\nuseractor A A A\nenda", "A"),
            "define [A=] [A]\nactor [A=] [A]\n spawn [A]\nenda\nuseractor [A] [A=] [A]\nenda");
  EXPECT_EQ(UsesIn("state a\n state a\nends\nmove a\nai b a a", "a"),
            "state [a=]\n state [a]\nends\nmove [a=]\nai b [a] [a]");
}

TEST(Uses, AreNoKeywords) {
  EXPECT_EQ(UsesIn("state state\nends\ndefine state 1", "state"),
            "state [state=]\nends\ndefine [state=] 1");
  EXPECT_EQ(UsesIn("state a {}\nends", "{"), "state a {}\nends");
}

TEST(Uses, MayBeABraceThatADefineTakesForItsName) {
  EXPECT_EQ(UsesIn("define } 1\n}", "}"), "define [}=] 1\n}");
}

TEST(Uses, AreFoundInFrontOfTheFirstStatement) {
  EXPECT_EQ(UsesIn("A x A\nends", "A"), "[A] x [A]\nends");
}

TEST(Uses, AreFoundFarApart) {
  std::string far;
  for (int i = 0; i < 2000; ++i) far += "// xA\r\n  word\r\n";
  EXPECT_EQ(UsesIn("A" + far + "A /* A" + far + "A */ A", "A"),
            "[A]" + far + "[A] /* A" + far + "A */ [A]");
}

TEST(Uses, OfNothingAreNone) { EXPECT_EQ(UsesIn("define A 1", ""), "define A 1"); }

TEST(WordAt, HoldsTheByteOrEndsInFrontOfIt) {
  EXPECT_EQ(WordTextAt("ab  cd", 0), "ab");
  EXPECT_EQ(WordTextAt("ab  cd", 1), "ab");
  EXPECT_EQ(WordTextAt("ab  cd", 2), "ab");
  EXPECT_EQ(WordTextAt("ab  cd", 3), "none");
  EXPECT_EQ(WordTextAt("ab  cd", 4), "cd");
  EXPECT_EQ(WordTextAt("ab  cd", 6), "cd");
  EXPECT_EQ(WordTextAt("ab\ncd", 2), "ab");
  EXPECT_EQ(WordTextAt("ab\ncd", 3), "cd");
}

TEST(WordAt, IsTheOneBehindWhereTwoMeet) {
  EXPECT_EQ(WordTextAt("a{b}", 1), "{");
  EXPECT_EQ(WordTextAt("a{b}", 2), "b");
  EXPECT_EQ(WordTextAt("a{b}", 4), "}");
}

TEST(WordAt, IsNoneInACommentOrAnEmptyText) {
  EXPECT_EQ(WordTextAt("", 0), "none");
  EXPECT_EQ(WordTextAt("// ab", 4), "none");
  EXPECT_EQ(WordTextAt("/* ab", 4), "none");
  EXPECT_EQ(WordTextAt("ab//", 2), "ab");
}

// The templates of a dialect, as a game reads them together.
struct ThreeFiles {
  const char* game;
  const char* user;
  const char* defs;
};

void PrintTo(const ThreeFiles& files, std::ostream* out) { *out << files.game; }

class TemplateNames : public testing::TestWithParam<ThreeFiles> {
 protected:
  // An action may have the name of a state, in another case or not.
  std::size_t StatesNamed(std::string_view name) const {
    std::size_t count = 0;
    for (const Use& use : UsesOf(game_, name)) {
      const bool state = use.keyword == Keyword::kState;
      count += static_cast<std::size_t>(state && use.kind == UseKind::kDefines);
    }
    return count;
  }

  const std::string gameText_ = test::ReadDataFile(GetParam().game);
  const std::string userText_ = test::ReadDataFile(GetParam().user);
  const std::string defsText_ = test::ReadDataFile(GetParam().defs);
  const Script game_{gameText_}, user_{userText_}, defs_{defsText_};
};

TEST_P(TemplateNames, OfStatesAreDefinedOnceWhereverTheyAreUsed) {
  for (BlockWalk walk(game_); walk.Next();) {
    const Mark mark = walk.Current();
    if (mark.keyword != Keyword::kState) continue;
    const std::string_view name = game_.Text(NameOf(game_, mark));
    EXPECT_EQ(StatesNamed(name), 1U) << name;
  }
}

TEST_P(TemplateNames, OfStartUpValuesAreDefinedByTheUserFile) {
  for (const Mark mark : user_.Marks()) {
    if (mark.keyword != Keyword::kGameStartup) continue;
    for (const Range word : ReadStatement(user_, mark).words) {
      EXPECT_EQ(DefinitionsOf(user_, user_.Text(word)).size(), 1U) << user_.Text(word);
    }
  }
}

TEST_P(TemplateNames, OfActorsAreDefinedByTheDefsFile) {
  for (BlockWalk walk(game_); walk.Next();) {
    if (walk.CurrentRole() != Role::kOpens) continue;
    if (GrammarOf(walk.Current().keyword).word.find("actor") == std::string_view::npos) continue;
    const std::string_view name = game_.Text(NameOf(game_, walk.Current()));
    EXPECT_EQ(DefinitionsOf(defs_, name).size(), 1U) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Both, TemplateNames,
                         testing::Values(ThreeFiles{"zmgame.dat", "zmuser.dat", "zmdefs.dat"},
                                         ThreeFiles{"zmgamep.dat", "zmuserp.dat", "zmdefsp.dat"}),
                         [](const auto& param) {
                           const std::string name = param.param.game;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace tessel::language
