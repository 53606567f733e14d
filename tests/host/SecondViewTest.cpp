// A second view of a document, beside the editor.
#include <QClipboard>
#include <QMimeData>
#include <QSplitter>
#include <QToolButton>

#include "ScriptTest.h"
#include "colouring/LiveColours.h"
#include "host/second/SecondView.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel::test {
namespace {

using Sci = QsciScintillaBase;

class SecondViews : public ScriptTest {
 protected:
  void SetUp() override {
    Shown().resize(1000, 700);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Shown()));
    View().setFocus();
  }
  SecondPane& Pane() { return *Shown().findChild<SecondPane*>(); }
  SecondText& Second() { return Pane().Text(); }
  std::string Title() { return Pane().findChild<QLabel*>("secondTitle")->text().toStdString(); }
  void ShowCurrent() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_F7); }
  std::vector<std::string> Listed() {
    QMenu& list = Shown().findChild<MainMenu*>()->SubMenu(WindowCommand::kSecondView);
    emit list.aboutToShow();
    std::vector<std::string> names;
    for (const QAction* action : list.actions()) {
      if (!action->isSeparator())
        names.push_back((action->isChecked() ? "* " : "") + action->text().toStdString());
    }
    return names;
  }
  void Choose(const QString& name) {
    QMenu& list = Shown().findChild<MainMenu*>()->SubMenu(WindowCommand::kSecondView);
    emit list.aboutToShow();
    for (QAction* action : list.actions()) {
      if (action->text() == name) return action->trigger();
    }
    FAIL() << name.toStdString();
  }
  std::string SecondsText() {
    QCoreApplication::processEvents();
    const long length = Second().SendScintilla(Sci::SCI_GETLENGTH);
    std::string utf8(static_cast<std::size_t>(length) + 1, '\0');
    Second().SendScintilla(Sci::SCI_GETTEXT, static_cast<uintptr_t>(length + 1), utf8.data());
    utf8.pop_back();
    return BytesOfUtf8(utf8).value_or("?");
  }
  /// The colour of each byte in sight, as it is painted, beside that of a fresh pass.
  void ExpectFreshColours(ScintillaView& first) {
    QCoreApplication::processEvents();
    Second().viewport()->grab();
    const std::string_view text = first.mirror().Model().Bytes();
    const long top = Second().TopLine();
    const long rows = Second().SendScintilla(Sci::SCI_LINESONSCREEN);
    const auto at = [&](long line) {
      const long lines = Second().SendScintilla(Sci::SCI_GETLINECOUNT);
      return line < lines ? Second().SendScintilla(Sci::SCI_POSITIONFROMLINE, line)
                          : Second().SendScintilla(Sci::SCI_GETLENGTH);
    };
    const Position start = first.mirror().OffsetOf(at(top));
    const Position end = first.mirror().OffsetOf(at(top + rows));
    const LiveColours fresh(text);
    const std::string indices = fresh.ColoursOf(text, start, end);
    for (Position offset = start; offset < end; ++offset) {
      const long position = first.mirror().PositionOf(offset);
      const auto style =
          static_cast<unsigned char>(Second().SendScintilla(Sci::SCI_GETSTYLEAT, position));
      const Colour wanted =
          LiveColours::Palette()[static_cast<unsigned char>(indices[offset - start])];
      ASSERT_EQ(first.mirror().ColourOfStyle(style), wanted) << "at " << offset;
      ASSERT_EQ(Second().SendScintilla(Sci::SCI_STYLEGETFORE, static_cast<unsigned long>(style)),
                first.SendScintilla(Sci::SCI_STYLEGETFORE, static_cast<unsigned long>(style)));
    }
  }
};

