// Replacing from the find bar: what comes there, one undo step, colours, several documents.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>

#include "HostFixture.h"
#include "base/RuntimeError.h"
#include "host/changes/ChangeLine.h"
#include "host/find/FindBar.h"
#include "host/find/ReplaceMatches.h"
#include "qt/editor/ScintillaView.h"
#include "support/SelectionText.h"

namespace tessel::test {
namespace {

constexpr FindChoices kByExpression{.regularExpression = true};

// --- The text that comes there

std::string Replaced(const QString& wanted, const QString& by, const std::string& text) {
  const SearchPattern pattern(wanted, kByExpression);
  SearchedText searched(text);
  const auto match = pattern.FirstIn(searched, 0, searched.Length());
  const Replacement replacement(by, pattern.Groups(), "\r\n");
  return replacement.For(text, pattern.GroupsOf(searched, *match));
}

QString RefusalOfReplacement(const QString& by, int groups = 1) {
  return Replacement(by, groups, "\n").Problem();
}

TEST(FindReplacement, NamesGroupsInBothWays) {
  EXPECT_EQ(Replaced("(a+)(b)", "\\2-$1-\\0-$0-${1}0", "aab"), "b-aa-aab-aab-aa0");
  EXPECT_EQ(Replaced("(a)(x)?", "<\\2>", "a"), "<>") << "a group that takes no part is empty";
}

TEST(FindReplacement, WritesTheLineBreakOfTheDocument) {
  EXPECT_EQ(Replaced("a", "1\\n2\\r\\n3\\r4\\t5", "a"), "1\r\n2\r\n3\r\n4\t5");
}

TEST(FindReplacement, WritesASignThatIsDoubledAsItself) {
  EXPECT_EQ(Replaced("a", "\\\\n $$1 $x", "a"), "\\n $1 $x");
}

TEST(FindReplacement, IsAsItStandsForAPlainText) {
  EXPECT_EQ(Replacement("\\1 $1 \\n").For("", {}), "\\1 $1 \\n");
}

TEST(FindReplacement, SaysWhatItCannotUse) {
  EXPECT_EQ(RefusalOfReplacement("\\2"), "The expression has no group 2.");
  EXPECT_EQ(RefusalOfReplacement("${12}", 11), "The expression has no group 12.");
  EXPECT_EQ(RefusalOfReplacement("\\q"),
            "\"\\q\" means nothing in a replacement. For a \"\\\" write \"\\\\\".");
  EXPECT_EQ(RefusalOfReplacement("\\"),
            "\"\\\" means nothing in a replacement. For a \"\\\" write \"\\\\\".");
  const QString refusal =
      "The character \"\u4e2d\" (U+4e2d) cannot be stored in a CON file. Nothing was inserted.";
  EXPECT_EQ(RefusalOfReplacement(QString::fromUtf8("a\u4e2d")), refusal);
  EXPECT_EQ(Replacement(QString::fromUtf8("a\u4e2d")).Problem(), refusal);
}

TEST(FindReplacement, MakesNoTextThatTheEditorCannotShow) {
  const SearchPattern pattern("a", kByExpression);
  const std::string text = "a-a-a";
  SearchedText searched(text);
  const std::vector<TextMatch> matches = {{0, 1}, {2, 1}, {4, 1}};
  const Replacement replacement("$0$0", pattern.Groups(), "\n");
  EXPECT_EQ(ChangesOf(pattern, searched, matches, replacement, 8).size(), 3U);
  EXPECT_THROW(ChangesOf(pattern, searched, matches, replacement, 7), RuntimeError);
}

// --- The edit

class Fields {
 public:
  ControlSet set;
  RichTextBox joined{set, "joined"};
  RichTextBox single{set, "single"};
};

RC_GTEST_PROP(FindReplace, ManyChangesAreThoseOfEachOnItsOwnAndOneStep, ()) {
  const auto text = *rc::gen::container<std::string>(rc::gen::element('a', 'b', 'c', '\n'));
  const auto inserted = *rc::gen::container<std::string>(rc::gen::element('a', 'x'));
  const auto colours = *rc::gen::container<std::vector<int>>(text.size(), rc::gen::inRange(0, 3));
  const auto wanted = *rc::gen::element<std::string>("a", "ab", "^", "a*", "b?");
  Fields fields;
  for (RichTextBox* editor : {&fields.joined, &fields.single}) {
    editor->SetText(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
      editor->Store().Paint(static_cast<Position>(i), 1, static_cast<Colour>(colours[i]));
    }
  }
  const SearchPattern pattern(QString::fromStdString(wanted), kByExpression);
  SearchedText searched(fields.joined.Bytes());
  MatchScan scan(pattern, searched, {0, searched.Length()}, 1000);
  scan.Work(QDeadlineTimer(QDeadlineTimer::Forever));
  const Replacement replacement(QString::fromStdString(inserted));
  const auto changes = ChangesOf(pattern, searched, scan.Matches(), replacement);

  Position grown = 0;
  for (const TextChange& change : changes) {
    fields.single.EditByHand(change.at + grown, change.length, change.inserted);
    grown += std::ssize(change.inserted) - change.length;
  }
  MakeChanges(fields.joined, changes);
  RC_ASSERT(fields.joined.Text() == fields.single.Text());
  const Position length = fields.joined.Length();
  RC_ASSERT(fields.joined.Store().Runs(0, length) == fields.single.Store().Runs(0, length));
  if (changes.empty() || !fields.joined.CanUndo()) return;
  fields.joined.Undo();
  RC_ASSERT(fields.joined.Text() == text);
  RC_ASSERT(!fields.joined.CanUndo());
}

TEST(FindReplace, VeryManyChangesInALargeColouredTextAreMadeAtOnce) {
  ControlSet set;
  RichTextBox editor(set, "editor");
  std::string text;
  while (text.size() < 4'000'000) text += "define A 1\r\n";
  editor.SetText(text);
  for (Position at = 0; at < editor.Length(); at += 12) editor.Store().Paint(at, 6, 0xFF);
  const SearchPattern pattern("define", {});
  SearchedText searched(editor.Bytes());
  MatchScan scan(pattern, searched, {0, searched.Length()}, 1'000'000);
  scan.Work(QDeadlineTimer(QDeadlineTimer::Forever));
  ASSERT_GT(scan.Matches().size(), 300'000U);
  QElapsedTimer clock;
  clock.start();
  MakeChanges(editor, ChangesOf(pattern, searched, scan.Matches(), Replacement("state")));
  EXPECT_LT(clock.elapsed(), 20'000);
  EXPECT_EQ(editor.Bytes().substr(0, 22), "state A 1\r\nstate A 1\r\n");
  EXPECT_EQ(editor.Store().Runs(0, 22),
            (std::vector<ColourRun>{{0, 5, 0xFF}, {5, 6, kBlack}, {11, 5, 0xFF}, {16, 6, kBlack}}));
  editor.Undo();
  EXPECT_EQ(editor.Bytes(), text);
}

TEST(FindReplace, TheCaretStaysWithTheTextAroundIt) {
  ControlSet set;
  RichTextBox editor(set, "editor");
  editor.SetText("aa b[ aa");
  editor.SelectByHand(4, 0);
  MakeChanges(editor, {{0, 2, "long"}, {6, 2, ""}});
  EXPECT_EQ(editor.Text(), "long b[ ");
  EXPECT_EQ(editor.SelStart(), 6);
}

// --- The bar

class FindReplaceKeys : public HostTest {
 protected:
  FindReplaceKeys() { Start(); }
  void Start() {
    Window().resize(1000, 700);
    QApplication::setActiveWindow(&Window());
    QCoreApplication::processEvents();
    Window().Control().CurrentEditorView()->setFocus();
  }
  MainWindow& Window() { return *Run().window; }
  FindBar& Bar() { return *Window().findChild<FindBar*>(); }
  RichTextBox& Editor() { return Window().Control().Tessel().OpenDocuments().CurrentEditor(); }
  void Given(const std::string& marked) { SetMarked(Editor(), marked); }
  std::string Shown() { return Marked(Editor()); }
  std::string Told() { return Window().findChild<ChangeLine*>()->Sentence().toStdString(); }
  std::string Said() { return Window().statusBar()->currentMessage().toStdString(); }
  static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
  }
  static void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    QCoreApplication::processEvents();
  }
  QLineEdit& By() { return *Bar().findChild<QLineEdit*>("replacement"); }
  void Click(const QString& caption) {
    for (auto* button : Bar().findChildren<QAbstractButton*>()) {
      const bool called = PlainCaption(button->text()) == caption;
      if (called || button->accessibleName() == caption) return button->click();
    }
    FAIL() << caption.toStdString();
  }
  /// Opens the bar and fills both fields; the focus is in the second one.
  void Replace(const QString& wanted, const QString& by, bool expression = false) {
    Press(Qt::Key_R, Qt::ControlModifier);
    if (expression) Click("Regular expression");
    Bar().findChild<FindField*>()->setFocus();
    Bar().findChild<FindField*>()->lineEdit()->selectAll();
    Type(wanted);
    Press(Qt::Key_Tab);
    ASSERT_TRUE(By().hasFocus());
    By().selectAll();
    Type(by);
  }
};

TEST_F(FindReplaceKeys, ReplacesOneAndGoesOn) {
  Given("[]one two one two one");
  Replace("one", "1");
  EXPECT_EQ(Shown(), "[one] two one two one");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(), "1 two [one] two one");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(), "1 two 1 two [one]");
  Press(Qt::Key_Return);
  EXPECT_EQ(Editor().Text(), "1 two 1 two 1");
  Press(Qt::Key_Return);
  EXPECT_EQ(Editor().Text(), "1 two 1 two 1");
  EXPECT_TRUE(By().hasFocus());
  Editor().Undo();
  EXPECT_EQ(Editor().Text(), "1 two 1 two one") << "each is an edit of its own";
}

