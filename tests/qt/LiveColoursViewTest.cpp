// Live colours as the editor draws them: those of a fresh pass, whatever the model's are.
#include <gtest/gtest.h>
// needs the one above
#include <rapidcheck/gtest.h>

#include <QApplication>

#include "colouring/Colouring.h"
#include "qt/ScintillaViewFixture.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

std::vector<Colour> ColoursOfAFreshPass(const std::string& text) {
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  editor.SetText(text);
  ColorizeDocument(editor, [](const std::string&) {});
  std::vector<Colour> colours;
  colours.reserve(text.size());
  for (Position at = 0; at < editor.Length(); ++at) {
    colours.push_back(editor.Store().ColourAt(at));
  }
  return colours;
}

struct LiveView : ScintillaViewFixture {
  LiveView() { view.SetLiveColours(true); }
  void TestBody() override {}

  /// What the widget has drawn at an offset: nothing is asked to be coloured. For ASCII texts.
  Colour DrawnAt(Position offset) { return view.mirror().ColourOfStyle(StyleAt(offset)); }
  int StyleAt(Position offset) {
    return static_cast<unsigned char>(view.SendScintilla(Sci::SCI_GETSTYLEAT, offset));
  }
  long LineStart(long line) {
    return line < view.SendScintilla(Sci::SCI_GETLINECOUNT)
               ? view.SendScintilla(Sci::SCI_POSITIONFROMLINE, line)
               : view.SendScintilla(Sci::SCI_GETLENGTH);
  }
  std::vector<Colour> DrawnPage() {
    const long first = view.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE);
    pageStart = LineStart(first);
    const long end = LineStart(first + view.SendScintilla(Sci::SCI_LINESONSCREEN));
    std::vector<Colour> colours;
    for (long at = pageStart; at < end; ++at) colours.push_back(DrawnAt(at));
    return colours;
  }
  /// The page in sight is drawn as a fresh pass has it.
  bool PageIsRight() {
    const std::vector<Colour> drawn = DrawnPage();
    const std::vector<Colour> fresh = ColoursOfAFreshPass(model.Text());
    return !drawn.empty() && std::equal(drawn.begin(), drawn.end(), fresh.begin() + pageStart);
  }
  void Draw() { view.viewport()->repaint(); }
  void ShowLine(long line) { view.SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, line); }

  Position pageStart = 0;
};

/// Several hundred kilobytes, so that a page is far from the start.
std::string LargeText() {
  std::string text;
  while (text.size() < 300'000) {
    text += "define NAME 12 // what it is\nactor X /* one\ntwo */ state y\n\nends\n";
  }
  return text;
}

class LiveColoursOfAView : public testing::Test {
 protected:
  LiveView live_;
};

TEST_F(LiveColoursOfAView, AreDrawnInPlaceOfTheModels) {
  live_.model.SetText("define A 1 // x\nactor");
  const std::vector<ColourRun> runs = {
      {0, 6, 0x0000C8}, {6, 5, kBlack}, {11, 4, 0x008000}, {15, 1, kBlack}, {16, 5, 0x0000C8}};
  EXPECT_EQ(live_.screen.Colours(), runs);
  EXPECT_EQ(live_.model.Store().UniformColour(0, live_.model.Length()), kBlack);
}

TEST_F(LiveColoursOfAView, GiveWayToTheModelsWhenTheyAreSwitchedOff) {
  live_.model.SetText("define A");
  live_.Select(7, 1);
  live_.model.SetSelColor(0x123456);
  EXPECT_EQ(live_.screen.Colours().front().colour, 0x0000C8u);
  live_.view.SetLiveColours(false);
  const std::vector<ColourRun> models = {{0, 7, kBlack}, {7, 1, 0x123456}};
  EXPECT_EQ(live_.screen.Colours(), models);
  live_.view.SetLiveColours(true);
  EXPECT_EQ(live_.screen.Colours().front().colour, 0x0000C8u);
}

TEST_F(LiveColoursOfAView, ColourWhatIsTypedAtOnce) {
  live_.screen.Type("defin");
  live_.Draw();
  EXPECT_EQ(live_.DrawnAt(0), kBlack);
  live_.screen.Type("e");
  EXPECT_EQ(live_.DrawnAt(0), 0x0000C8u);
  EXPECT_EQ(live_.DrawnAt(5), 0x0000C8u);
  live_.screen.Type("d");
  EXPECT_EQ(live_.DrawnAt(0), kBlack);
}

TEST_F(LiveColoursOfAView, ReachThePageBelowAnOpenedCommentAtOnce) {
  live_.model.SetText("\n\n\n\ndefine A\n");
  live_.Draw();
  EXPECT_EQ(live_.DrawnAt(4), 0x0000C8u);
  live_.model.SetSelStart(0);
  live_.screen.Type("/*");
  EXPECT_EQ(live_.DrawnAt(6), 0x008000u);
  live_.Press(Qt::Key_Z, Qt::ControlModifier);
  live_.Draw();
  EXPECT_EQ(live_.DrawnAt(4), 0x0000C8u);
}

