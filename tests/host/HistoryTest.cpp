// Undo and redo of the window.
#include "HostFixture.h"
#include "host/history/EditHistory.h"
#include "randomizer/frmRand.h"

namespace tessel::test {
namespace {

using Join = EditHistory::Join;

// --- The steps of one text

class Steps : public testing::Test {
 protected:
  Steps() {
    subscriptions_ = {editor_.Store().Edited.Connect([this](const TextEdit& edit) {
      if (recording_) history_.Record(edit, join_);
    })};
  }
  void Replace(Position at, Position length, const std::string& text, Join join = Join::kNewStep) {
    join_ = join;
    editor_.EditByHand(at, length, text);
  }
  std::string AfterUndo() {
    recording_ = false;
    history_.Undo(editor_);
    recording_ = true;
    return editor_.Text();
  }
  std::string AfterRedo() {
    recording_ = false;
    history_.Redo(editor_);
    recording_ = true;
    return editor_.Text();
  }

  HostedControls controls_;
  RichTextBox& editor_ = controls_.rtbCon[0];
  EditHistory history_;
  Join join_ = Join::kNewStep;
  bool recording_ = true;
  std::vector<Subscription> subscriptions_;
};

TEST_F(Steps, AreTakenBackAndDoneAgainOneByOne) {
  Replace(0, 0, "abc");
  Replace(1, 1, "xyz");
  EXPECT_EQ(AfterUndo(), "abc");
  EXPECT_EQ(AfterUndo(), "");
  EXPECT_FALSE(history_.CanUndo());
  EXPECT_EQ(AfterUndo(), "");
  EXPECT_EQ(AfterRedo(), "abc");
  EXPECT_EQ(AfterRedo(), "axyzc");
  EXPECT_FALSE(history_.CanRedo());
}

TEST_F(Steps, OfSeveralEditsAreTakenBackFromTheLast) {
  Replace(0, 0, "abc");
  Replace(0, 1, "12");
  Replace(3, 1, "", Join::kSameStep);
  EXPECT_EQ(editor_.Text(), "12b");
  EXPECT_EQ(AfterUndo(), "abc");
  EXPECT_EQ(AfterRedo(), "12b");
}

TEST_F(Steps, ThatWereTakenBackAreGoneAfterAnotherEdit) {
  Replace(0, 0, "abc");
  AfterUndo();
  Replace(0, 0, "x");
  EXPECT_FALSE(history_.CanRedo());
  EXPECT_EQ(AfterUndo(), "");
}

TEST_F(Steps, OfOneValueBecomeOne) {
  Replace(0, 0, "A 100");
  Replace(2, 3, "2");
  Replace(2, 1, "25", Join::kSameValue);
  Replace(2, 2, "250", Join::kSameValue);
  EXPECT_EQ(AfterUndo(), "A 100");
  EXPECT_EQ(AfterRedo(), "A 250");
}

TEST_F(Steps, OfAValueElsewhereAreOthers) {
  Replace(0, 0, "1 2");
  Replace(0, 1, "5");
  Replace(2, 1, "6", Join::kSameValue);
  EXPECT_EQ(AfterUndo(), "5 2");
}

TEST_F(Steps, PutTheCaretBehindWhatIsBack) {
  Replace(0, 0, "abcdef");
  Replace(2, 2, "");
  AfterUndo();
  EXPECT_EQ(editor_.SelStart(), 4);
  EXPECT_EQ(editor_.SelLength(), 0);
}

// --- In the window

class History : public HostTest {
 protected:
  void SetUp() override { Run().window->OpenFiles({user_}); }
  void Undo() { Run().MenuItem("&Undo")->trigger(); }
  void Redo() { Run().MenuItem("&Redo")->trigger(); }
  std::string Text() { return Run().Editor(0).Text(); }

