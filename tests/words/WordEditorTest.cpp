// The word list editor, with a person at it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/ControlFixture.h"
#include "words/frmAddParam.h"

namespace tessel {
namespace {

using testing::ElementsAre;
using Box = test::FakeMessageBox::Shown;
using Entry = SettingsStore::Entry;

class WordEditor : public test::ControlFixture {
 protected:
  WordEditor() {
    Store("cactor", "[new actor]");
    Store("move", "[moveflags]");
    start_ = Stored();
    control_.Initialize();
  }
  void Store(const std::string& word, const std::string& parameters) {
    services_.settings.SaveSetting("ConWords", "NAME" + word, word);
    services_.settings.SaveSetting("ConWords", "PARAMS" + word, parameters);
  }
  /// Opens the editor with a search text and lets a person act in it.
  void Open(const std::string& searched, const std::function<void(frmAddParam&)>& person) {
    services_.forms.scripts.push_back([=](Form& form) { person(static_cast<frmAddParam&>(form)); });
    Controls().txtSearch.Type(searched);
    Controls().cmdAddword.Press();
  }
  void Save(frmAddParam& form, const std::string& word, const std::string& parameters) {
    form.txtParam.Type(word);
    form.txtParams.Type(parameters);
    form.cmdSave.Press();
  }
  void Answer(MessageAnswer answer) { services_.messages.answers.push_back(answer); }
  std::vector<Entry> Stored() { return services_.settings.GetAllSettings("ConWords"); }
  const std::vector<Box>& Boxes() { return services_.messages.shown; }

