// What the find dialog shows and keeps.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/ControlFixture.h"
#include "tools/frmFind.h"

namespace tessel {
namespace {

using testing::ElementsAre;

class FindDialog : public test::ControlFixture {
 protected:
  void Open(const std::function<void(frmFind&)>& person) {
    services_.forms.scripts.push_back([=](Form& form) { person(static_cast<frmFind&>(form)); });
    Press("Find");
  }
  void FindText(const std::string& text) {
    Open([&](frmFind& form) {
      form.cboFind.Type(text);
      form.cmdFind.Press();
    });
  }
  std::vector<std::string> History() {
    std::vector<std::string> history;
    Open([&](frmFind& form) {
      history = form.cboFind.List();
      form.cmdCancel.Press();
    });
    return history;
  }
};

TEST_F(FindDialog, CarriesItsTexts) {
  const frmFind form;
  EXPECT_EQ(form.lblFind.Caption(), "Find What:");
  EXPECT_EQ(form.chkMatchCase.Caption(), "Match Ca&se");
  EXPECT_EQ(form.chkFindWholeWord.Caption(), "Find Whole Word &Only");
}

TEST_F(FindDialog, ShowsTheSelectedText) {
  Given("a [b c] d");
  Open([](frmFind& form) { EXPECT_EQ(form.cboFind.Text(), "b c"); });
}

TEST_F(FindDialog, ShowsTheSelectedTextAlsoWhenThereIsNone) {
  Given("a [b] c");
  FindText("a");
  Given("a b c[]");
  Open([](frmFind& form) { EXPECT_EQ(form.cboFind.Text(), ""); });
}

TEST_F(FindDialog, IsClosedByEitherButton) {
  Open([](frmFind& form) {
    ASSERT_TRUE(form.Visible());
    form.cmdCancel.Press();
    EXPECT_FALSE(form.Visible());
  });
  Open([](frmFind& form) {
    form.cmdFind.Press();
    EXPECT_FALSE(form.Visible());
  });
}

TEST_F(FindDialog, OffersTheNewestTextFirst) {
  FindText("one");
  FindText("two");
  EXPECT_THAT(History(), ElementsAre("two", "one"));
}

TEST_F(FindDialog, KeepsFiveTextsAndPushesTheOldestOut) {
  for (const char* text : {"1", "2", "3", "4", "5"}) FindText(text);
  EXPECT_THAT(History(), ElementsAre("5", "4", "3", "2", "1"));
  FindText("6");
  EXPECT_THAT(History(), ElementsAre("6", "5", "4", "3", "2"));
}

TEST_F(FindDialog, LeavesARepeatedTextWhereItStands) {
  for (const char* text : {"1", "2", "3", "4", "5", "2"}) FindText(text);
  EXPECT_THAT(History(), ElementsAre("5", "4", "3", "2", "1"));
}

TEST_F(FindDialog, TellsTextsApartByCase) {
  FindText("cat");
  FindText("CAT");
  EXPECT_THAT(History(), ElementsAre("CAT", "cat"));
}

TEST_F(FindDialog, RemembersATextThatIsNotFound) {
  Given("a[]");
  FindText("zebra");
  EXPECT_THAT(History(), ElementsAre("zebra"));
}

TEST_F(FindDialog, AddsNeitherAnEmptyTextNorACancelledOne) {
  FindText("");
  Open([](frmFind& form) {
    form.cboFind.Type("x");
    form.cmdCancel.Press();
  });
  EXPECT_THAT(History(), ElementsAre());
}

TEST_F(FindDialog, SearchesAPickedTextOfTheHistory) {
  Given("one two[]");
  FindText("one");
  FindText("two");
  Open([](frmFind& form) {
    form.cboFind.Pick(1);
    form.cmdFind.Press();
  });
  EXPECT_EQ(Shown(), "[one] two");
  EXPECT_THAT(History(), ElementsAre("two", "one"));
}

TEST_F(FindDialog, KeepsTheBoxesFromOneShowingToTheNext) {
  Open([](frmFind& form) {
    EXPECT_FALSE(form.chkMatchCase.Value());
    EXPECT_FALSE(form.chkFindWholeWord.Value());
    form.chkMatchCase.Press();
    form.cboFind.Type("x");
    form.cmdFind.Press();
  });
  Open([](frmFind& form) {
    EXPECT_TRUE(form.chkMatchCase.Value());
    EXPECT_FALSE(form.chkFindWholeWord.Value());
  });
}

TEST_F(FindDialog, IsLoadedOnceSoThatABoxKeepsWhatACancelledShowingMadeOfIt) {
  Open([](frmFind& form) {
    form.chkFindWholeWord.Press();
    form.cmdCancel.Press();
  });
  Open([](frmFind& form) { EXPECT_TRUE(form.chkFindWholeWord.Value()); });
}

TEST_F(FindDialog, WritesNothingToTheStore) {
  FindText("one");
  for (const char* section : {"Paths", "PreviousCons", "ConWords"}) {
    EXPECT_TRUE(services_.settings.GetAllSettings(section).empty()) << section;
  }
}

}  // namespace
}  // namespace tessel