TEST_F(SecondViews, ShowTheDocumentInFrontAtTheirKey) {
  Open("define A 1\r\n");
  EXPECT_TRUE(Pane().isHidden());
  ShowCurrent();
  EXPECT_TRUE(Pane().isVisible());
  EXPECT_EQ(SecondsText(), "define A 1\r\n");
  EXPECT_EQ(Title(), "1.con (second view)");
  EXPECT_TRUE(View().hasFocus());
  EXPECT_GT(Pane().width(), 200);
}

TEST_F(SecondViews, HoldNoSecondCopyOfTheText) {
  Open("define A 1\r\n");
  ShowCurrent();
  EXPECT_EQ(Second().SendScintillaPtrResult(Sci::SCI_GETDOCPOINTER),
            View().SendScintillaPtrResult(Sci::SCI_GETDOCPOINTER));
}

TEST_F(SecondViews, FollowEveryKey) {
  Open("define A 1\r\n");
  ShowCurrent();
  QTest::keyClicks(&View(), "// ");
  EXPECT_EQ(Text().Text(), "// define A 1\r\n");
  EXPECT_EQ(SecondsText(), "// define A 1\r\n");
  ExpectFreshColours(View());
}

TEST_F(SecondViews, ShowAnyOpenDocumentOrNone) {
  Open("define A 1\r\n", "define B 1\r\n");
  EXPECT_EQ(Listed(), (std::vector<std::string>{"* &None", "1.con", "2.con"}));
  Choose("1.con");
  EXPECT_EQ(SecondsText(), "define A 1\r\n");
  EXPECT_EQ(Text().Text(), "define B 1\r\n");
  EXPECT_EQ(Listed(), (std::vector<std::string>{"&None", "* 1.con", "2.con"}));
  Choose("2.con");
  EXPECT_EQ(SecondsText(), "define B 1\r\n");
  Choose("&None");
  EXPECT_TRUE(Pane().isHidden());
}

TEST_F(SecondViews, FollowDocumentsThatAreNotInFront) {
  Open("define A 1\r\n", "define B 1\r\n");
  Choose("1.con");
  Run().Editor(0).SetSelText("/* ");
  EXPECT_EQ(SecondsText(), "/* define A 1\r\n");
  ExpectFreshColours(*qobject_cast<ScintillaView*>(Shown().Control().WidgetFor(Run().Editor(0))));
}

TEST_F(SecondViews, AreForReading) {
  Open("define A 1\r\n");
  ShowCurrent();
  Second().setFocus();
  const auto refuses = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
    Shown().statusBar()->clearMessage();
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&Second(), &event);
    EXPECT_EQ(Said(), "The second view is for reading. Type into the text beside it.") << key;
    EXPECT_EQ(Text().Text(), "define A 1\r\n") << key;
  };
  refuses(Qt::Key_X, Qt::NoModifier, "x");
  refuses(Qt::Key_Return, Qt::NoModifier, "\r");
  refuses(Qt::Key_Delete, Qt::NoModifier, "");
  refuses(Qt::Key_Backspace, Qt::NoModifier, "\b");
  refuses(Qt::Key_Backspace, Qt::ControlModifier, "");
  refuses(Qt::Key_V, Qt::ControlModifier, "\x16");
  refuses(Qt::Key_X, Qt::ControlModifier, "\x18");
  Shown().statusBar()->clearMessage();
  QTest::mouseClick(Second().viewport(), Qt::MiddleButton, {}, QPoint(60, 8));
  EXPECT_FALSE(Said().empty());
  EXPECT_EQ(Text().Text(), "define A 1\r\n");
}

TEST_F(SecondViews, DrawTheirTextAloneAndNoLayerOfTheEditors) {
  Open("define A 1\r\n\r\nplain\r\n");
  QTest::keyClicks(&View(), "x");
  QTest::qWait(300);  // the bar of the changed line
  ShowCurrent();
  Shown().Control().WidgetFor(Run().Controls().lstPlayers)->setFocus();
  const QColor ground = Second().palette().color(QPalette::Base);
  const QImage picture = Second().viewport()->grab().toImage();
  const auto height = static_cast<int>(Second().SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL));
  for (int line = 0; line < 3; ++line) {
    EXPECT_EQ(picture.pixelColor(picture.width() - 5, line * height + height / 2), ground) << line;
  }
}