TEST_F(FindReplaceKeys, OnlyGoesThereWhileNoMatchIsSelected) {
  Given("[]one two one");
  Replace("one", "1");
  Editor().SelectByHand(4, 0);
  Click("Replace");
  EXPECT_EQ(Shown(), "one two [one]");
}

TEST_F(FindReplaceKeys, SaysThatItWentOnFromTheTop) {
  Given("one [] one");
  Replace("one", "1");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(), "[one]  1");
  EXPECT_EQ(Said(), "The search went on from the top.");
}

TEST_F(FindReplaceKeys, ReplacesAnEmptyMatchOnce) {
  Given("[]a\r\nb\r\nc");
  Replace("^", "// ", true);
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Return);
  EXPECT_EQ(Editor().Text(), "// a\r\n// b\r\n// c");
}

TEST_F(FindReplaceKeys, ReplacesAllInOneStep) {
  Given("one two one []two one");
  Replace("one", "three");
  Click("Replace All");
  EXPECT_EQ(Editor().Text(), "three two three two three");
  EXPECT_EQ(Told(), "3 replaced");
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot) << "the document counts as modified";
  Editor().Undo();
  EXPECT_EQ(Editor().Text(), "one two one two one");
  EXPECT_FALSE(Editor().CanUndo());
  Click("Replace All");
  Editor().SetText("nothing");
  Click("Replace All");
  EXPECT_EQ(Said(), "Nothing was found to replace.");
}

