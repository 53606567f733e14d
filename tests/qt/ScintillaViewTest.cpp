// What the model does can be seen in the widget, and what is typed arrives in the model.
#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <utility>

#include "base/RuntimeError.h"
#include "qt/ScintillaViewFixture.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/services/QtClipboard.h"
#include "tools/EditCommands.h"

namespace tessel {
namespace {

constexpr Colour kGreen = 0x008000;
constexpr Colour kRed = 0x0000C8;

using ScintillaViewShows = ScintillaViewFixture;

TEST_F(ScintillaViewShows, AllBytesAndReadsThemBack) {
  model.SetText(AllBytes());
  EXPECT_EQ(Displayed(), AllBytes());
  model.SetText("\r\r\n\n\r" + AllBytes() + AllBytes());
  EXPECT_EQ(Displayed(), "\r\r\n\n\r" + AllBytes() + AllBytes());
}

TEST_F(ScintillaViewShows, WindowsCharactersNotControlCharacters) {
  model.SetText("\x80\x93");
  const long size = view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
  std::string utf8(static_cast<std::size_t>(size) + 1, '\0');
  view.SendScintilla(QsciScintillaBase::SCI_GETTEXT, static_cast<unsigned long>(size + 1),
                     static_cast<void*>(utf8.data()));
  utf8.pop_back();
  EXPECT_EQ(utf8, "\u20AC\u201C");
}

TEST_F(ScintillaViewShows, ReplacementsAmongHighBytes) {
  model.SetText("\x80\x80 \xE4\xF6\xFC\r\n\x93quoted\x94\r\nplain");
  Select(3, 2);
  model.SetSelText("\x99x");
  EXPECT_EQ(Displayed(), model.Text());
  Select(6, 5);
  model.SetSelText("");
  EXPECT_EQ(Displayed(), model.Text());
  Select(model.Length(), 0);
  model.SetSelText("\xFF");
  EXPECT_EQ(Displayed(), model.Text());
}

TEST_F(ScintillaViewShows, TheSelectionAmongHighBytes) {
  model.SetText("\x80\x80 \xE4\xF6\xFC\r\n\x93quoted\x94\r\nplain");
  for (Position start = 0; start <= model.Length(); ++start) {
    Select(start, 3);
    EXPECT_EQ(screen.Selection(), Selected()) << start;
  }
}

TEST_F(ScintillaViewShows, ASelectionThatEndsInsideABreak) {
  model.SetText("ab\r\ncd");
  Select(1, 2);
  EXPECT_EQ(screen.Selection(), (std::pair<Position, Position>(1, 2)));
}

TEST_F(ScintillaViewShows, ColoursOfEveryCharacter) {
  model.SetText("\x80one two\r\n\xE4three");
  Select(1, 3);
  model.SetSelColor(kRed);
  Select(8, 4);
  model.SetSelColor(kGreen);
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
  EXPECT_EQ(screen.Colours().size(), 5U);
}

TEST_F(ScintillaViewShows, MoreColoursThanScintillaHasStylesWithoutHarm) {
  model.SetText(std::string(256, 'x'));
  for (Position i = 0; i < 255; ++i) {
    Select(i, 1);
    model.SetSelColor(static_cast<Colour>(i + 1));
  }
  const auto runs = screen.Colours();
  EXPECT_EQ(Displayed(), model.Text());
  EXPECT_EQ(runs[0].colour, 1U);
  EXPECT_EQ(runs[200].colour, 201U);
}

TEST_F(ScintillaViewShows, NoSelectionWithoutFocusWhenItIsHidden) {
  model.SetText("abc");
  model.SetHideSelection(true);
  EXPECT_TRUE(screen.SelectionShown());
  view.clearFocus();
  EXPECT_FALSE(screen.SelectionShown());
  model.SetHideSelection(false);
  EXPECT_TRUE(screen.SelectionShown());
}

TEST_F(ScintillaViewShows, ChangesMadeWhileParkedOnceItIsBack) {
  model.SetText("one two three");
  Park();
  Select(4, 3);
  model.SetSelText("\x80!!");
  Select(0, 3);
  model.SetSelColor(kRed);
  EXPECT_EQ(view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH), 13);  // not touched yet
  Unpark();
  EXPECT_EQ(view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH), 15);
  EXPECT_EQ(Displayed(), "one \x80!! three");
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
  EXPECT_EQ(screen.Selection(), Selected());
}

TEST_F(ScintillaViewShows, ColoursGivenWhileInvisible) {
  model.SetText("one\x80two");
  model.SetVisible(false);
  Select(2, 3);
  model.SetSelColor(kGreen);
  model.SetVisible(true);
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
}

