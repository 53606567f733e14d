// A mirror's states, and what happens in each of them on either side.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "base/RuntimeError.h"
#include "qt/ScintillaMirrorFixture.h"
#include "qt/editor/ScintillaMirror.h"

namespace tessel {
namespace {

using enum MirrorState;
using Range = std::pair<Position, Position>;

constexpr Colour kDarkRed = 0x0000C8;

constexpr MirrorState kAllStates[] = {kInStep, kAhead, kStale, kShowing, kTakingOver, kOvertaken};

/// A legal way to each state from the first one.
MirrorStateMachine MachineIn(MirrorState state) {
  const std::vector<MirrorState> ways[] = {
      {kShowing, kInStep}, {kShowing, kInStep, kAhead},      {},
      {kShowing},          {kShowing, kInStep, kTakingOver}, {kShowing, kOvertaken},
  };
  MirrorStateMachine machine;
  for (const MirrorState next : ways[static_cast<int>(state)]) machine.ChangeTo(next);
  return machine;
}

bool ShouldBeLegal(MirrorState from, MirrorState to) {
  constexpr std::string_view kMarks[] = {
      // in step, ahead, stale, showing, taking over, overtaken
      "-xxxx-",  // in step
      "--x-x-",  // ahead
      "---x--",  // stale
      "x----x",  // showing
      "xx---x",  // taking over
      "--x---",  // overtaken
  };
  return kMarks[static_cast<int>(from)][static_cast<std::size_t>(to)] == 'x';
}

TEST(MirrorStateMachine, GoesEveryLegalWayAndReportsEveryOther) {
  for (const MirrorState from : kAllStates) {
    for (const MirrorState to : kAllStates) {
      MirrorStateMachine machine = MachineIn(from);
      ASSERT_TRUE(machine.Is(from));
      if (ShouldBeLegal(from, to)) {
        machine.ChangeTo(to);
        EXPECT_EQ(machine.Now(), to);
      } else {
        EXPECT_NONFATAL_FAILURE(machine.ChangeTo(to), "cannot go from");
        EXPECT_EQ(machine.Now(), kStale);
      }
    }
  }
}

struct ScintillaMirrorTest : testing::Test, MirroredModel {
  /// Runs `meddle` once, in the middle of the model's next change.
  void AtNextChange(std::function<void()> meddle) {
    subscriptions.push_back(model.Change.Connect([this, meddle = std::move(meddle)] {
      if (std::exchange(meddled, true)) return;
      meddle();
    }));
  }
  void ExpectEqualSides() {
    EXPECT_EQ(State(), kInStep);
    EXPECT_EQ(ShownText(), model.Text());
    EXPECT_EQ(ShownSelection(), Selection());
    Draw();
    EXPECT_EQ(ShownColours(), Colours());
  }

