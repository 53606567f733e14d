// The settings panel writes nothing over what is no setting without a question, and shows what it
// would write over.
#include <QApplication>
#include <algorithm>
#include <random>
#include <utility>

#include "HostFixture.h"
#include "host/panel/PanelGuard.h"
#include "host/script/OpenScripts.h"
#include "language/SettingLines.h"
#include "qt/editor/ScintillaView.h"
#include "randomizer/frmRand.h"
#include "support/BestSeconds.h"
#include "support/SelectionText.h"

namespace tessel::test {
namespace {

constexpr const char* kHeading = "// Weapon Strengths\r\ndefine KNEE_WEAPON_STRENGTH 10\r\n";

class Panel : public HostTest {
 protected:
  Panel() {
    QApplication::setActiveWindow(Run().window.get());
    QCoreApplication::processEvents();
  }

  HostedControls& C() { return Run().Controls(); }
  RichTextBox& Editor() { return Run().Editor(0); }
  void Given(const std::string& marked) { SetMarked(Editor(), marked); }
  std::string Shown() { return Marked(Editor()); }
  std::vector<std::string> TakeAsked() {
    std::vector<std::string> texts;
    for (const auto& box : std::exchange(Run().fakes.messages.shown, {})) {
      texts.push_back(box.text);
      EXPECT_EQ(box.buttons, MessageButtons::kNoYes);
    }
    return texts;
  }
  void Answer(MessageAnswer answer) { Run().fakes.messages.answers = {answer}; }
  void TypeValue(const std::string& text, int box = 0) { C().cmbweap[box].Type(text); }

  QWidget* WidgetOf(const Control& control) { return Run().window->Control().WidgetFor(control); }
  void Focus(Control& control) {
    control.SetEnabled(true);
    WidgetOf(control)->setFocus();
    QCoreApplication::processEvents();
  }
  /// What the box in the text is around.
  std::string Outlined() {
    Run().window->grab();
    const SciRange shown = Run().window->Control().CurrentEditorView()->Outline().Shown();
    return Editor().Text().substr(static_cast<std::size_t>(shown.start),
                                  static_cast<std::size_t>(shown.end - shown.start));
  }
};

// --- Questions

TEST_F(Panel, AValueOfADefineIsReplacedWithoutAQuestion) {
  Given("define MAXPLAYERHEALTH 100 // x[]");
  C().lstPlayers.Pick(0);
  TypeValue("7");
  TypeValue("75");
  C().cmbweap[0].Pick(2);
  EXPECT_TRUE(TakeAsked().empty());
  EXPECT_EQ(Shown(), "define MAXPLAYERHEALTH [10] // x");
}

TEST_F(Panel, AHeadingIsNotReplacedByAValueThatIsTypedWithoutAWeapon) {
  Given(std::string(kHeading) + "[]");
  C().lstWeapInfo.Pick(2);
  ASSERT_EQ(Editor().SelText(), "// Weapon Strengths");
  TypeValue("77", 1);
  EXPECT_EQ(TakeAsked(),
            (std::vector<std::string>{"\"77\" would replace \"// Weapon Strengths\" in line 1, "
                                      "which is no define.\nReplace it?"}));
  EXPECT_EQ(Editor().Text(), kHeading);
}

TEST_F(Panel, WhatIsToBeReplacedIsReplacedAndNotAskedAboutAtTheNextKey) {
  Given("// a [heading] here");
  Answer(MessageAnswer::kYes);
  TypeValue("7");
  EXPECT_EQ(TakeAsked().size(), 1U);
  EXPECT_EQ(Shown(), "// a [7] here");
  TypeValue("75");
  EXPECT_TRUE(TakeAsked().empty());
  EXPECT_EQ(Shown(), "// a [75] here");
}

TEST_F(Panel, WhatIsToBeKeptIsKeptAtTheNextKeyToo) {
  Given("// a [heading] here");
  TypeValue("7");
  TypeValue("75");
  EXPECT_EQ(TakeAsked().size(), 1U);
  EXPECT_EQ(Shown(), "// a [heading] here");
}

TEST_F(Panel, AnAnswerIsForgottenWhenSomethingElseIsDone) {
  Given("// a [heading] here");
  TypeValue("7");
  C().lstPlayers.Pick(0);
  TypeValue("75");
  EXPECT_EQ(TakeAsked().size(), 2U);
}

TEST_F(Panel, AnAnswerHoldsForItsLineOnly) {
  Given("one\r\n[two]");
  Answer(MessageAnswer::kYes);
  TypeValue("7");
  ASSERT_EQ(Shown(), "[one\r\n7]") << "the control takes all up to a blank for the value";
  TypeValue("75");
  const auto asked = TakeAsked();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[1],
            "\"75\" would replace \"one...\" in line 1, which is no define.\nReplace it?");
  EXPECT_EQ(Shown(), "[one\r\n7]");
}

TEST_F(Panel, APresetIsNotInsertedWhereNothingIsSelectedWithoutAQuestion) {
  Given("x\r\ndefine A []100");
  C().cmbweap[0].Pick(2);
  EXPECT_EQ(TakeAsked(),
            (std::vector<std::string>{
                "Nothing is selected: \"10\" would be inserted into line 2.\nInsert it?"}));
  EXPECT_EQ(Shown(), "x\r\ndefine A []100");
}

TEST_F(Panel, AnOptionWhoseDefineIsMissingIsAskedAbout) {
  Given("state [word] ends");
  C().optCamYes.Press();
  EXPECT_EQ(TakeAsked().size(), 1U);
  EXPECT_EQ(Editor().Text(), "state word ends");
  Given("define CAMERASDESTRUCTABLE NO[]");
  C().optCamYes.Press();
  EXPECT_TRUE(TakeAsked().empty());
  EXPECT_EQ(Shown(), "define CAMERASDESTRUCTABLE [YES]");
}

TEST_F(Panel, ALevelIsWrittenIntoALevelsLineOnly) {
  C().txtMap.SetText("new.map");
  C().cmdInsert[0].SetEnabled(true);
  Given("definelevelname 0 0 [E1L1.map] 01:00 02:00 TITLE");
  C().cmdInsert[0].Press();
  EXPECT_TRUE(TakeAsked().empty());
  EXPECT_EQ(Shown(), "definelevelname 0 0 new.map[] 01:00 02:00 TITLE");
  Given("define A [100]");
  C().cmdInsert[0].Press();
  EXPECT_EQ(TakeAsked(),
            (std::vector<std::string>{"\"new.map\" would replace \"100\" in line 1, which is no "
                                      "definelevelname.\nReplace it?"}));
  EXPECT_EQ(Shown(), "define A [100]");
}

TEST_F(Panel, AWordGoesOverASelectionThatIsSeenWithoutAQuestion) {
  settings_.SaveSetting("ConWords", "ifhit", "ifhit");
  C().cmdAddword.SetEnabled(true);
  C().cmdAddword.Press();  // the list is read again
  for (const bool hidden : {false, true}) {
    Given("a [b] c");
    Editor().SetHideSelection(hidden);
    C().lstWords.PickTwice(0);
    EXPECT_EQ(TakeAsked().size(), hidden ? 1U : 0U);
    EXPECT_EQ(Shown(), hidden ? "a [b] c" : "a ifhit[] c");
  }
  Given("a []c");
  Editor().SetHideSelection(true);
  C().lstWords.PickTwice(0);
  EXPECT_TRUE(TakeAsked().empty()) << "nothing is replaced";
}

// --- What is read for that

/// The guard alone, without the commands that find a setting.
class PanelGuardReads : public Panel {
 protected:
  PanelGuardReads() {
    guard_.Watch(Run().window->Control().Tessel(),
                 [this](Slot slot) -> const language::Script& { return scripts_.Of(slot); });
  }

