// The find bar, used by keys as a person does.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QStatusBar>
#include <QToolButton>

#include "HostFixture.h"
#include "host/find/FindBar.h"
#include "host/find/FindHistory.h"
#include "qt/editor/ScintillaView.h"
#include "support/SelectionText.h"

namespace tessel::test {
namespace {

constexpr int kSoon = 5000;
constexpr unsigned long kMatchBox = QsciScintillaBase::INDIC_CONTAINER + 4;
constexpr unsigned long kCurrentBox = QsciScintillaBase::INDIC_CONTAINER + 5;

class FindBarKeys : public HostTest {
 protected:
  FindBarKeys() {
    Window().resize(1000, 700);
    QApplication::setActiveWindow(&Window());
    QCoreApplication::processEvents();
    View().setFocus();
  }

  MainWindow& Window() { return *Run().window; }
  FindBar& Bar() { return *Window().findChild<FindBar*>(); }
  RichTextBox& Editor() { return Window().Control().Tessel().OpenDocuments().CurrentEditor(); }
  ScintillaView& View() { return *Window().Control().CurrentEditorView(); }
  void Given(const std::string& marked) { SetMarked(Editor(), marked); }
  std::string Shown() { return Marked(Editor()); }
  std::string Said() { return Window().statusBar()->currentMessage().toStdString(); }

  /// A key goes to whoever has the focus, shortcuts first, as on a desktop.
  static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
  }
  static void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    QCoreApplication::processEvents();
  }
  void Find(const QString& text) {
    Press(Qt::Key_E, Qt::ControlModifier);
    Type(text);
  }
  QLineEdit& Field() { return *Bar().findChild<FindField*>()->lineEdit(); }
  QAbstractButton& Button(const QString& name) {
    for (auto* button : Bar().findChildren<QAbstractButton*>()) {
      if (button->accessibleName() == name || button->text() == name) return *button;
    }
    throw std::runtime_error("there is no button " + name.toStdString());
  }
  std::string Count() { return Bar().findChild<QLabel*>("count")->text().toStdString(); }
  bool Counts(const std::string& text) {
    return QTest::qWaitFor([&] { return Count() == text; }, kSoon);
  }
  /// The text with brackets around each box of that kind.
  std::string Boxed(unsigned long indicator) {
    Window().grab();
    std::string text = Editor().Text();
    const auto ask = [&](unsigned int message, long at) {
      return View().SendScintilla(message, indicator, at);
    };
    std::string boxed;
    long last = 0;
    for (long at = 0; at < std::ssize(text); ++at) {
      const long value = ask(QsciScintillaBase::SCI_INDICATORVALUEAT, at);
      if (last != 0 && value != last) boxed += ']';
      if (value != 0 && value != last) boxed += '[';
      boxed += text[static_cast<std::size_t>(at)];
      last = value;
    }
    return last != 0 ? boxed + ']' : boxed;
  }
};

TEST_F(FindBarKeys, OpensByItsKeyAndClosesByEscape) {
  EXPECT_FALSE(Bar().isVisible());
  Press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_TRUE(Field().hasFocus());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Editor().Text(), "") << "no key went into the text";
}

TEST_F(FindBarKeys, OpensWhereverTheFocusIs) {
  for (Control* part :
       std::initializer_list<Control*>{&Run().Controls().lstPlayers, &Run().Controls().tbsRtb}) {
    Window().Control().WidgetFor(*part)->setFocus();
    Press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(Field().hasFocus());
    Press(Qt::Key_Escape);
  }
}

TEST_F(FindBarKeys, FindsWhileItsUserTypes) {
  Given("a cat, a [] car, a cab, a cat");
  Find("ca");
  EXPECT_EQ(Shown(), "a cat, a  [ca]r, a cab, a cat") << "from the caret on";
  EXPECT_TRUE(Counts("2 of 4"));
  Type("t");
  EXPECT_EQ(Shown(), "a cat, a  car, a cab, a [cat]");
  EXPECT_TRUE(Counts("2 of 2"));
  Type("x");
  EXPECT_EQ(Shown(), "a cat, a [] car, a cab, a cat") << "back to where it began";
  EXPECT_TRUE(Counts("No match"));
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "a cat, a  car, a cab, a [cat]");
  EXPECT_TRUE(Field().hasFocus());
}

TEST_F(FindBarKeys, GoesOnAndBackAndSaysWhereItWrapped) {
  Given("[]one two one two one");
  Find("one");
  ASSERT_TRUE(Counts("1 of 3"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Count(), "2 of 3");
  Press(Qt::Key_Down);
  EXPECT_EQ(Count(), "3 of 3");
  EXPECT_EQ(Said(), "");
  Press(Qt::Key_Return);
  EXPECT_EQ(Count(), "1 of 3");
  EXPECT_EQ(Said(), "The search went on from the top.");
  Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Count(), "3 of 3");
  EXPECT_EQ(Said(), "The search went on from the end.");
  Press(Qt::Key_Up);
  EXPECT_EQ(Shown(), "one two [one] two one");
}