TEST_F(SecondViews, LeaveTheEditorAsItIs) {
  Open("define A 1\r\n");
  ShowCurrent();
  Choose("&None");
  QTest::keyClicks(&View(), "x");
  EXPECT_EQ(Text().Text(), "xdefine A 1\r\n");
}

TEST_F(SecondViews, SelectTheTabWhenTheyGetTheFocus) {
  Open("define A 1\r\n", "define B 1\r\n");
  Choose("1.con");
  EXPECT_EQ(Current(), 1);
  QTest::mouseClick(Second().viewport(), Qt::LeftButton, {}, QPoint(60, 8));
  EXPECT_EQ(Current(), 0);
  EXPECT_TRUE(Second().hasFocus());
  QTest::keyClick(&Second(), Qt::Key_Escape);
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Current(), 0);
}

TEST_F(SecondViews, AreReachedAndLeftByTheirKey) {
  Open("define A 1\r\n");
  ShowCurrent();
  ShowCurrent();
  EXPECT_TRUE(Second().hasFocus());
  ShowCurrent();
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(SecondViews, ScrollAndSelectByThemselves) {
  std::string text;
  for (int line = 0; line < 500; ++line) text += "line\r\n";
  Open(text);
  ShowCurrent();
  Second().setFocus();
  QTest::keyClick(&Second(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_GT(Second().TopLine(), 300);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), 0);
  EXPECT_EQ(Text().SelStart(), 0);
}

TEST_F(SecondViews, KeepTheirPlaceWhenTheTextInFrontOfItGrows) {
  std::string text;
  for (int line = 0; line < 500; ++line) text += "line\r\n";
  Open(text);
  ShowCurrent();
  Second().ScrollTo(200);
  QTest::keyClick(&View(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Second().TopLine(), 201);
}

TEST_F(SecondViews, CopyByteForByte) {
  Open("a \x80 b\r\nc");
  ShowCurrent();
  Second().setFocus();
  QTest::keyClick(&Second(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Second(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* held = QGuiApplication::clipboard()->mimeData();
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(BytesOfMime(*held), "a \x80 b\r\nc");
  EXPECT_EQ(Text().SelLength(), 0) << "the editor's own selection stays";
}

TEST_F(SecondViews, ZoomByTheWheelAlone) {
  Open("define A 1\r\n");
  ShowCurrent();
  QWheelEvent wheel(QPointF(60, 8), Second().mapToGlobal(QPointF(60, 8)), {}, QPoint(0, 120),
                    Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Second().viewport(), &wheel);
  EXPECT_EQ(Second().SendScintilla(Sci::SCI_GETZOOM), 1);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETZOOM), 0);
}

TEST_F(SecondViews, FollowTheWishes) {
  Open("define A 1\r\n");
  ShowCurrent();
  Run().MenuItem("&Word Wrap")->trigger();
  EXPECT_EQ(Second().SendScintilla(Sci::SCI_GETWRAPMODE), Sci::SC_WRAP_WORD);
}

// --- What becomes of the document

TEST_F(SecondViews, GoWithTheirDocument) {
  Open("define A 1\r\n", "define B 1\r\n");
  Choose("1.con");
  Select(0);
  QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(Pane().isHidden());
  EXPECT_EQ(Text().Text(), "define B 1\r\n");
  EXPECT_EQ(SecondsText(), "");
  EXPECT_EQ(Listed(), (std::vector<std::string>{"* &None", "2.con"}));
}

TEST_F(SecondViews, GoWithTheirDocumentWhileTheyHaveTheFocus) {
  Open("define A 1\r\n");
  ShowCurrent();
  Second().setFocus();
  QTest::keyClick(&Second(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(Pane().isHidden());
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(SecondViews, StayWithTheirDocumentWhenOneInFrontOfItIsClosed) {
  Open("define A 1\r\n", "define B 1\r\n", "define C 1\r\n");
  Choose("3.con");
  Select(0);
  QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(SecondsText(), "define C 1\r\n");
  EXPECT_EQ(Title(), "3.con (second view)");
  Select(1);
  QTest::keyClicks(&View(), "x");
  EXPECT_EQ(SecondsText(), "xdefine C 1\r\n");
}

TEST_F(SecondViews, ShowTheNewName) {
  Open("define A 1\r\n");
  ShowCurrent();
  Run().fakes.fileDialogs.answers = {{{directory_ / "other.con"}}};
  Run().MenuItem("Save &As...")->trigger();
  EXPECT_EQ(Title(), "other.con (second view)");
}

TEST_F(SecondViews, AreClosedByTheirButton) {
  Open("define A 1\r\n");
  ShowCurrent();
  Pane().findChild<QToolButton*>()->click();
  EXPECT_TRUE(Pane().isHidden());
}

TEST_F(SecondViews, RememberTheirWidth) {
  Open("define A 1\r\n");
  ShowCurrent();
  auto* splitter = Shown().findChild<QSplitter*>();
  splitter->setSizes({650, 340});
  emit splitter->splitterMoved(650, 1);
  const int width = Pane().width();
  Choose("&None");
  ShowCurrent();
  EXPECT_EQ(Pane().width(), width);
}

// --- Colours

TEST_F(SecondViews, HaveLiveColoursFarFromTheEditorsPage) {
  std::string text;
  for (int line = 0; line < 100'000; ++line) text += "define A 1 // x\r\n";
  Open(text);
  ShowCurrent();
  Second().ScrollTo(90'000);
  ExpectFreshColours(View());
  for (const char* typed : {"/*", " x", "*/", "define"}) {
    QTest::keyClicks(&View(), typed);
    View().viewport()->grab();
    ExpectFreshColours(View());
  }
  EXPECT_LT(View().SendScintilla(Sci::SCI_GETENDSTYLED), 200'000)
      << "what nobody sees is not coloured";
}

TEST_F(SecondViews, HaveLiveColoursAfterAnyEdits) {
  std::string text;
  for (int line = 0; line < 3'000; ++line) text += "define A 1 // x\r\nstate b \"q\" /* c */\r\n";
  Open(text);
  ShowCurrent();
  const char* const pieces[] = {"/*", "*/", "\r\n", "define", "//", "", "\x80", "gamestartup"};
  unsigned random = 7;
  const auto next = [&random](unsigned below) {
    random = random * 1664525U + 1013904223U;
    return (random >> 8U) % below;
  };
  for (int round = 0; round < 60; ++round) {
    const auto length = static_cast<unsigned>(Text().Length());
    if (next(3) == 0) Second().ScrollTo(static_cast<long>(next(6'000)));
    if (next(3) == 0)
      View().SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, static_cast<long>(next(6'000)));
    View().ReplaceByHand(next(length), 0, pieces[next(std::size(pieces))]);
    if (next(2) == 0) View().viewport()->grab();
    ExpectFreshColours(View());
    if (HasFatalFailure()) return;
  }
}

TEST_F(SecondViews, HaveTheControlsColoursWhereLiveOnesAreOff) {
  Run().MenuItem("&Live Colours")->trigger();
  Open("define A 1\r\n");
  ShowCurrent();
  Text().Store().Paint(0, 6, 0x0000C8);
  Text().Change.Raise();
  QCoreApplication::processEvents();
  Second().viewport()->grab();
  const long style = Second().SendScintilla(Sci::SCI_GETSTYLEAT, 0L);
  EXPECT_EQ(View().mirror().ColourOfStyle(static_cast<int>(style)), 0x0000C8U);
}

}  // namespace
}  // namespace tessel::test