TEST_F(FindReplaceKeys, TheViewShowsWhatWasReplaced) {
  Given("[]one \xe4 one\r\none");
  Replace("one", "1");
  Click("Replace All");
  ScintillaView& view = *Window().Control().CurrentEditorView();
  const long length = view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
  EXPECT_EQ(length, std::ssize(std::string("1 \xc3\xa4 1\r\n1")));
}

TEST_F(FindReplaceKeys, ReplacesByGroups) {
  Given("[]define A 1\r\ndefine B 2");
  Replace("define (\\w+) (\\d)", "\\2=$1", true);
  Click("Replace All");
  EXPECT_EQ(Editor().Text(), "1=A\r\n2=B");
}

TEST_F(FindReplaceKeys, ReplacesInTheSelectionOnly) {
  Given("one\r\n[one one\r\none ]one");
  Replace("one", "1");
  Click("Replace All");
  EXPECT_EQ(Editor().Text(), "one\r\n1 1\r\n1 one");
  EXPECT_EQ(Told(), "3 replaced");
  Click("Replace All");
  EXPECT_EQ(Said(), "Nothing was found to replace.") << "the selection has moved with the text";
  Click("Selection only");
  Click("Replace All");
  EXPECT_EQ(Editor().Text(), "1\r\n1 1\r\n1 1");
}