TEST_F(ScintillaViewShows, ColoursWhereItDrawsAndTheRestWhenThatIsDrawn) {
  std::string text;
  for (int line = 0; line < 5000; ++line) text += "\xE4 line\r\n";
  model.SetText(text);
  Select(0, model.Length());
  Park();
  model.SetSelColor(kRed);
  model.SetSelStart(0);
  Unpark();
  view.viewport()->repaint();
  const auto size = view.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
  const auto styleAt = [&](long at) {
    return view.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, at);
  };
  EXPECT_NE(styleAt(0), 0);
  EXPECT_EQ(styleAt(size - 1), 0);
  model.SetSelStart(model.Length());
  view.viewport()->repaint();
  EXPECT_EQ(styleAt(size - 1), styleAt(0));
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
}

TEST_F(ScintillaViewShows, ColoursThatAHandlerGivesWhileAPersonTypes) {
  model.SetText("one two");
  view.viewport()->repaint();
  bool painted = false;
  const Subscription handler = model.Change.Connect([&] {
    if (std::exchange(painted, true)) return;
    view.viewport()->repaint();  // in the middle, while the widget is ahead of the model
    model.Store().Paint(0, 3, kRed);
    model.Change.Raise();
  });
  model.SetSelStart(7);
  screen.Type("x");
  view.viewport()->repaint();
  EXPECT_NE(view.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, 0L), 0);
  EXPECT_EQ(Displayed(), "one twox");
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
}

TEST_F(ScintillaViewShows, ASnapshotThatIsRestored) {
  model.SetText("first");
  const auto before = model.TakeSnapshot();
  model.SetText("second \x80");
  model.Restore(before);
  EXPECT_EQ(Displayed(), "first");
}

using ScintillaViewTyping = ScintillaViewFixture;

TEST_F(ScintillaViewTyping, EuroSignAndCurlyQuotesArriveAsTheirBytes) {
  screen.Type(QStringLiteral("a\u20AC\u201Cb\u201D\u0178"));
  EXPECT_EQ(model.Text(),
            "a\x80\x93"
            "b\x94\x9F");
  EXPECT_EQ(Displayed(), model.Text());
}

TEST_F(ScintillaViewTyping, AKeyWithAltGrArrives) {
  Press(Qt::Key_E, Qt::GroupSwitchModifier, QStringLiteral("\u20AC"));
  Press(Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("\u20AC"));
  EXPECT_EQ(model.Text(), "\x80\x80");
}

TEST_F(ScintillaViewTyping, ACharacterWithoutAByteIsRefusedAloud) {
  model.SetText("ab");
  screen.Type(QStringLiteral("x\u0416y"));
  EXPECT_EQ(model.Text(), "xyab");
  ASSERT_EQ(refusals.size(), 1);
  EXPECT_TRUE(refusals[0].contains("0416")) << refusals[0].toStdString();
}

TEST_F(ScintillaViewTyping, AnInputMethodsTextArrives) {
  QInputMethodEvent composing(QStringLiteral("\u00B4"), {});
  QApplication::sendEvent(&view, &composing);
  EXPECT_EQ(model.Text(), "");
  QInputMethodEvent done;
  done.setCommitString(QStringLiteral("\u00E9\u2026"));
  QApplication::sendEvent(&view, &done);
  EXPECT_EQ(model.Text(), "\xE9\x85");
  EXPECT_EQ(Displayed(), model.Text());
  QInputMethodEvent foreign;
  foreign.setCommitString(QStringLiteral("a\u6F22"));
  QApplication::sendEvent(&view, &foreign);
  EXPECT_EQ(model.Text(), "\xE9\x85");
  EXPECT_EQ(refusals.size(), 1);
}

TEST_F(ScintillaViewTyping, ReturnTakesTheBreakOfTheText) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "\r\n"},           {"one", "\r\n"},      {"one\r\ntwo\n", "\r\n"},
      {"one\ntwo\r\n", "\n"}, {"one\rtwo\n", "\r"}, {"one\r", "\r"}};
  for (const auto& [text, lineEnd] : cases) {
    model.SetText(text);
    Press(Qt::Key_Return, Qt::NoModifier, "\r");
    EXPECT_EQ(model.Text(), lineEnd + text);
    EXPECT_EQ(Displayed(), model.Text());
  }
}

TEST_F(ScintillaViewTyping, OverASelectionTakesTheColourOfItsFirstCharacter) {
  model.SetText("black red");
  Select(6, 3);
  model.SetSelColor(kRed);
  screen.Type("xy");
  EXPECT_EQ(model.Text(), "black xy");
  EXPECT_EQ(model.Store().ColourAt(6), kRed);
  EXPECT_EQ(model.Store().ColourAt(7), kRed);
  EXPECT_EQ(screen.Colours(), model.Store().Runs(0, model.Length()));
}

