// The "Functions" page, with a person at it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "base/RuntimeError.h"
#include "services/MemorySettingsStore.h"
#include "support/ControlFixture.h"
#include "words/ScriptWords.h"

namespace tessel {
namespace {

using testing::ElementsAre;

class WordPanel : public test::ControlFixture {
 protected:
  void SetUp() override {
    Store("cactor", "[new actor]");
    Store("move", "[moveflags]");
    Store("movie", "[number]");
    control_.Initialize();
  }
  void Store(const std::string& word, const std::string& parameters) {
    services_.settings.SaveSetting("ConWords", "NAME" + word, word);
    services_.settings.SaveSetting("ConWords", "PARAMS" + word, parameters);
  }
  void Search(const std::string& text) { Controls().txtSearch.Type(text); }
  std::string Params() { return Controls().lblParams.Caption(); }
  int Selected() { return Controls().lstWords.ListIndex(); }
  bool CanAdd() { return Controls().cmdAddword.Enabled(); }
};

TEST_F(WordPanel, ListsTheWordsInTheOrderOfTheStore) {
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("cactor", "move", "movie"));
}

TEST_F(WordPanel, StartsWithNothingSearchedAndNothingToAdd) {
  EXPECT_EQ(Selected(), kNoSelection);
  EXPECT_FALSE(CanAdd());
}

TEST_F(WordPanel, TakesEveryValueWithoutABracketForAWord) {
  services_.settings.SaveSetting("ConWords", "PARAMSmove", "no bracket here");
  services_.settings.SaveSetting("ConWords", "NAMEodd", "odd[word");
  services_.settings.SaveSetting("ConWords", "anything", "x");
  services_.settings.SaveSetting("ConWords", "NAMEempty", "");
  control_.Initialize();
  EXPECT_THAT(Controls().lstWords.List(),
              ElementsAre("cactor", "move", "no bracket here", "movie", "x"));
  Controls().lstWords.Pick(2);  // has no parameter text of its own
  EXPECT_EQ(Params(), "");
  Controls().lstWords.Pick(1);
  EXPECT_EQ(Params(), "no bracket here");
}

TEST_F(WordPanel, ShowsTheParametersOfTheWordThatTheSearchSelects) {
  Search("MOV");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Params(), "[moveflags]");
  EXPECT_EQ(Controls().txtSearch.Text(), "MOV");
  EXPECT_TRUE(CanAdd());
  Search("MOVI");
  EXPECT_EQ(Selected(), 2);
  EXPECT_EQ(Params(), "[number]");
  Search("MOVIX");
  EXPECT_EQ(Selected(), 2);
  Search("m");
  EXPECT_EQ(Selected(), 1);
}

TEST_F(WordPanel, LeavesSelectionAndParametersWhenTheSearchTextIsEmptied) {
  Search("movie");
  Search("");
  EXPECT_EQ(Selected(), 2);
  EXPECT_EQ(Params(), "[number]");
  EXPECT_FALSE(CanAdd());
}

TEST_F(WordPanel, TakesAClickedWordOverIntoTheSearch) {
  Controls().lstWords.Pick(2);
  EXPECT_EQ(Controls().txtSearch.Text(), "movie");
  EXPECT_EQ(Params(), "[number]");
  EXPECT_TRUE(CanAdd());
  EXPECT_EQ(Selected(), 2);
}

TEST_F(WordPanel, DoesNotSearchWhatAClickWrote) {
  Search("mx");  // no word goes on: longer texts are not searched now
  Controls().lstWords.Pick(0);
  Search("cac");  // longer than "mx", which is still the last text that was searched
  EXPECT_EQ(Selected(), 1);
}

TEST_F(WordPanel, IgnoresAClickOnNoWord) {
  Search("mov");
  Controls().lstWords.SetListIndex(kNoSelection);
  EXPECT_EQ(Controls().txtSearch.Text(), "mov");
}

TEST_F(WordPanel, InsertsTheSelectedWordOverTheSelection) {
  Given("a [b] c");
  Controls().lstWords.Pick(1);
  Controls().cmdInsert[2].Press();
  EXPECT_EQ(Shown(), "a move[] c");
}

TEST_F(WordPanel, InsertsAtTheCaretOnADoubleClick) {
  Given("a [] c");
  Controls().lstWords.PickTwice(2);
  EXPECT_EQ(Shown(), "a movie[] c");
}

TEST_F(WordPanel, InsertsTheListedWordAndNotTheTypedBeginning) {
  Given("[]");
  Search("CAC");
  Controls().cmdInsert[2].Press();
  EXPECT_EQ(Shown(), "cactor[]");
}

