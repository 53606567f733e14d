#include <nlohmann/json.hpp>
#include <regex>

#include "cli/CommandLineTest.h"

namespace tessel::test {
namespace {

class CommandLineWords : public CommandLineTest {
 protected:
  /// Expects a note on the empty list; returns the file that it names.
  std::string ExpectEmptyList() {
    const Outcome outcome = Tessel({"words", "list"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "");
    const std::regex note(
        "tessel: The word list is empty\\. \"tessel words import (/.*/words\\.txt)\" adds the "
        "starter words\\.\n");
    std::smatch found;
    EXPECT_TRUE(std::regex_match(outcome.err, found, note)) << outcome.err;
    return found.size() == 2 ? found[1].str() : std::string();
  }
};

TEST_F(CommandLineWords, StartsWithAnEmptyListAndSaysWhereTheStarterWordsAre) {
  const std::string starterWords = ExpectEmptyList();
  EXPECT_EQ(OutputOf({"words", "export"}), "");
  OutputOf({"words", "import", starterWords});
  EXPECT_EQ(OutputOf({"words", "export"}), TemplateText("words.txt"));
}

TEST_F(CommandLineWords, ReadingMakesNoStoreAndNoFolder) {
  store_ = home_ / "none/settings.db";
  ExpectEmptyList();
  OutputOf({"words", "export"});
  Tessel({"words", "get", "sound"});
  Tessel({"words", "remove", "sound"});
  Tessel({"words", "set", "sound", "plain"});
  Put("words.txt", "no tab\n");
  Tessel({"words", "import", "words.txt"});
  EXPECT_FALSE(std::filesystem::exists(home_ / "none"));
  Tessel({"words", "list", "--store", PathOf("mistyped/words.db")});
  EXPECT_FALSE(std::filesystem::exists(PathOf("mistyped")));
}

TEST_F(CommandLineWords, ImportRefusesWhatSetRefuses) {
  Put("words.txt", "sound\t[name]\nfoo\tplain\n");
  ExpectRefusal({"words", "import", "words.txt"},
                "Line 2 of the word list: Parameters need a \"[\", as in \"[amount]\": that mark "
                "tells them from words.");
  Put("words.txt", "sound\t[\x01]\n");
  ExpectRefusal({"words", "import", "words.txt"},
                "Line 1 of the word list: A word and its parameters cannot hold tabs, line breaks "
                "or other control characters.");
  ExpectEmptyList();
}

TEST_F(CommandLineWords, GuessesAMistypedWord) {
  OutputOf({"words", "set", "soundonce", "[name]"});
  ExpectRefusal({"words", "get", "sondonce"},
                "\"sondonce\" is not in the word list. Did you mean \"soundonce\"?");
}

TEST_F(CommandLineWords, ListsForPrograms) {
  OutputOf({"words", "set", "sound", "[name]"});
  EXPECT_EQ(OutputOf({"words", "list", "--tsv"}),
            "file\tword\tparameters\n" + store_ + "\tsound\t[name]\n");
  const auto report = nlohmann::json::parse(OutputOf({"words", "get", "SOUND", "--json"}));
  EXPECT_EQ(report["command"], "words get");
  EXPECT_EQ(report["files"][0]["rows"][0],
            (nlohmann::json{{"word", "sound"}, {"parameters", "[name]"}}));
}

TEST_F(CommandLineWords, KeepsWordsInTheOrderInWhichTheyCame) {
  OutputOf({"words", "set", "sound", "[name]"});
  OutputOf({"words", "set", "action", ""});
  EXPECT_EQ(OutputOf({"words", "list"}), "sound\naction\n");
  EXPECT_EQ(OutputOf({"words", "get", "SOUND"}), "[name]\n");
  EXPECT_EQ(OutputOf({"words", "get", "action"}), "\n");
}

TEST_F(CommandLineWords, ChangesAndRemovesWords) {
  OutputOf({"words", "set", "sound", "[name]"});
  OutputOf({"words", "set", "sound", "[other]"});
  EXPECT_EQ(OutputOf({"words", "export"}), "sound\t[other]\n");
  OutputOf({"words", "remove", "Sound"});
  ExpectEmptyList();
}

TEST_F(CommandLineWords, RefusesWordsThatAreNotListed) {
  ExpectRefusal({"words", "get", "sound"}, "\"sound\" is not in the word list.");
  ExpectRefusal({"words", "remove", "so\nund"}, "\"so?und\" is not in the word list.");
}

TEST_F(CommandLineWords, RefusesWhatTheListCannotTellApart) {
  ExpectRefusal({"words", "set", "", "[x]"}, "A word cannot be empty.");
  ExpectRefusal({"words", "set", "a[", "[x]"},
                "A word cannot hold \"[\": that mark tells parameter texts from words.");
  ExpectRefusal({"words", "set", "a", "x"},
                "Parameters need a \"[\", as in \"[amount]\": that mark tells them from words.");
  const std::string control =
      "A word and its parameters cannot hold tabs, line breaks or other control characters.";
  ExpectRefusal({"words", "set", "a\tb", "[x]"}, control);
  ExpectRefusal({"words", "set", "a", "[x\ny]"}, control);
  ExpectEmptyList();
}

TEST_F(CommandLineWords, ImportsWhatItExports) {
  const std::string list = "sound\t[name]\naction\t\ncaf\xE9\t[\x80] <b>\n";
  Put("words.txt", list);
  OutputOf({"words", "import", "words.txt"});
  EXPECT_EQ(OutputOf({"words", "export"}), list);
  EXPECT_EQ(OutputOf({"words", "list"}), "sound\naction\ncaf\xC3\xA9\n");
  EXPECT_EQ(OutputOf({"words", "get", "caf\xC3\xA9"}), "[\xE2\x82\xAC] <b>\n");
  OutputOf({"words", "export", "-o", "again.txt"});
  EXPECT_EQ(Bytes("again.txt"), list);
  ExpectRefusal({"words", "export", "-o", "words.txt"},
                "Cannot save words.txt: it exists already; --force replaces it.");
}

TEST_F(CommandLineWords, ImportsAllOrNothing) {
  Put("words.txt", "sound\t[name]\nno tab\n");
  ExpectRefusal({"words", "import", "words.txt"},
                "Line 2 of the word list is not a word, a tab and its parameters.");
  ExpectEmptyList();
  ExpectRefusal({"words", "import", "none.txt"},
                "Cannot open none.txt: No such file or directory.");
}

TEST_F(CommandLineWords, UsesTheStoreThatItIsTold) {
  OutputOf({"words", "--store", "other.db", "set", "sound", "[name]"});
  ExpectEmptyList();
  EXPECT_EQ(OutputOf({"words", "list", "--store", "other.db"}), "sound\n");
}

TEST_F(CommandLineWords, RefusesAStoreThatCannotBeUsed) {
  store_ = Put("damaged.db", std::string(5000, 'x'));
  const Outcome outcome = Tessel({"words", "set", "sound", "[name]"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::StartsWith("tessel: Cannot use the settings store " + store_));
  EXPECT_EQ(Bytes("damaged.db"), std::string(5000, 'x'));
}

TEST_F(CommandLineWords, NeedsASubcommand) {
  ExpectUsageError({"words"}, "A subcommand is required", "tessel words");
  ExpectUsageError({"words", "eat"}, "there is no subcommand \"eat\"", "tessel words");
}

TEST_F(CommandLineWords, ExportsNotOverTheStoreItself) {
  OutputOf({"words", "--store", "s.db", "set", "foo", "[a]"});
  std::filesystem::create_symlink("s.db", PathOf("link.db"));
  for (const std::string name : {"s.db", "./s.db", "link.db"}) {
    ExpectRefusal({"words", "--store", "s.db", "export", "-o", name, "--force"},
                  "Cannot save " + name + ": it is the settings store.");
  }
  EXPECT_EQ(OutputOf({"words", "--store", "s.db", "list"}), "foo\n");
}

}  // namespace
}  // namespace tessel::test