  const std::string before_ =
      "define MAXPLAYERHEALTH 100\r\ndefine MAXSHOTGUNAMMO 50\r\ndefinelevelname 0 0 a.map 01:45 "
      "00:53 HOLLYWOOD\r\n";
  std::string user_ = directory_.Put("user.con", before_);
  std::string other_ = directory_.Put("other.con", "other");
};

TEST_F(History, TakesARunOfTheRandomizerBackAtOnce) {
  Run().fakes.forms.scripts = {[](Form& form) {
    auto& rand = static_cast<frmRand&>(form);
    rand.cmbChoose[0].SetText("5");
    rand.cmbChoose[1].SetText("5");
    rand.cmdOk.Press();
  }};
  Run().Controls().tbToolBar.Press("RandAll");
  const std::string after = Text();
  ASSERT_TRUE(after.starts_with("define MAXPLAYERHEALTH 5\r\ndefine MAXSHOTGUNAMMO 5\r\n"))
      << after;
  Undo();
  EXPECT_EQ(Text(), before_);
  Redo();
  EXPECT_EQ(Text(), after);
}

TEST_F(History, TakesAToolBackAtOnce) {
  Run().Editor(0).SelectByHand(0, Run().Editor(0).Length());
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupToolsLower");
  ASSERT_NE(Text(), before_);
  Undo();
  EXPECT_EQ(Text(), before_);
}

TEST_F(History, TakesAConversionBackAtOnce) {
  Run().window->Control().Tessel().OpenFile(TESSEL_TEST_DATA_DIR "/zmuser.dat");
  const std::string before = Run().Editor(1).Text();
  Run().MenuItem("&Convert to Version 1.5")->trigger();
  ASSERT_NE(Run().Editor(1).Text(), before);
  EXPECT_FALSE(Run().Editor(1).CanUndo());
  Undo();
  EXPECT_EQ(Run().Editor(1).Text(), before);
}

TEST_F(History, StandsWhenThePopupsUndoEmptiesTheEditors) {
  Run().Editor(0).SelectByHand(0, 0);
  Run().Editor(0).Type("one ");
  Run().Editor(0).SelectByHand(Run().Editor(0).Length(), 0);
  Run().Editor(0).Type("two");
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupEditUndo");
  EXPECT_EQ(Text(), "one " + before_);
  EXPECT_FALSE(Run().Editor(0).CanUndo());
  Undo();
  EXPECT_EQ(Text(), "one " + before_ + "two");
  Undo();
  Undo();
  EXPECT_EQ(Text(), before_);
}

TEST_F(History, IsTheDocumentsOwn) {
  Run().Editor(0).Type("x");
  Run().window->OpenFiles({other_});
  Run().Editor(1).SelectByHand(0, 0);
  Run().Editor(1).Type("y");
  Undo();
  EXPECT_EQ(Run().Editor(1).Text(), "other");
  Undo();
  EXPECT_EQ(Text(), "x" + before_);
  Run().Tabs().Select(1);
  Undo();
  EXPECT_EQ(Text(), before_);
}

TEST_F(History, MovesWithItsDocument) {
  Run().window->OpenFiles({other_});
  Run().Editor(1).SelectByHand(0, 0);
  Run().Editor(1).Type("y");
  Run().Tabs().Select(1);
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  ASSERT_EQ(Text(), "yother");
  Undo();
  EXPECT_EQ(Text(), "other");
}

TEST_F(History, EndsWhereATextIsLoaded) {
  Run().Editor(0).Type("x");
  Run().window->Control().Tessel().ReloadDocument();
  Undo();
  EXPECT_EQ(Text(), before_);
}

TEST_F(History, HasATypedValueAsOneStep) {
  HostedControls& c = Run().Controls();
  c.tbsCon.Select(1);
  c.lstPlayers.Pick(0);
  ASSERT_EQ(c.cmbweap[0].Text(), "100");
  for (const char* typed : {"2", "25", "250"}) c.cmbweap[0].Type(typed);
  ASSERT_EQ(Text().substr(0, 26), "define MAXPLAYERHEALTH 250");
  Undo();
  EXPECT_EQ(Text(), before_);
  Redo();
  EXPECT_EQ(Text().substr(0, 26), "define MAXPLAYERHEALTH 250");
}

}  // namespace
}  // namespace tessel::test