TEST_F(FindReplaceKeys, StepsInTheSelectionOnly) {
  Given("a[ a\r\na] a");
  Replace("a", "b");
  for (int i = 0; i < 5; ++i) Press(Qt::Key_Return);
  EXPECT_EQ(Editor().Text(), "a b\r\nb a");
}

TEST_F(FindReplaceKeys, SaysThatNothingIsSelected) {
  Given("a[] a");
  Replace("x", "b");
  Click("Selection only");
  EXPECT_EQ(Said(), "Nothing is selected.");
  Click("Selection only");
  EXPECT_EQ(Said(), "Nothing is selected.") << "it has not stayed checked";
}

TEST_F(FindReplaceKeys, ReplacesInAllDocuments) {
  Window().OpenFiles({directory_.Put("a.con", "one one"), directory_.Put("b.con", "two"),
                      directory_.Put("c.con", "one two")});
  Run().Tabs().Select(2);
  std::vector<int> shown;
  const auto subscription = Window().Control().Tessel().OpenDocuments().Shown.Connect(
      [&](const Document& document) { shown.push_back(Index(document.Place())); });
  Replace("one", "1");
  Click("In All Documents");
  EXPECT_EQ(Run().Editor(0).Text(), "1 1");
  EXPECT_EQ(Run().Editor(1).Text(), "two");
  EXPECT_EQ(Run().Editor(2).Text(), "1 two");
  EXPECT_EQ(Told(), "3 replaced in 2 documents");
  EXPECT_EQ(shown, (std::vector<int>{0, 2, 1})) << "the first one is in front again";
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  EXPECT_NE(Run().Tabs().At(2).image, kRedDot);
  EXPECT_EQ(Run().Tabs().At(3).image, kRedDot);
  for (const int slot : {0, 2}) {
    Run().Editor(slot).Undo();
    EXPECT_FALSE(Run().Editor(slot).CanUndo());
  }
  EXPECT_EQ(Run().Editor(0).Text(), "one one");
}

TEST_F(FindReplaceKeys, RefusesADocumentThatIsForReading) {
  const std::string longLine = "one " + std::string(200'000, 'x');
  Window().OpenFiles({directory_.Put("a.con", "one"), directory_.Put("long.con", longLine)});
  const std::string sentence = "long.con is open for reading: a line of " +
                               QLocale().toString(qlonglong{200'004}).toStdString() +
                               " bytes is too long for keys.";
  Replace("one", "1");
  Press(Qt::Key_Return);
  EXPECT_EQ(Said(), sentence);
  Click("Replace All");
  EXPECT_EQ(Said(), sentence);
  EXPECT_EQ(Editor().Text(), longLine);
  Click("In All Documents");
  EXPECT_EQ(Told(), "1 replaced");
  EXPECT_EQ(Said(), sentence);
  EXPECT_EQ(Run().Editor(0).Text(), "1");
  EXPECT_EQ(Editor().Text(), longLine);
}

TEST_F(FindReplaceKeys, RefusesTextThatNoDocumentCanHold) {
  Given("[]one one");
  Replace("one", "");
  By().setText(QString::fromUtf8("\u4e2d"));
  for (const char* button : {"Replace", "Replace All", "In All Documents"}) {
    Window().statusBar()->clearMessage();
    Click(button);
    EXPECT_EQ(Said(),
              "The character \"\u4e2d\" (U+4e2d) cannot be stored in a CON file. Nothing was "
              "inserted.");
    EXPECT_EQ(Editor().Text(), "one one");
  }
}

}  // namespace
}  // namespace tessel::test