  OpenScripts scripts_{C().rtbCon};
  PanelGuard guard_{Run().fakes.messages};
};

TEST_F(PanelGuardReads, TheTextAsItIsNowWhateverWasDoneToIt) {
  const std::vector<std::string> pieces = {"define A 100\r\n",
                                           "// ",
                                           "/*",
                                           "*/",
                                           "\r\n",
                                           "x",
                                           " ",
                                           "definelevelname 0 0 a.map 1:00 2:00 T\r\n"};
  std::mt19937 random{19};  // NOLINT: the same each time
  const auto below = [&random](Position count) {
    return static_cast<Position>(random() % static_cast<unsigned long>(count));
  };
  int allowed = 0;
  constexpr int kSteps = 1000;
  for (int step = 0; step < kSteps; ++step) {
    const Position at = below(Editor().Length() + 1);
    const Position deed = step == 0 ? 0 : below(10);
    if (deed == 0) {
      Editor().SetText("define A 1 // x\r\ndefine B 2\r\nstate c ends\r\n");
    } else if (deed == 1) {
      Editor().Undo();
    } else if (deed < 4) {
      Editor().EditByHand(at, std::min<Position>(3, Editor().Length() - at), {});
    } else {
      Editor().EditByHand(at, 0, pieces[static_cast<std::size_t>(below(std::ssize(pieces)))]);
    }
    const Position start = below(Editor().Length() + 1);
    Editor().SelectByHand(start, std::min<Position>(below(3), Editor().Length() - start));
    const language::Script script(Editor().Bytes());
    const language::Range selected{Editor().SelStart(), Editor().SelEnd()};
    const bool value = LiesInDefineValue(script, selected);
    ASSERT_EQ(guard_.MayWrite(PanelWrite::kValue, "5"), value) << step << ": " << Shown();
    const bool level = LiesInLevel(script, selected);
    ASSERT_EQ(guard_.MayWrite(PanelWrite::kLevel, "5"), level) << step << ": " << Shown();
    allowed += value || level ? 1 : 0;
  }
  EXPECT_GT(allowed, kSteps / 50);
  EXPECT_LT(allowed, kSteps / 2);
}

TEST_F(PanelGuardReads, NoMoreThanWhatHasChanged) {
  constexpr Position kSize = 10'000'000;
  std::string text;
  while (std::ssize(text) < kSize) text += "define SOMETHING 100 // as it was\r\n";
  Editor().SetText(text);
  const double whole = BestSecondsOf(3, [&] { const language::Script script(Editor().Bytes()); });
  Editor().SelectByHand(17, 3);
  ASSERT_TRUE(guard_.MayWrite(PanelWrite::kValue, "5"));
  double write = 1e9;
  for (int i = 0; i < 5; ++i) {
    Editor().EditByHand(17, 3, std::to_string(101 + i));
    Editor().SelectByHand(17, 3);
    write = std::min(write, BestSecondsOf(1, [&] { guard_.MayWrite(PanelWrite::kValue, "5"); }));
  }
  EXPECT_LE(write, whole / 10) << "the whole text takes " << whole << " seconds";
  RecordProperty("Microseconds", static_cast<int>(write * 1e6));
  RecordProperty("MicrosecondsOfTheWhole", static_cast<int>(whole * 1e6));
}

// --- After Randomize

TEST_F(Panel, NothingIsSelectedAfterRandomize) {
  Given("define MAXPLAYERHEALTH [100] // x");
  Run().fakes.forms.scripts = {[](Form& form) {
    auto& rand = static_cast<frmRand&>(form);
    rand.cmbChoose[0].SetText("5");
    rand.cmbChoose[1].SetText("5");
    rand.cmdOk.Press();
  }};
  C().tbToolBar.Press("RandSec");
  EXPECT_EQ(Shown(), "define MAXPLAYERHEALTH []5 // x");
  C().lstPlayers.Pick(0);
  EXPECT_EQ(Shown(), "define MAXPLAYERHEALTH [5] // x") << "a person's own look";
}

TEST_F(Panel, TheSelectionStaysWhenRandomizeIsCancelled) {
  Given("define MAXPLAYERHEALTH [100] // x");
  Run().fakes.forms.scripts = {[](Form& form) { static_cast<frmRand&>(form).cmdCancel.Press(); }};
  C().tbToolBar.Press("RandSec");
  EXPECT_EQ(Shown(), "define MAXPLAYERHEALTH [100] // x");
}

// --- The outline

TEST_F(Panel, WhatAValueBoxWouldReplaceIsOutlinedWhileItHasTheFocus) {
  Given("a [heading] here");
  EXPECT_EQ(Outlined(), "");
  Focus(C().cmbweap[0]);
  EXPECT_EQ(Outlined(), "heading");
  Answer(MessageAnswer::kYes);
  TypeValue("1234567");
  EXPECT_EQ(Outlined(), "1234567");
  EXPECT_EQ(Editor().SelText(), "1234567") << "the selection is what it was";
  Focus(C().lstPlayers);
  EXPECT_EQ(Outlined(), "");
}

TEST_F(Panel, WhatInsertWouldReplaceIsOutlinedToo) {
  Given("a [heading] here");
  C().tbsCon.Select(kFunctionsPage + 1);
  Focus(C().lstWords);
  EXPECT_EQ(Outlined(), "heading");
  Focus(C().txtSearch);
  EXPECT_EQ(Outlined(), "");
  Focus(C().cmdInsert[2]);
  EXPECT_EQ(Outlined(), "heading");
}

TEST_F(Panel, TheOutlineFollowsTheDocumentInFront) {
  Run().window->OpenFiles({directory_.Put("a.con", "first"), directory_.Put("b.con", "second")});
  for (int slot : {0, 1}) {
    Run().Editor(slot).SetSelStart(0);
    Run().Editor(slot).SetSelLength(3);
  }
  Focus(C().cmbweap[0]);
  Run().Tabs().Select(1);
  EXPECT_EQ(Outlined(), "fir");
  const auto* other = static_cast<ScintillaView*>(WidgetOf(Run().Editor(1)));
  EXPECT_FALSE(other->Outline().Wanted());
}

TEST_F(Panel, WhatAnOptionWouldReplaceIsOutlinedWhileTheQuestionIsOpen) {
  Given("state [word] ends");
  std::string outlined;
  Run().fakes.messages.meanwhile = [&] { outlined = Outlined(); };
  C().optCamYes.Press();
  EXPECT_EQ(outlined, Editor().SelText());
  EXPECT_NE(outlined, "");
  EXPECT_EQ(Outlined(), "");
}

}  // namespace
}  // namespace tessel::test