  std::vector<Entry> start_;
};

TEST_F(WordEditor, OpensWithTheSearchTextAndTheFocusInTheParameters) {
  auto* shown = dynamic_cast<frmAddParam*>(control_.Forms().at(1));
  ASSERT_NE(shown, nullptr);
  int selections = 0;
  const auto counting = shown->txtParams.SelectAllRequested.Connect([&] { ++selections; });
  Open("mo", [this](frmAddParam& form) {
    EXPECT_EQ(form.Caption(), "Edit or add words/parameters");
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move"));
    EXPECT_EQ(form.lstWords.ListIndex(), kNoSelection);
    EXPECT_EQ(form.txtParam.Text(), "mo");
    EXPECT_EQ(form.txtParams.Text(), "");
    ASSERT_FALSE(services_.focus.moves.empty());
    EXPECT_EQ(services_.focus.moves.back().first, "txtParams");
  });
  EXPECT_EQ(selections, 1);
}

TEST_F(WordEditor, ShowsAClickedWord) {
  Open("x", [](frmAddParam& form) {
    form.lstWords.Pick(1);
    EXPECT_EQ(form.txtParam.Text(), "move");
    EXPECT_EQ(form.txtParams.Text(), "[moveflags]");
  });
}

TEST_F(WordEditor, EmptiesTheFieldsForANewWord) {
  Open("x", [this](frmAddParam& form) {
    form.lstWords.Pick(1);
    form.cmdNew.Press();
    EXPECT_EQ(form.txtParam.Text(), "");
    EXPECT_EQ(form.txtParams.Text(), "");
    EXPECT_EQ(form.lstWords.ListIndex(), kNoSelection);
    EXPECT_EQ(services_.focus.moves.back().first, "txtParam");
  });
}

TEST_F(WordEditor, SavesNoEmptyWord) {
  Open("x", [this](frmAddParam& form) { Save(form, "", "[x]"); });
  EXPECT_EQ(Stored(), start_);
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(WordEditor, SavesANewWordUnderBothKeysAndListsIt) {
  Open("sp", [this](frmAddParam& form) {
    Save(form, "Spawn", "[actor]");
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move", "Spawn"));
    EXPECT_EQ(form.txtParam.Text(), "");
    EXPECT_EQ(form.txtParams.Text(), "");
    EXPECT_TRUE(form.Visible());
    form.lstWords.Pick(2);
    EXPECT_EQ(form.txtParams.Text(), "[actor]");
  });
  EXPECT_TRUE(Boxes().empty());
  auto expected = start_;
  expected.emplace_back("NAMESpawn", "Spawn");
  expected.emplace_back("PARAMSSpawn", "[actor]");
  EXPECT_EQ(Stored(), expected);
}

TEST_F(WordEditor, AsksBeforeItOverwritesAWordOfAnyCase) {
  Open("x", [this](frmAddParam& form) {
    Save(form, "MOVE", "[typed]");
    EXPECT_EQ(form.lstWords.ListIndex(), 1);
    EXPECT_EQ(form.txtParam.Text(), "MOVE");
    EXPECT_EQ(form.txtParams.Text(), "[typed]");
  });
  EXPECT_EQ(Boxes(), (std::vector<Box>{{"MOVE already exists in the list. Overwrite?",
                                        MessageIcon::kExclamation, "Zanth Manager",
                                        MessageButtons::kYesNo}}));
  EXPECT_EQ(Stored(), start_);  // answered with No
}

TEST_F(WordEditor, OverwritesWithTheParametersAsTyped) {
  Answer(MessageAnswer::kYes);
  Open("x", [this](frmAddParam& form) {
    Save(form, "move", "[typed]");
    EXPECT_EQ(form.txtParam.Text(), "");
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move"));
  });
  auto expected = start_;
  expected[3].second = "[typed]";
  EXPECT_EQ(Stored(), expected);
}

TEST_F(WordEditor, WritesTheWordInTheCaseTypedUnderTheKeyThatStands) {
  Answer(MessageAnswer::kYes);
  Open("x", [this](frmAddParam& form) { Save(form, "MOVE", "[typed]"); });
  auto expected = start_;
  expected[2].second = "MOVE";
  expected[3].second = "[typed]";
  EXPECT_EQ(Stored(), expected);
}

TEST_F(WordEditor, DeletesNothingWithoutASelectedWord) {
  Open("move", [](frmAddParam& form) { form.cmdDelete.Press(); });
  EXPECT_EQ(Boxes(),
            (std::vector<Box>{{"Please select a function from the list.", MessageIcon::kExclamation,
                               "Zanth Manager", MessageButtons::kOk}}));
  EXPECT_EQ(Stored(), start_);
}

TEST_F(WordEditor, DeletesBothKeysAfterAsking) {
  Answer(MessageAnswer::kYes);
  Open("x", [](frmAddParam& form) {
    form.lstWords.Pick(0);
    form.cmdDelete.Press();
    EXPECT_THAT(form.lstWords.List(), ElementsAre("move"));
    EXPECT_EQ(form.lstWords.ListIndex(), kNoSelection);
    EXPECT_EQ(form.txtParam.Text(), "");
    EXPECT_EQ(form.txtParams.Text(), "");
    form.lstWords.Pick(0);  // the parameters moved up with their word
    EXPECT_EQ(form.txtParams.Text(), "[moveflags]");
  });
  EXPECT_EQ(Boxes(), (std::vector<Box>{{"Delete cactor from the list?", MessageIcon::kQuestion,
                                        "Zanth Manager", MessageButtons::kYesNo}}));
  EXPECT_EQ(Stored(), (std::vector<Entry>{{"NAMEmove", "move"}, {"PARAMSmove", "[moveflags]"}}));
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("move"));
}

TEST_F(WordEditor, DeletesTheListedWordWhateverWasTypedMeanwhile) {
  Answer(MessageAnswer::kYes);
  Open("x", [](frmAddParam& form) {
    form.lstWords.Pick(1);
    form.txtParam.Type("cactor");
    form.cmdDelete.Press();
  });
  EXPECT_EQ(Boxes().at(0).text, "Delete move from the list?");
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("cactor"));
}

// A list that was read again would have neither.
TEST_F(WordEditor, TakesADeletedWordAloneFromItsList) {
  Store("odd", "no bracket");
  control_.Initialize();
  Answer(MessageAnswer::kYes);
  Open("x", [](frmAddParam& form) {
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move", "odd", "no bracket"));
    form.lstWords.Pick(2);
    form.cmdDelete.Press();
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move", "no bracket"));
  });
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("cactor", "move"));
}

TEST_F(WordEditor, KeepsAWordThatIsNotToBeDeletedAfterAll) {
  Open("x", [](frmAddParam& form) {
    form.lstWords.Pick(1);
    form.cmdDelete.Press();
    EXPECT_EQ(form.txtParam.Text(), "move");
    EXPECT_EQ(form.lstWords.ListIndex(), 1);
  });
  EXPECT_EQ(Stored(), start_);
}

TEST_F(WordEditor, LeavesANewWordInThePanelWhenItIsClosed) {
  Open("sp", [this](frmAddParam& form) {
    Save(form, "spawn", "[actor]");
    form.cmdExit.Press();
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_THAT(Controls().lstWords.List(), ElementsAre("cactor", "move", "spawn"));
  EXPECT_EQ(Controls().txtSearch.Text(), "sp");
  EXPECT_EQ(Controls().lstWords.ListIndex(), 2);
  EXPECT_EQ(Controls().lblParams.Caption(), "[actor]");
}

TEST_F(WordEditor, IsLoadedAfreshEachTime) {
  Open("one", [](frmAddParam& form) {
    form.lstWords.Pick(1);
    form.cmdExit.Press();
  });
  Open("two", [](frmAddParam& form) {
    EXPECT_EQ(form.txtParam.Text(), "two");
    EXPECT_EQ(form.txtParams.Text(), "");
    EXPECT_EQ(form.lstWords.ListIndex(), kNoSelection);
  });
}

}  // namespace
}  // namespace tessel