TEST_F(LiveColoursOfAView, ReachThePageBehindAnEditThatNobodySees) {
  live_.model.SetText(LargeText());
  live_.model.SetSelStart(live_.model.Length() - 1);
  live_.ShowLine(200);
  live_.Draw();
  EXPECT_TRUE(live_.PageIsRight());
  live_.model.EditByHand(0, 0, "/*");
  live_.model.EditByHand(15, 0, " /* ");
  live_.ShowLine(200);
  QApplication::processEvents();
  EXPECT_TRUE(live_.PageIsRight());
}

TEST_F(LiveColoursOfAView, AreNoPartOfTheModelsUndoAndRaiseNoChange) {
  live_.model.SetText("define");
  int changes = 0;
  const Subscription watch = live_.model.Change.Connect([&] { ++changes; });
  live_.view.SetLiveColours(false);
  live_.view.SetLiveColours(true);
  live_.Draw();
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(live_.model.CanUndo());
}

TEST_F(LiveColoursOfAView, AreThereAgainWhenAParkedEditorIsShown) {
  live_.model.SetText("define A");
  live_.Park();
  live_.model.SetText("actor /* x");
  live_.model.SetSelStart(5);
  live_.model.SetSelText(" enda");
  live_.Unpark();
  const std::vector<ColourRun> runs = {
      {0, 5, 0x0000C8}, {5, 1, kBlack}, {6, 4, 0x0000C8}, {10, 1, kBlack}, {11, 4, 0x008000}};
  EXPECT_EQ(live_.screen.Colours(), runs);
}

TEST_F(LiveColoursOfAView, OfALargeTextAreRightWhereverOneLooks) {
  live_.model.SetText(LargeText());
  for (const long line : {0, 19000, 10000, 9990, 9995, 3, 0, 18990}) {
    live_.ShowLine(line);
    live_.Draw();
    EXPECT_TRUE(live_.PageIsRight()) << line;
  }
}

TEST_F(LiveColoursOfAView, OfAFarPageDoNotWaitForAllThatIsInFrontOfIt) {
  live_.model.SetText(LargeText());
  live_.Draw();
  live_.ShowLine(15000);
  live_.Draw();
  EXPECT_TRUE(live_.PageIsRight());
  const Colour notYet = live_.DrawnAt(live_.LineStart(10000));
  EXPECT_EQ(notYet, kBlack);
  EXPECT_EQ(live_.model.Bytes().substr(live_.LineStart(10000), 6), "define");
}

TEST_F(LiveColoursOfAView, HoldInADocumentForReadingOnlyToo) {
  live_.model.SetText("define " + std::string(5000, 'x') + " /* y\nactor */\n");
  live_.view.SetReading(Reading{.why = "long", .shownOfLines = 20});
  live_.Draw();
  EXPECT_EQ(live_.DrawnAt(0), 0x0000C8u);
  EXPECT_EQ(live_.DrawnAt(7), kBlack);
  EXPECT_EQ(live_.DrawnAt(5014), 0x008000u);
  EXPECT_EQ(live_.StyleAt(40), int{Sci::STYLE_MAX});
}

TEST_F(LiveColoursOfAView, ArePaintedByTheThemeAsTheModelsAre) {
  live_.model.SetText("define");
  live_.Draw();
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, Qt::white);
  const auto painted = [&] {
    return live_.view.SendScintilla(Sci::SCI_STYLEGETFORE, long{live_.StyleAt(0)});
  };
  EXPECT_EQ(painted(), 0x0000C8);
  live_.view.setPalette(dark);
  const long live = painted();
  EXPECT_NE(live, 0x0000C8);
  live_.view.SetLiveColours(false);
  live_.Select(0, 6);
  live_.model.SetSelColor(0x0000C8);
  live_.Draw();
  EXPECT_EQ(painted(), live);
}

// --- A large text, edited and looked at anywhere

rc::Gen<std::string> SomeWords() {
  return rc::gen::element<std::string>("/*", "*/", "//", "/", "define ", "definequote ",
                                       "definesound ", "\n", "\r\n", "x", "", " actor ");
}

RC_GTEST_PROP(LiveColoursOfALargeText, AreThoseOfAFreshPassWhereverOneLooks, ()) {
  static const std::string text = LargeText();
  LiveView live;
  live.model.SetText(text);
  for (int i = *rc::gen::inRange(1, 15); i > 0; --i) {
    const auto place = *rc::gen::element(0, 1, 2, 50, 1000, 5000, 9999);
    const Position at = live.model.Length() * place / 10000;
    const auto words = *SomeWords();
    switch (*rc::gen::inRange(0, 4)) {
      case 0:
        live.ShowLine(live.view.SendScintilla(Sci::SCI_GETLINECOUNT) * place / 10000);
        break;
      case 1:
        live.model.EditByHand(at, std::min<Position>(3, live.model.Length() - at), words);
        break;
      case 2:
        live.model.SetSelStart(at);
        live.screen.Type(QString::fromStdString(words));
        break;
      default:
        live.Press(Qt::Key_Backspace);
    }
    if (*rc::gen::inRange(0, 3) == 0) continue;
    QApplication::processEvents();
    RC_ASSERT(live.PageIsRight());
  }
}

}  // namespace
}  // namespace tessel
