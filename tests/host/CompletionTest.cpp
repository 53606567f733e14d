// Completing words and names, what a word takes, and the indentation of a new line, by keyboard.
#include <gtest/gtest.h>

#include <QAction>
#include <string>

#include "ScriptTest.h"
#include "words/ScriptWords.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

class Completing : public ScriptTest {
 protected:
  Completing() {
    WriteScriptWords(settings_,
                     {{"shoot", "[projectile]"}, {"shake", "[time]"}, {"sound", "[name]"}});
  }

  bool Offers() { return View().SendScintilla(Sci::SCI_AUTOCACTIVE) != 0; }
  bool OffersSoon() {
    return QTest::qWaitFor([&] { return Offers(); }, 5000);
  }
  std::string Chosen() {
    std::string text(static_cast<std::size_t>(View().SendScintilla(
                         Sci::SCI_AUTOCGETCURRENTTEXT, 0UL, static_cast<void*>(nullptr))),
                     '\0');
    View().SendScintilla(Sci::SCI_AUTOCGETCURRENTTEXT, 0UL, static_cast<void*>(text.data()));
    return text;
  }
  bool Tells() { return View().SendScintilla(Sci::SCI_CALLTIPACTIVE) != 0; }
  void Complete() { Press(Qt::Key_Space, Qt::ControlModifier); }
  void SetPreference(const char* name, bool on) {
    Shown().findChild<QAction*>(name)->setChecked(on);
  }
  void Type(const QString& text) { QTest::keyClicks(&View(), text); }
};

TEST_F(Completing, TakesANameOfAnotherDocument) {
  Open("define MAXHEALTH 5\r\n", "");
  Type("maxh");
  Complete();
  ASSERT_TRUE(Offers());
  EXPECT_EQ(Chosen(), "MAXHEALTH");
  Press(Qt::Key_Return);
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Selected(), "MAXHEALTH[]");
}

TEST_F(Completing, IsOneEditThatIsUndoneByItself) {
  Open("define MAXHEALTH 5\r\n", "");
  Type("x maxh");
  Complete();
  Press(Qt::Key_Tab);
  EXPECT_EQ(Text().Text(), "x MAXHEALTH");
  int changes = 0;
  const Subscription counting = Text().Store().Edited.Connect([&](const TextEdit&) { ++changes; });
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), "x maxh");
  EXPECT_EQ(changes, 1);
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "x MAXHEALTH[]");
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), "");
  EXPECT_TRUE(Documents().Current().Modified());
}

TEST_F(Completing, OffersScriptWordsAndNamesInTheirOrder) {
  Open("state shiver\r\nends\r\n");
  PutCaretBehind("ends\r\n");
  Type("sh");
  Complete();
  ASSERT_TRUE(Offers());
  EXPECT_EQ(Chosen(), "shake");
  Press(Qt::Key_Down);
  EXPECT_EQ(Chosen(), "shiver");
  Press(Qt::Key_Down);
  EXPECT_EQ(Chosen(), "shoot");
  Press(Qt::Key_Down);
  EXPECT_EQ(Chosen(), "shoot");
}

TEST_F(Completing, FollowsWhatIsTypedOn) {
  Open("");
  Type("s");
  Complete();
  Type("ho");
  EXPECT_EQ(Chosen(), "shoot");
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "shoot");
}

TEST_F(Completing, TakesCharactersThatAreNoAscii) {
  Open("define M\xC4XIMUM 5\r\n", "\xE9 ");
  PutCaretBehind("\xE9 ");
  Type("m");
  QTest::sendKeyEvent(QTest::Click, &View(), Qt::Key_Adiaeresis, QStringLiteral("\u00C4"),
                      Qt::NoModifier);
  Type("x");
  Complete();
  ASSERT_TRUE(Offers());
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "\xE9 M\xC4XIMUM");
}

TEST_F(Completing, IsLeftByEscape) {
  Open("");
  Type("sho");
  Complete();
  ASSERT_TRUE(Offers());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Text().Text(), "sho");
}