TEST_F(WordPanel, InsertsNothingWithoutASelectedWord) {
  Given("a [b] c");
  Controls().cmdInsert[2].Press();
  EXPECT_EQ(Shown(), "a [b] c");
}

TEST_F(WordPanel, SearchesAgainWhenTheListIsReadAgain) {
  Search("movi");
  Store("aaa", "[]");
  services_.settings.DeleteSetting("ConWords", "NAMEcactor");
  services_.settings.DeleteSetting("ConWords", "PARAMScactor");
  Controls().cmdAddword.Press();
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("move", "movie", "aaa"));
  EXPECT_EQ(Controls().txtSearch.Text(), "movi");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Params(), "[number]");
}

// Without an empty text in between, the search would go on from its last hit.
TEST_F(WordPanel, StartsTheSearchAnewWhenTheListIsReadAgain) {
  Store("bb", "[second]");
  control_.Initialize();
  Search("bb");
  ASSERT_EQ(Selected(), 3);
  services_.settings.DeleteSetting("ConWords", "NAMEbb");
  services_.settings.DeleteSetting("ConWords", "PARAMSbb");
  Store("cc", "[last]");
  Controls().cmdAddword.Press();
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("cactor", "move", "movie", "cc"));
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(Params(), "[new actor]");
}

TEST_F(WordPanel, StopsAtAnEmptySectionBeforeSearchingAgain) {
  Search("move");
  for (const auto& [key, value] : services_.settings.GetAllSettings("ConWords")) {
    services_.settings.DeleteSetting("ConWords", key);
  }
  int changes = 0;
  const auto counting = Controls().txtSearch.Change.Connect([&] { ++changes; });
  Controls().cmdAddword.Press();
  EXPECT_TRUE(Controls().lstWords.List().empty());
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(Params(), "[moveflags]");
}

TEST_F(WordPanel, SearchesAgainInASectionThatHoldsNoWord) {
  Search("move");
  for (const char* word : {"cactor", "move", "movie"}) {
    services_.settings.DeleteSetting("ConWords", std::string("NAME") + word);
  }
  Controls().cmdAddword.Press();
  EXPECT_TRUE(Controls().lstWords.List().empty());
  EXPECT_EQ(Params(), "");
  EXPECT_TRUE(CanAdd());
}

TEST_F(WordPanel, SearchesAnEmptyListWithoutComplaint) {
  for (const auto& [key, value] : services_.settings.GetAllSettings("ConWords")) {
    services_.settings.DeleteSetting("ConWords", key);
  }
  control_.Initialize();
  Search("move");
  EXPECT_EQ(Selected(), kNoSelection);
  EXPECT_EQ(Params(), "");
  EXPECT_TRUE(CanAdd());
}

/// A store that can be read until it is damaged.
class VanishingStore : public MemorySettingsStore {
 public:
  std::vector<Entry> GetAllSettings(const std::string& section) override {
    if (gone) throw RuntimeError("Cannot read it.");
    return MemorySettingsStore::GetAllSettings(section);
  }
  bool gone = false;
};

TEST(WordPanelOnADamagedStore, SearchesAgainInAnEmptyList) {
  test::FakeServices fakes;
  VanishingStore settings;
  settings.SaveSetting("ConWords", "NAMEmove", "move");
  settings.SaveSetting("ConWords", "PARAMSmove", "[moveflags]");
  const Services s = fakes.Get();
  ucTessel control({s.messages, s.fileDialogs, s.forms, s.clipboard, settings, s.pointer, s.files,
                    s.random, s.focus, s.loop, s.hostDirectory});
  control.Initialize();
  control.Controls().txtSearch.Type("move");
  ASSERT_EQ(control.Controls().lblParams.Caption(), "[moveflags]");
  fakes.forms.scripts.push_back([&](Form&) { settings.gone = true; });
  control.Controls().cmdAddword.Press();
  EXPECT_TRUE(control.Controls().lstWords.List().empty());
  EXPECT_EQ(control.Controls().lblParams.Caption(), "");
}

/// A store in which one entry cannot be read.
class DamagedStore : public MemorySettingsStore {
 public:
  std::optional<std::string> GetSetting(const std::string& section,
                                        const std::string& key) override {
    if (key == "PARAMSone") throw RuntimeError("Cannot read it.");
    return MemorySettingsStore::GetSetting(section, key);
  }
};

TEST(ScriptWords, GoOnBehindParametersThatCannotBeRead) {
  DamagedStore store;
  WriteScriptWord(store, {"one", "[1]"});
  WriteScriptWord(store, {"two", "[2]"});
  const auto words = ReadScriptWords(store);
  ASSERT_EQ(words.size(), 2U);
  EXPECT_EQ(words[0].parameters, "");
  EXPECT_EQ(words[1].parameters, "[2]");
}

}  // namespace
}  // namespace tessel