TEST_F(ScintillaViewTyping, ARunIsOneUndoStep) {
  for (const char c : std::string("typed")) {
    Press(Qt::Key_A, Qt::NoModifier, QString(QLatin1Char(c)));
  }
  Press(Qt::Key_Left);
  Press(Qt::Key_X, Qt::NoModifier, "x");
  EXPECT_EQ(Displayed(), "typexd");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), "typed");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), "");
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), "typed");
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Displayed(), "typexd");
  EXPECT_EQ(model.Text(), "typexd");
}

TEST_F(ScintillaViewTyping, TextOfADriverIsOneUndoStep) {
  model.SetText("old");
  screen.Type(QStringLiteral("a\r\nb\u0001c"));
  EXPECT_EQ(model.Text(), std::string("a\r\nb\x01"
                                      "cold"));
  model.Undo();
  EXPECT_EQ(Displayed(), "old");
}

TEST_F(ScintillaViewTyping, TextOfADriverArrivesAsItIs) {
  for (const char* before : {"", "x\r\n", "x\n", "x\r"}) {
    model.SetText(before);
    screen.Type(QStringLiteral("a\nb\rc\r\nd\te"));
    EXPECT_EQ(model.Text(), "a\nb\rc\r\nd\te" + std::string(before));
    EXPECT_EQ(Displayed(), model.Text());
  }
}

TEST_F(ScintillaViewTyping, EditingKeysWork) {
  model.SetText("one two\r\nthree \x80\x93");
  Press(Qt::Key_Delete);
  EXPECT_EQ(model.Text(), "ne two\r\nthree \x80\x93");
  Press(Qt::Key_End, Qt::ControlModifier);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(model.Text(), "ne two\r\nthree \x80");
  Press(Qt::Key_Home);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(model.Text(), "ne twothree \x80");
  Press(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_EQ(model.Text(), "ne two\tthree \x80");
  Press(Qt::Key_Backspace, Qt::ControlModifier);
  Press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), model.Text());
}

TEST_F(ScintillaViewTyping, ControlKeysInsertNothing) {
  model.SetText("abc");
  for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
    if (key == Qt::Key_D || key == Qt::Key_T || key == Qt::Key_V) continue;  // they edit
    model.SetSelStart(1);
    Press(key, Qt::ControlModifier, QString(QChar(key - Qt::Key_A + 1)));
  }
  EXPECT_EQ(model.Text(), "abc");
}

TEST_F(ScintillaViewTyping, InsertOvertypes) {
  model.SetText("abc");
  Press(Qt::Key_Insert);
  Press(Qt::Key_X, Qt::NoModifier, QStringLiteral("\u20AC"));
  Press(Qt::Key_Insert);
  EXPECT_EQ(model.Text(),
            "\x80"
            "bc");
  EXPECT_EQ(Displayed(), model.Text());
}

TEST_F(ScintillaViewTyping, SelectingReachesTheModelInBytes) {
  model.SetText("\x80\x80\x80 end");
  Press(Qt::Key_Right);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(1, 1)));
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(0, 7)));
  Press(Qt::Key_End);
  Press(Qt::Key_Left, Qt::ShiftModifier);
  Press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(5, 2)));
  Press(Qt::Key_Right, Qt::ShiftModifier);  // the moving end is still the left one
  EXPECT_EQ(Selected(), (std::pair<Position, Position>(6, 1)));
}

TEST_F(ScintillaViewTyping, AltAndShiftSelectNoRectangle) {
  model.SetText("one\r\ntwo\r\nthree");
  Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
  Press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(view.SendScintilla(QsciScintillaBase::SCI_SELECTIONISRECTANGLE), 0);
  screen.Type("x");
  EXPECT_EQ(Displayed(), model.Text());
}

TEST_F(ScintillaViewTyping, ChangeIsRaisedAndAHandlerMayEdit) {
  bool once = true;
  const auto subscription = model.Change.Connect([&] {
    if (!std::exchange(once, false)) return;
    model.SetSelStart(0);
    model.SetSelText("<\x80>");
  });
  screen.Type("a");
  EXPECT_EQ(model.Text(), "<\x80>a");
  EXPECT_EQ(Displayed(), model.Text());
  EXPECT_EQ(screen.Selection(), Selected());
}

using ScintillaViewClipboard = ScintillaViewFixture;

TEST_F(ScintillaViewClipboard, AllBytesGoRoundByKeys) {
  model.SetText(AllBytes());
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard.GetText(), AllBytes());
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), "");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), AllBytes());
  EXPECT_EQ(model.Text(), AllBytes());
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Displayed(), "");
}

