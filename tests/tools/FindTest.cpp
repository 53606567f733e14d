// Find and Find Next, with a person at the dialog.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ControlFixture.h"
#include "tools/Search.h"

namespace tessel {
namespace {

using Box = test::FakeMessageBox::Shown;

Box NotFound(const std::string& text, MessageIcon icon) {
  return {text + " not found.", icon, "Zanth Manager", MessageButtons::kOk};
}

class Find : public test::ControlFixture {
 protected:
  /// Opens the dialog and presses Find on a text, with the boxes put in the given state.
  void FindText(const std::string& text, bool wholeWord = false, bool matchCase = false) {
    services_.forms.scripts.push_back([=](Form& shown) {
      auto& form = static_cast<frmFind&>(shown);
      form.cboFind.Type(text);
      if (form.chkFindWholeWord.Value() != wholeWord) form.chkFindWholeWord.Press();
      if (form.chkMatchCase.Value() != matchCase) form.chkMatchCase.Press();
      form.cmdFind.Press();
    });
    Choose("mnuRtbPopupFind");
  }
  void FindNext() { Choose("mnuRtbPopupFindNext"); }
  void CancelFind() {
    services_.forms.scripts.push_back(
        [](Form& form) { static_cast<frmFind&>(form).cmdCancel.Press(); });
    Choose("mnuRtbPopupFind");
  }
  /// Finds the "cat" at 8 in one document, and the next one in another.
  void FindTheSecondAndGoOnIn(const std::string& other) {
    services_.files.files["/c/a.con"] = "cat dog cat";
    services_.files.files["/c/b.con"] = other;
    control_.OpenFile("/c/a.con");
    FindText("cat");
    FindNext();
    ASSERT_EQ(State().FindPos, 8);
    control_.OpenFile("/c/b.con");
    FindNext();
  }
  const SearchState& State() { return control_.LastSearch(); }
  const std::vector<Box>& Boxes() { return services_.messages.shown; }
};

TEST_F(Find, SearchesFromTheTopWhereverTheCaretStands) {
  Given("cat dog cat [dog] cat");
  FindText("cat");
  EXPECT_EQ(Shown(), "[cat] dog cat dog cat");
  EXPECT_EQ(State().FindPos, 0);
  EXPECT_EQ(State().FindText, "cat");
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(Find, OpensByPopupToolbarAndKey) {
  Press("Find");
  Choose("mnuRtbPopupFind");
  EXPECT_TRUE(control_.KeyDown(70, 2));
  EXPECT_EQ(services_.forms.shown, (std::vector<std::string>{"frmFind", "frmFind", "frmFind"}));
}

TEST_F(Find, DoesNotOpenWithShiftOrAltHeldToo) {
  for (const int shift : {0, 1, 3, 4, 6, 7}) EXPECT_FALSE(control_.KeyDown(70, shift)) << shift;
  EXPECT_TRUE(services_.forms.shown.empty());
}

TEST_F(Find, ReportsAMissWithTheInformationIcon) {
  Given("a [b] c");
  FindText("zebra");
  EXPECT_EQ(Boxes(), (std::vector{NotFound("zebra", MessageIcon::kInformation)}));
  EXPECT_EQ(Shown(), "a [b] c");
  EXPECT_EQ(State().FindPos, -1);
}

TEST_F(Find, WithAnEmptyTextDoesNothing) {
  Given("a [b] c");
  FindText("");
  EXPECT_EQ(Shown(), "a [b] c");
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(Find, CancelledForgetsTheTextAndNeitherSearchesNorComplains) {
  Given("cat [dog] cat");
  FindText("cat");
  Editor().SelectByHand(4, 3);
  CancelFind();
  EXPECT_EQ(State().FindText, "");
  EXPECT_EQ(Shown(), "cat [dog] cat");
  EXPECT_TRUE(Boxes().empty());
  FindNext();  // the last match stands, but there is no text any more
  EXPECT_EQ(Shown(), "cat [dog] cat");
  EXPECT_TRUE(Boxes().empty());
}

struct OptionsRow {
  bool wholeWord, matchCase;
  int options;
};
constexpr OptionsRow kOptions[] = {
    {true, true, 0}, {true, false, 2}, {false, true, 4}, {false, false, 0}};

TEST_F(Find, MakesTheOptionsOfTheTwoBoxes) {
  for (const OptionsRow& row : kOptions) {
    SearchState state;
    state.FindWholeWord = row.wholeWord;
    state.FindMatchCase = row.matchCase;
    EXPECT_EQ(SearchOptions(state), row.options);
  }
}

struct BoxesRow {
  bool wholeWord, matchCase;
  const char* first;
  const char* second;
};
constexpr BoxesRow kBoxes[] = {
    {false, false, "[CAT]s cats CAT cat", "CATs [cat]s CAT cat"},
    {true, false, "CATs cats [CAT] cat", "CATs cats CAT [cat]"},
    {false, true, "CATs [cat]s CAT cat", "CATs cats CAT [cat]"},
    {true, true, "[CAT]s cats CAT cat", "CATs [cat]s CAT cat"},
};

TEST_F(Find, BothBoxesTogetherSearchAsNeitherDoes) {
  for (const BoxesRow& row : kBoxes) {
    Given("CATs cats CAT cat[]");
    FindText("cat", row.wholeWord, row.matchCase);
    EXPECT_EQ(Shown(), row.first);
    EXPECT_EQ(State().FindWholeWord, row.wholeWord);
    EXPECT_EQ(State().FindMatchCase, row.matchCase);
    FindNext();
    EXPECT_EQ(Shown(), row.second);
  }
}

TEST_F(Find, NextGoesOnBehindTheLastMatchAndNotBehindTheCaret) {
  Given("cat dog cat dog cat[]");
  FindText("cat");
  Editor().SelectByHand(14, 0);
  FindNext();
  EXPECT_EQ(Shown(), "cat dog [cat] dog cat");
  EXPECT_EQ(State().FindPos, 8);
}

TEST_F(Find, NextMayOverlapTheLastMatch) {
  Given("aaa[]");
  FindText("aa");
  FindNext();
  EXPECT_EQ(Shown(), "a[aa]");
}

TEST_F(Find, NextDoesNotWrapAroundAndSaysSoWithoutAnIcon) {
  Given("cat dog[]");
  FindText("cat");
  FindNext();
  EXPECT_EQ(Boxes(), (std::vector{NotFound("cat", MessageIcon::kNone)}));
  EXPECT_EQ(Shown(), "[cat] dog");
  EXPECT_EQ(State().FindPos, -1);
  FindText("cat");
  EXPECT_EQ(State().FindPos, 0);
}

TEST_F(Find, NextAfterAMissOnlyRepeatsTheMessage) {
  Given("dog[]");
  FindText("cat");
  Editor().SetText("cat");
  FindNext();
  FindNext();
  EXPECT_EQ(Boxes(), (std::vector{NotFound("cat", MessageIcon::kInformation),
                                  NotFound("cat", MessageIcon::kNone),
                                  NotFound("cat", MessageIcon::kNone)}));
  EXPECT_EQ(Shown(), "[]cat");
}

TEST_F(Find, NextBeforeAnySearchFindsNothing) {
  Given("cat[]");
  control_.KeyDown(114, 0);
  EXPECT_EQ(Boxes(), (std::vector{NotFound("", MessageIcon::kNone)}));
}

TEST_F(Find, NextBehindAMatchOfTheLastCharacterDoesNothing) {
  Given("cat x[]");
  FindText("x");
  FindNext();
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(Shown(), "cat [x]");
  EXPECT_EQ(State().FindPos, 4);
}

TEST_F(Find, NextBehindALongerMatchAtTheEndSearchesOnceMore) {
  Given("a cat[]");
  FindText("cat");
  FindNext();
  EXPECT_EQ(Boxes(), (std::vector{NotFound("cat", MessageIcon::kNone)}));
}

TEST_F(Find, NextRunsOnF3WithAnyModifier) {
  for (const int shift : {0, 1, 2, 4, 7}) {
    Given("cat cat[]");
    FindText("cat");
    control_.KeyDown(114, shift);
    EXPECT_EQ(Shown(), "cat [cat]") << shift;
  }
}

TEST_F(Find, KeepsTheLastPositionWhenTheDocumentChanges) {
  FindTheSecondAndGoOnIn("cat 456789cat");
  EXPECT_EQ(State().FindPos, 10);
  EXPECT_EQ(Shown(), "cat 456789[cat]");
}

TEST_F(Find, FindsNothingBehindTheLastPositionInAnotherDocument) {
  FindTheSecondAndGoOnIn("cat cat cat");
  EXPECT_EQ(State().FindPos, -1);
  EXPECT_EQ(Boxes(), (std::vector{NotFound("cat", MessageIcon::kNone)}));
}

TEST_F(Find, TakesTheTextByteForByte) {
  Given("x \xC4/* [y] */");
  FindText("\xE4/*");
  EXPECT_EQ(Shown(), "x [\xC4/*] y */");
}

}  // namespace
}  // namespace tessel