TEST_F(Completing, SaysWhereThereIsNothingToOffer) {
  Open("");
  Type("qqq");
  Complete();
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Said(), "No word and no name begins with \"qqq\".");
  Type(" // sho");
  Complete();
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Said(), "The caret is in a comment.");
}

TEST_F(Completing, ComesByItselfFromTheThirdLetterWhereThatIsWanted) {
  Open("");
  Type("sho");
  QTest::qWait(20);
  EXPECT_FALSE(Offers());
  SetPreference("CompletesWhileTyping", true);
  Type(" sh");
  QTest::qWait(20);
  EXPECT_FALSE(Offers());
  Type("a");
  EXPECT_TRUE(OffersSoon());
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "sho shake");
}

TEST_F(Completing, DoesNotComeForAWordThatIsComplete) {
  SetPreference("CompletesWhileTyping", true);
  Open("");
  Type("shoot");
  QTest::qWait(20);
  EXPECT_FALSE(Offers());
}

TEST_F(Completing, ShowsTheParametersOfTheWordBeforeTheCaret) {
  Open("");
  Type("shoot FIRE ");
  EXPECT_FALSE(Tells());
  Press(Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Tells());
  Press(Qt::Key_Return);
  EXPECT_FALSE(Tells());
  Press(Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(Tells());
  EXPECT_EQ(Said(), "There is no script word in front of the caret.");
}

TEST_F(Completing, ShowsParametersWhileTypingWhereThatIsWanted) {
  SetPreference("CompletesWhileTyping", true);
  Open("");
  Type("shoot ");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Tells(); }, 5000));
}

TEST_F(Completing, KnowsWordsThatWereAddedMeanwhile) {
  Open("");
  Complete();
  Press(Qt::Key_Escape);
  WriteScriptWord(settings_, {"zebra", "[x]"});
  Run().Controls().lstWords.Clear();
  Type("zeb");
  Complete();
  EXPECT_TRUE(Offers());
}

TEST_F(Completing, IsRememberedAsAWish) {
  SetPreference("CompletesWhileTyping", true);
  EXPECT_TRUE(Shown().Wishes().Wants(Wish::kCompletion));
  Shown().Wishes().Set(Wish::kCompletion, false);
  EXPECT_FALSE(Shown().findChild<QAction*>("CompletesWhileTyping")->isChecked());
}

// --- Return

class Indentation : public Completing {};

TEST_F(Indentation, OfANewLineIsThatOfTheLineBefore) {
  Open("state a\r\n\t  x y\r\nends");
  PutCaretBehind("x");
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "state a\r\n\t  x\r\n\t   y\r\nends");
  EXPECT_EQ(Selected(), "\t  [] y");
}

TEST_F(Indentation, IsTakenBackTogetherWithItsLine) {
  Open("  x");
  PutCaretBehind("  x");
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "  x\r\n  ");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "  x[]");
}

TEST_F(Indentation, IsThatInFrontOfTheCaret) {
  Open("    x\n");
  Text().SelectByHand(2, 0);
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "  \n    x\n");
}

TEST_F(Indentation, ReplacesASelection) {
  Open("  abc");
  Text().SelectByHand(3, 2);
  Press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(Text().Text(), "  a\r\n  ");
}

TEST_F(Indentation, IsKeptInDocumentsThatAreOpenedLater) {
  Open("x", "  y");
  PutCaretBehind("y");
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "  y\r\n  ");
}

TEST_F(Indentation, IsNotKeptWhereThatIsNotWanted) {
  SetPreference("KeepsIndentation", false);
  Open("  x");
  PutCaretBehind("x");
  Press(Qt::Key_Return);
  EXPECT_EQ(Text().Text(), "  x\r\n");
  EXPECT_FALSE(Shown().Wishes().Wants(Wish::kIndentation));
}

}  // namespace
}  // namespace tessel::test