TEST_F(ScintillaViewClipboard, NothingSelectedLeavesTheClipboardAlone) {
  clipboard.SetText("kept");
  model.SetText("abc");
  Press(Qt::Key_C, Qt::ControlModifier);
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(clipboard.GetText(), "kept");
  EXPECT_EQ(model.Text(), "abc");
}

TEST_F(ScintillaViewClipboard, PastingConvertsNoLineEnds) {
  model.SetText("one\r\n");
  clipboard.SetText("a\nb\rc\r\n");
  Press(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Displayed(), "a\nb\rc\r\none\r\n");
}

struct ScintillaViewSystemClipboard : testing::Test {
  ControlSet controls;
  RichTextBox model{controls, "rtbCon"};
  QtClipboard clipboard;
  ScintillaView view{model, clipboard};
};

TEST_F(ScintillaViewSystemClipboard, KeepsAllBytes) {
  clipboard.SetText(AllBytes());
  EXPECT_EQ(clipboard.GetText(), AllBytes());
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), "");
}

TEST_F(ScintillaViewSystemClipboard, Gives128MiBWhole) {
  std::string text;
  while (text.size() < std::size_t{128} << 20U) text += "define SOMETHING 100 // \x80\r\n";
  clipboard.SetText(text);
  Paste(model, clipboard);
  EXPECT_TRUE(model.Bytes() == text);
  clipboard.Clear();
}

TEST_F(ScintillaViewSystemClipboard, ShowsOtherProgramsTheCharacters) {
  clipboard.SetText("\x80\x93");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("\u20AC\u201C"));
}

TEST_F(ScintillaViewSystemClipboard, KeepsTheSelectionWhenThereIsAPictureAndNoText) {
  QApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
  model.SetText("kept");
  model.SetSelLength(4);
  EXPECT_THROW(Paste(model, clipboard), RuntimeError);
  EXPECT_EQ(model.Text(), "kept");
  EXPECT_EQ(model.SelLength(), 4);
  QApplication::clipboard()->clear();
  Paste(model, clipboard);
  EXPECT_EQ(model.Text(), "");
}

TEST_F(ScintillaViewSystemClipboard, KeepsTheSelectionWhenThereAreFilesOrAPageAndNoText) {
  model.SetText("kept");
  model.SetSelLength(4);
  for (const char* format : {"x-special/gnome-copied-files", "text/html", "application/x-other"}) {
    auto* data = new QMimeData;
    data->setData(format, "copy\nfile:///etc/passwd");
    QApplication::clipboard()->setMimeData(data);
    EXPECT_THROW(Paste(model, clipboard), RuntimeError) << format;
    EXPECT_EQ(model.Text(), "kept") << format;
  }
}

TEST_F(ScintillaViewSystemClipboard, TakesTheTextThatIsBesideAPage) {
  auto* data = new QMimeData;
  data->setHtml("<b>two</b>");
  data->setText("two\n");
  QApplication::clipboard()->setMimeData(data);
  Paste(model, clipboard);
  EXPECT_EQ(model.Text(), "two\n");
}

/// What a program offers that takes its time to say that it has nothing.
class SlowData : public QMimeData {
 public:
  SlowData(int milliseconds, int& questions)
      : milliseconds_(milliseconds), questions_(&questions) {}
  QStringList formats() const override {
    ++*questions_;
    QTest::qSleep(milliseconds_);
    return {};
  }

 private:
  int milliseconds_;
  int* questions_;
};

TEST_F(ScintillaViewSystemClipboard, AsksAProgramThatDoesNotAnswerOnce) {
  int questions = 0;
  QApplication::clipboard()->setMimeData(new SlowData(1100, questions));
  questions = 0;
  EXPECT_THROW(clipboard.GetText(), RuntimeError);
  EXPECT_EQ(questions, 1);
  QApplication::clipboard()->setMimeData(new SlowData(1, questions));
  EXPECT_EQ(clipboard.GetText(), "");
  QApplication::clipboard()->clear();
}

TEST_F(ScintillaViewSystemClipboard, RefusesAForeignTextWholeAndKeepsTheSelection) {
  QString refusal;
  QObject::connect(&view, &ScintillaView::textRefused, &view,
                   [&](const QString& why) { refusal = why; });
  QApplication::clipboard()->setText(QStringLiteral("a\u20AC\u0416b"));
  EXPECT_THROW(clipboard.GetText(), RuntimeError);
  model.SetText("kept");
  model.SetSelLength(4);
  QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
  QApplication::sendEvent(&view, &paste);
  EXPECT_EQ(model.Text(), "kept");
  EXPECT_TRUE(refusal.contains("0416"));
}

}  // namespace
}  // namespace tessel