  bool meddled = false;
};

using MirrorInStep = ScintillaMirrorTest;

TEST_F(MirrorInStep, ShowsAnEditOfTheModelAtOnce) {
  model.SetText("one \x80 two");
  EXPECT_EQ(document.utf8, "one \xE2\x82\xAC two");
  model.SelectByHand(4, 1);
  model.SetSelText("\xE4\xE4");
  EXPECT_EQ(document.utf8, "one \xC3\xA4\xC3\xA4 two");
  ExpectEqualSides();
}

TEST_F(MirrorInStep, ShowsTheModelsSelection) {
  model.SetText("\x80\x80 two");
  model.SelectByHand(1, 3);
  EXPECT_EQ(document.selection, (SciRange{3, 8}));
  EXPECT_EQ(State(), kInStep);
}

TEST_F(MirrorInStep, IsAheadOnceTheDocumentAnnouncesAnEdit) {
  model.SetText("ab");
  Edit(1, 0, "x");
  EXPECT_EQ(State(), kAhead);
  EXPECT_EQ(takeOversWanted, 1);
  EXPECT_EQ(model.Text(), "ab");
  TakeOverIfWanted();
  EXPECT_EQ(model.Text(), "axb");
  ExpectEqualSides();
}

TEST_F(MirrorInStep, AsksToTakeAMovedSelectionOver) {
  model.SetText("one two");
  Mark(0, 0);
  EXPECT_EQ(takeOversWanted, 0);
  Mark(4, 3);
  EXPECT_EQ(takeOversWanted, 1);
  EXPECT_EQ(Selection(), Range(0, 0));
  TakeOverIfWanted();
  EXPECT_EQ(Selection(), Range(4, 3));
  EXPECT_EQ(State(), kInStep);
}

TEST_F(MirrorInStep, GivesColoursWhereTheDocumentDrawsAndNoFurther) {
  model.SetText("one two");
  model.SelectByHand(0, 7);
  model.SetSelColor(kDarkRed);
  EXPECT_EQ(document.styledEnd, 0);
  mirror.ColoursNeeded(3);
  EXPECT_EQ(document.styledEnd, 3);
  EXPECT_EQ(ShownColours(), (std::vector<ColourRun>{{0, 3, kDarkRed}, {3, 4, kBlack}}));
  EXPECT_EQ(State(), kInStep);
}

// Scintilla forgets the style of the last byte when what is behind it goes.
TEST_F(MirrorInStep, ColoursAWholeCharacterWhereTheDocumentForgotAPartOfIt) {
  model.SetText("one \x80");
  model.SelectByHand(0, 5);
  model.SetSelColor(kDarkRed);
  Draw();
  for (const SciPosition styled : {5, 6}) {
    document.styledEnd = styled;
    Draw();
    EXPECT_EQ(document.styles, std::string(7, document.styles[0])) << styled;
    ExpectEqualSides();
  }
}

TEST_F(MirrorInStep, LetsTheDocumentAskAgainFromWhereTheModelPainted) {
  model.SetText("one two");
  Draw();
  model.SelectByHand(4, 3);
  model.SetSelColor(kDarkRed);
  EXPECT_EQ(document.styledEnd, 4);
  ExpectEqualSides();
}

TEST_F(MirrorInStep, ColoursAPageForAnotherViewAndNoFurther) {
  model.SetText(std::string(200'000, 'x'));
  model.Store().Paint(0, 200'000, kDarkRed);
  document.page = {0, 100};
  mirror.ColoursNeeded(100);
  mirror.ColourApart({150'000, 150'100});
  EXPECT_EQ(document.styledEnd, 100) << "its own view goes on from there";
  EXPECT_EQ(ShownColours(), (std::vector<ColourRun>{{0, 100, kDarkRed},
                                                    {100, 149'900, kBlack},
                                                    {150'000, 100, kDarkRed},
                                                    {150'100, 49'900, kBlack}}));
}

TEST_F(MirrorInStep, LeavesWhatIsFarBehindItsPageToTheOtherView) {
  model.SetText(std::string(200'000, 'x'));
  document.page = {0, 100};
  mirror.ShareDocument(true);
  mirror.ColoursNeeded(150'000);
  EXPECT_EQ(document.styledEnd, 0);
  mirror.ColoursNeeded(100);
  EXPECT_EQ(document.styledEnd, 100);
  mirror.ShareDocument(false);
  mirror.ColoursNeeded(150'000);
  EXPECT_EQ(document.styledEnd, 150'000);
}

TEST_F(MirrorInStep, TellsFromWhereColoursAreOthers) {
  model.SetText("abcdef");
  std::vector<Position> told;
  const Subscription recoloured =
      mirror.Recoloured.Connect([&](Position from) { told.push_back(from); });
  model.Store().Paint(3, 2, kDarkRed);
  EXPECT_EQ(told, std::vector<Position>{3});
}

TEST_F(MirrorInStep, IsStaleWhenAParkedModelIsEditedAndLeavesTheDocumentAlone) {
  model.SetText("one");
  Park();
  model.SetSelText("\x80");
  model.SetSelText("two ");
  EXPECT_EQ(State(), kStale);
  EXPECT_EQ(ShownText(), "one");
  const int before = document.replacements;
  Unpark();
  EXPECT_EQ(document.replacements, before + 1);
  ExpectEqualSides();
}

TEST_F(MirrorInStep, OnlyNotesColoursAndSelectionOfAParkedModel) {
  model.SetText("one two");
  Draw();
  Park();
  model.SelectByHand(0, 3);
  model.SetSelColor(kDarkRed);
  EXPECT_EQ(State(), kInStep);
  EXPECT_EQ(document.styledEnd, 7);
  EXPECT_EQ(ShownSelection(), Range(0, 0));
  Unpark();
  ExpectEqualSides();
}

TEST_F(MirrorInStep, HidesTheSelectionWithoutFocusWhenTheModelSaysSo) {
  mirror.FocusChanged();
  EXPECT_FALSE(document.selectionHidden);
  document.focused = false;
  mirror.FocusChanged();
  EXPECT_TRUE(document.selectionHidden);
  EXPECT_TRUE(mirror.SelectionHidden());
  model.SetHideSelection(false);
  EXPECT_FALSE(document.selectionHidden);
}

struct MirrorAhead : ScintillaMirrorTest {
  MirrorAhead() {
    model.SetText("one two");
    Draw();
    Edit(3, 0, "\xE2\x82\xAC");
  }
};

TEST_F(MirrorAhead, TakesFurtherEditsAlong) {
  Edit(0, 2, "\xC3\xA4");
  Edit(1, 0, "x");
  EXPECT_EQ(State(), kAhead);
  EXPECT_EQ(takeOversWanted, 1);
  TakeOverIfWanted();
  EXPECT_EQ(model.Text(), "\xE4xe\x80 two");
  ExpectEqualSides();
  model.Undo();
  EXPECT_EQ(ShownText(), "one two");
}

TEST_F(MirrorAhead, IsStaleWhenTheModelsTextChangesAndItsEditsAreVoid) {
  model.Store().Replace(0, 3, "1", kBlack);
  EXPECT_EQ(State(), kStale);
  TakeOverIfWanted();
  EXPECT_EQ(model.Text(), "1 two");
  mirror.Follow();
  EXPECT_EQ(ShownText(), "1 two");
  ExpectEqualSides();
}

TEST_F(MirrorAhead, LetsTheDocumentsSelectionWinOverTheModels) {
  model.SelectByHand(0, 2);
  EXPECT_EQ(ShownSelection(), Range(4, 0));
  TakeOverIfWanted();
  EXPECT_EQ(Selection(), Range(4, 0));
  ExpectEqualSides();
}

TEST_F(MirrorAhead, AsksForNoSecondTakeOverOfTheSelection) {
  Mark(0, 2);
  EXPECT_EQ(takeOversWanted, 1);
  TakeOverIfWanted();
  EXPECT_EQ(Selection(), Range(0, 2));
}

TEST_F(MirrorAhead, GivesNoColoursBeforeTheTextsAreEqual) {
  Draw();
  EXPECT_EQ(document.styledEnd, 3);
  TakeOverIfWanted();
  EXPECT_EQ(document.styledEnd, 0);
  ExpectEqualSides();
}

TEST_F(MirrorAhead, HandsItsEditsOverToAParkedModelToo) {
  Park();
  EXPECT_EQ(State(), kAhead);
  TakeOverIfWanted();
  EXPECT_EQ(model.Text(), "one\x80 two");
  ExpectEqualSides();
}

TEST_F(MirrorAhead, GoesBackToTheModelsTextWhenACharacterHasNoByte) {
  Edit(0, 0, kForeign);
  TakeOverIfWanted();
  EXPECT_EQ(refusals.size(), 1);
  EXPECT_EQ(model.Text(), "one two");
  ExpectEqualSides();
}

struct MirrorStale : ScintillaMirrorTest {
  MirrorStale() {
    model.SetText("one two");
    Park();
    model.SetSelText("\x80");
    takeOversWanted = 0;
  }
};

TEST_F(MirrorStale, DropsWhatIsDoneToTheOldText) {
  Edit(0, 3, "x");
  Mark(2, 1);
  EXPECT_EQ(State(), kStale);
  EXPECT_EQ(takeOversWanted, 0);
  mirror.TakeOver();
  EXPECT_EQ(State(), kStale);
  EXPECT_EQ(model.Text(), "\x80one two");
  Unpark();
  ExpectEqualSides();
}

TEST_F(MirrorStale, GivesNoColoursToTheOldText) {
  Draw();
  EXPECT_EQ(document.styledEnd, 0);
  EXPECT_EQ(State(), kStale);
  Unpark();
  ExpectEqualSides();
}

TEST_F(MirrorStale, StaysSoWhileNobodySeesTheModelsEdits) {
  model.SetText("other");
  model.SetVisible(false);
  Unpark();
  EXPECT_EQ(State(), kStale);
  model.SetVisible(true);
  ExpectEqualSides();
}

TEST_F(MirrorStale, CatchesUpBeforeAGestureEvenIfParked) {
  EditByHand(1, 3, "x");
  EXPECT_EQ(model.Text(), "\x80x two");
  ExpectEqualSides();
}

TEST_F(MirrorStale, CatchesUpWhenSomebodyLooks) {
  mirror.Settle();
  ExpectEqualSides();
}

using MirrorShowing = ScintillaMirrorTest;

TEST_F(MirrorShowing, TakesItsOwnChangesForNobodysEdits) {
  std::vector<MirrorState> seen;
  document.halfWay = [&] { seen.push_back(State()); };
  model.SetText("one");
  model.SetSelText("\x80");
  EXPECT_EQ(seen, (std::vector{kShowing, kShowing}));
  EXPECT_EQ(takeOversWanted, 0);
  ExpectEqualSides();
}

TEST_F(MirrorShowing, IsStaleAfterwardsWhenTheModelsTextChangesInTheMiddle) {
  model.SetText("one");
  document.halfWay = [&] {
    document.halfWay = nullptr;
    model.Store().Replace(0, 1, "\x80\x80", kBlack);
    EXPECT_EQ(State(), kOvertaken);
    mirror.Follow();
    EXPECT_EQ(State(), kOvertaken);
  };
  model.Store().Replace(3, 0, "!", kBlack);
  EXPECT_EQ(State(), kStale);
  mirror.Follow();
  EXPECT_EQ(ShownText(), "\x80\x80ne!");
  ExpectEqualSides();
}

TEST_F(MirrorShowing, IsStaleAfterwardsWhenTheDocumentFails) {
  model.SetText("one");
  document.halfWay = [&] {
    document.halfWay = nullptr;
    throw std::bad_alloc();
  };
  EXPECT_THROW(model.SetSelText("x"), std::bad_alloc);
  EXPECT_EQ(State(), kStale);
  mirror.Follow();
  ExpectEqualSides();
}

TEST_F(MirrorShowing, GivesNoColoursToHalfAText) {
  model.SetText("one two");
  Draw();
  document.halfWay = [&] { mirror.ColoursNeeded(document.Size()); };
  model.SetSelText("x");
  EXPECT_EQ(document.styledEnd, 0);
  document.halfWay = nullptr;
  ExpectEqualSides();
}

TEST_F(MirrorShowing, RunsAGestureWithoutTakingAnythingOver) {
  int gestures = 0;
  document.halfWay = [&] {
    mirror.ByHand([&] { ++gestures; });
    mirror.TakeOver();
    mirror.SelectionMayHaveMoved();
    EXPECT_EQ(State(), kShowing);
  };
  model.SetText("one");
  EXPECT_EQ(gestures, 1);
  EXPECT_EQ(takeOversWanted, 0);
  ExpectEqualSides();
}

struct MirrorTakingOver : ScintillaMirrorTest {
  MirrorTakingOver() { model.SetText("one two"); }
};

TEST_F(MirrorTakingOver, IsOvertakenByAHandlerThatEditsAndDropsWhatIsLeft) {
  AtNextChange([this] {
    EXPECT_EQ(State(), kTakingOver);
    model.SelectByHand(0, 3);
    model.SetSelText("\x80");
    EXPECT_EQ(State(), kOvertaken);
  });
  mirror.ByHand([this] {
    Edit(7, 0, "!");
    Edit(0, 1, "");
  });
  EXPECT_EQ(model.Text(), "\x80 two!");
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, IsOvertakenByAHandlerThatMakesTheSameEditAgain) {
  AtNextChange([this] { model.Store().Replace(7, 0, "!", kBlack); });
  EditByHand(7, 0, "!");
  EXPECT_EQ(model.Text(), "one two!!");
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, IsAheadAfterwardsWhenAHandlerSendsKeys) {
  AtNextChange([this] { EditByHand(0, 0, "<"); });
  mirror.ByHand([this] {
    Edit(7, 0, "!");
    Edit(3, 1, "");
  });
  EXPECT_EQ(model.Text(), "onetwo!");
  EXPECT_EQ(State(), kAhead);
  EXPECT_EQ(takeOversWanted, 1);
  TakeOverIfWanted();
  EXPECT_EQ(model.Text(), "<onetwo!");
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, WaitsWithColoursThatAHandlerGives) {
  Draw();
  AtNextChange([this] {
    Draw();
    model.Store().Paint(0, 3, kDarkRed);
    model.Change.Raise();
    EXPECT_EQ(document.styledEnd, 7);
  });
  EditByHand(7, 0, "!");
  EXPECT_EQ(document.styledEnd, 0);
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, LeavesTheSelectionToTheDocument) {
  AtNextChange([this] { model.SelectByHand(0, 3); });
  EditByHand(7, 0, "!");
  EXPECT_EQ(Selection(), Range(8, 0));
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, GoesBackToTheModelsTextWhenTheModelRefuses) {
  AtNextChange([] { throw RuntimeError("The text is full."); });
  mirror.ByHand([this] {
    Edit(7, 0, "!");
    Edit(0, 1, "");
  });
  EXPECT_EQ(refusals, QStringList("The text is full."));
  EXPECT_EQ(model.Text(), "one two!");
  ExpectEqualSides();
}

TEST_F(MirrorTakingOver, GoesOnAfterAnErrorThatIsNoneOfTheModels) {
  AtNextChange([] { throw std::logic_error("a defect"); });
  EXPECT_THROW(EditByHand(7, 0, "!"), std::logic_error);
  EXPECT_EQ(State(), kStale);
  EditByHand(0, 0, "\xE2\x82\xAC");
  EXPECT_EQ(model.Text(), "\x80one two!");
  ExpectEqualSides();
  model.Undo();
  EXPECT_EQ(model.Text(), "one two!");
}

TEST_F(MirrorTakingOver, NotesAParkedModelsOwnEditsForLater) {
  AtNextChange([this] {
    Park();
    model.SetText("other");
  });
  EditByHand(7, 0, "!");
  EXPECT_EQ(model.Text(), "other");
  ExpectEqualSides();
}

using MirrorGesture = ScintillaMirrorTest;

TEST_F(MirrorGesture, TakesAllItsEditsOverAtItsEndAsOneUndoStep) {
  model.SetText("one");
  mirror.ByHand([this] {
    EditByHand(3, 0, "!");
    EditByHand(0, 1, "\xC3\xA4");
    EXPECT_EQ(model.Text(), "one");
    EXPECT_EQ(State(), kAhead);
  });
  EXPECT_EQ(takeOversWanted, 0);
  EXPECT_EQ(model.Text(), "\xE4ne!");
  ExpectEqualSides();
  model.Undo();
  EXPECT_EQ(ShownText(), "one");
}

TEST_F(MirrorGesture, MayGoOnWithTheModelAfterATakeOver) {
  model.SetText("one");
  mirror.ByHand([this] {
    Edit(3, 0, "!");
    mirror.TakeOver();
    mirror.OpenUndoStep(false);
    model.EditByHand(0, 1, "\x80");
  });
  EXPECT_EQ(model.Text(), "\x80ne!");
  ExpectEqualSides();
  model.Undo();
  EXPECT_EQ(ShownText(), "one");
}

TEST_F(MirrorGesture, OfTypingJoinsTheRunBeforeIt) {
  for (const char* key : {"a", "\xE2\x82\xAC", "c"}) {
    mirror.ByHand([&] { Edit(model.SelStart(), 0, key); }, true);
  }
  EXPECT_EQ(model.Text(),
            "a\x80"
            "c");
  model.Undo();
  EXPECT_EQ(ShownText(), "");
}

TEST_F(MirrorGesture, IsFollowedByAnUndoStepOfItsOwnWhenNobodyTypes) {
  mirror.ByHand([&] { Edit(0, 0, "a"); }, true);
  Edit(1, 0, "b");
  TakeOverIfWanted();
  model.Undo();
  EXPECT_EQ(ShownText(), "a");
}

TEST_F(MirrorGesture, ThatFailsLeavesTheNextOneInOrder) {
  model.SetText("one");
  EXPECT_THROW(mirror.ByHand([] { throw RuntimeError("no"); }), RuntimeError);
  EditByHand(0, 0, "x");
  EXPECT_EQ(model.Text(), "xone");
  ExpectEqualSides();
}

}  // namespace
}  // namespace tessel