TEST_F(FindBarKeys, GoesOnAlsoWhileItIsHidden) {
  Given("[]one two one");
  Find("one");
  Press(Qt::Key_Escape);
  Bar().FindNext();
  EXPECT_EQ(Shown(), "one two [one]");
  EXPECT_FALSE(Bar().isVisible());
  Bar().FindPrevious();
  EXPECT_EQ(Shown(), "[one] two one");
  EXPECT_EQ(Boxed(kMatchBox), "one two one");
}

TEST_F(FindBarKeys, GoesOnFromAMatchThatWasNotCounted) {
  std::string text;
  for (int i = 0; i < 15'000; ++i) text += "one ";
  Editor().SetText(text);
  Editor().SelectByHand(4 * 14'000, 3);
  Press(Qt::Key_E, Qt::ControlModifier);
  ASSERT_TRUE(Counts("More than 10,000"));
  for (const int match : {14'001, 14'002}) {
    Press(Qt::Key_Return);
    EXPECT_EQ(Editor().SelStart(), 4 * match);
  }
  Press(Qt::Key_Escape);
  for (const int match : {14'003, 14'004}) {
    Bar().FindNext();
    EXPECT_EQ(Editor().SelStart(), 4 * match);
  }
}

TEST_F(FindBarKeys, ShowsItselfWhenNothingWasLookedForYet) {
  Bar().FindNext();
  EXPECT_TRUE(Field().hasFocus());
}

TEST_F(FindBarKeys, SaysThatThereIsNothingWhileItIsHidden) {
  Given("[]one");
  Find("two");
  Press(Qt::Key_Escape);
  Bar().FindNext();
  EXPECT_EQ(Said(), "\"two\" is not in this document.");
}

TEST_F(FindBarKeys, TheControlSeesWhatIsSelected) {
  Given("[]define A 1");
  Find("A");
  EXPECT_EQ(Editor().SelText(), "A");
  Press(Qt::Key_Escape);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Run().fakes.clipboard.GetText(), "A");
}

TEST_F(FindBarKeys, TakesTheSelectionWithinALineAsWhatIsLookedFor) {
  Given("one [two] three\r\ntwo");
  Press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(Field().text(), "two");
  EXPECT_EQ(Field().selectedText(), "two") << "the next key replaces it";
  EXPECT_TRUE(Counts("1 of 2"));
  Press(Qt::Key_Escape);
  Given("[one\r\ntwo]");
  Press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(Field().text(), "two");
  EXPECT_EQ(Shown(), "[one\r\ntwo]") << "opening moves nothing";
}

TEST_F(FindBarKeys, QuotesTheSelectionForAnExpression) {
  Given("[a.b] axb");
  Press(Qt::Key_E, Qt::ControlModifier);
  Button("Regular expression").click();
  Press(Qt::Key_Escape);
  Given("[a.b] axb");
  Press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(Field().text(), "a\\.b");
  EXPECT_TRUE(Counts("1 of 1"));
}

TEST_F(FindBarKeys, ItsChoicesHaveKeys) {
  Given("[]cat Cat cats");
  Find("Cat");
  EXPECT_TRUE(Counts("1 of 3"));
  Press(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(Counts("1 of 2"));
  EXPECT_TRUE(Button("Whole words only").isChecked());
  Press(Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(Counts("1 of 1"));
  EXPECT_EQ(Shown(), "cat [Cat] cats");
  Press(Qt::Key_X, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Button("Regular expression").isChecked(); }, kSoon));
  View().setFocus();
  Press(Qt::Key_K, Qt::AltModifier);
  EXPECT_TRUE(Field().hasFocus());
}

TEST_F(FindBarKeys, SaysWhyAnExpressionIsNotValid) {
  Given("[]one (two)");
  Press(Qt::Key_E, Qt::ControlModifier);
  Button("Regular expression").click();
  Field().setFocus();
  Type("(t");
  EXPECT_EQ(Count(), "Not valid");
  EXPECT_EQ(Said(), "The expression is not valid: missing closing parenthesis (at character 2).");
  Type("w)");
  EXPECT_TRUE(Counts("1 of 1"));
  EXPECT_EQ(Said(), "");
}

TEST_F(FindBarKeys, AnExpressionThatNeverEndsIsGivenUp) {
  Given("[]" + std::string(200, 'a') + "1");
  Press(Qt::Key_E, Qt::ControlModifier);
  Button("Regular expression").click();
  Field().setFocus();
  QElapsedTimer clock;
  clock.start();
  Type("(a+)+\\d\\d");
  EXPECT_TRUE(Counts("Too complex"));
  EXPECT_EQ(Said(), "The expression is too complex for this text.");
  EXPECT_LT(clock.elapsed(), 10'000);
}

TEST_F(FindBarKeys, MarksWhatIsInSight) {
  Given("[]cat \xe4 catcat cow");
  Find("cat");
  ASSERT_TRUE(Counts("1 of 3"));
  EXPECT_EQ(Boxed(kCurrentBox).substr(0, 5), "[cat]");
  const std::string boxed = Boxed(kMatchBox);
  EXPECT_EQ(std::ranges::count(boxed, '['), 3) << "neighbours have a box each: " << boxed;
  const auto revision = Editor().Store().Revision();
  Press(Qt::Key_Escape);
  EXPECT_EQ(std::ranges::count(Boxed(kMatchBox), '['), 0);
  EXPECT_EQ(Boxed(kCurrentBox).find('['), std::string::npos);
  EXPECT_EQ(Editor().Store().Revision(), revision);
  EXPECT_FALSE(Editor().CanUndo());
}

TEST_F(FindBarKeys, CountsAgainWhenTheTextIsChanged) {
  Given("[]one two one");
  Find("one");
  ASSERT_TRUE(Counts("1 of 2"));
  View().setFocus();
  Press(Qt::Key_End);
  Type(" one");
  EXPECT_TRUE(Counts("3 matches"));
  EXPECT_EQ(Boxed(kMatchBox), "[one] two [one] [one]");
  Press(Qt::Key_Home);
  Press(Qt::Key_E, Qt::ControlModifier);
  Press(Qt::Key_Return);
  EXPECT_EQ(Count(), "1 of 3") << "the caret's place counts";
}

TEST_F(FindBarKeys, FollowsTheDocumentInFront) {
  Window().OpenFiles({directory_.Put("a.con", "one one"), directory_.Put("b.con", "one")});
  Find("one");
  EXPECT_TRUE(Counts("1 of 1"));
  Run().Tabs().Select(1);
  EXPECT_TRUE(Counts("2 matches"));
  EXPECT_EQ(Boxed(kMatchBox), "[one] [one]");
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_TRUE(Counts("1 match"));
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_TRUE(Counts("No match"));
}

TEST_F(FindBarKeys, RemembersTheLastTwentySearches) {
  Given("[]one");
  for (int i = 0; i < 22; ++i) {
    Press(Qt::Key_E, Qt::ControlModifier);
    Field().selectAll();
    Type(QString::number(i % 21));
    Press(Qt::Key_Return);
  }
  EXPECT_EQ(SearchHistory().size(), 20);
  EXPECT_EQ(SearchHistory().mid(0, 3), (QStringList{"0", "20", "19"}));
  Restart();
  QApplication::setActiveWindow(&Window());
  View().setFocus();
  Press(Qt::Key_E, Qt::ControlModifier);
  auto* field = Bar().findChild<QComboBox*>();
  EXPECT_EQ(field->currentText(), "");
  QTest::keyClick(field, Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(field->view()->isVisible());
  QTest::keyClick(field->view(), Qt::Key_Home);
  QTest::keyClick(field->view(), Qt::Key_Down);
  QTest::keyClick(field->view(), Qt::Key_Return);
  EXPECT_EQ(Field().text(), "20");
}

TEST_F(FindBarKeys, EveryPartHasANameAndItsMnemonicsAreDifferent) {
  Press(Qt::Key_E, Qt::ControlModifier);
  QStringList mnemonics;
  for (auto* part : Bar().findChildren<QWidget*>()) {
    const auto* button = qobject_cast<QAbstractButton*>(part);
    const auto* label = qobject_cast<QLabel*>(part);
    if (button != nullptr) {
      EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty());
    }
    const QString text = button != nullptr  ? button->text()
                         : label != nullptr ? label->text()
                                            : QString();
    const QKeySequence mnemonic = QKeySequence::mnemonic(text);
    if (!mnemonic.isEmpty()) mnemonics += mnemonic.toString();
  }
  EXPECT_GE(mnemonics.size(), 3);
  EXPECT_EQ(mnemonics.removeDuplicates(), 0) << mnemonics.join(' ').toStdString();
  for (const char* menu :
       {"Alt+F", "Alt+E", "Alt+S", "Alt+V", "Alt+G", "Alt+T", "Alt+W", "Alt+H"}) {
    EXPECT_FALSE(mnemonics.contains(menu)) << menu;
  }
}

TEST_F(FindBarKeys, ALargeTextIsCountedWithoutAPause) {
  std::string text;
  while (text.size() < 10'000'000)
    text += "define MAXPLAYERHEALTH 100 // the health of a player\r\n";
  Editor().SetText(text + "the last line");
  for (const bool expression : {false, true}) {
    Press(Qt::Key_E, Qt::ControlModifier);
    Button("Regular expression").setChecked(expression);
    Field().setFocus();
    Field().selectAll();
    qint64 longest = 0;
    for (const QChar c : QString("last line")) {
      QElapsedTimer clock;
      clock.start();
      QTest::keyClick(&Field(), c.toLatin1());
      longest = std::max(longest, clock.elapsed());
    }
    EXPECT_LT(longest, 500) << "milliseconds; some 10 on an idle machine";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Count() == "1 of 1"; }, kPatience));
    RecordProperty(expression ? "expression_ms" : "plain_ms", static_cast<int>(longest));
    Field().selectAll();
    Type("e");
    EXPECT_TRUE(Counts("More than 10,000"));
  }
}

}  // namespace
}  // namespace tessel::test
