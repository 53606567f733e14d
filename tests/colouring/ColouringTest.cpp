#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "colouring/ColorWords.h"
#include "colouring/ColourCommand.h"
#include "colouring/Colouring.h"
#include "support/FakeServices.h"
#include "support/SelectionText.h"
#include "surface/Document.h"
#include "surface/HostedControls.h"

namespace tessel {
namespace {

using test::Marked;
using testing::ElementsAre;

char LetterOf(Colour colour) {
  switch (colour) {
    case kBlack:
      return '.';
    case 0x0000C8:
      return 'r';
    case 0x008000:
      return 'g';
    case 0xC00000:
      return 'b';
    default:
      return '?';
  }
}

/// The colours of a text, a letter for each character: . black, r red, g green, b blue.
std::string ColoursOf(const RichTextBox& editor) {
  std::string letters;
  for (Position at = 0; at < editor.Length(); ++at) {
    letters += LetterOf(editor.Store().ColourAt(at));
  }
  return letters;
}

class Colouring : public testing::Test {
 protected:
  void Colorize() {
    ColorizeDocument(editor_, [this](const std::string& text) { status_.push_back(text); });
  }
  std::string Coloured(const std::string& text) {
    editor_.SetTag("");
    editor_.SetText(text);
    Colorize();
    EXPECT_EQ(editor_.Text(), text);
    return ColoursOf(editor_);
  }

  ControlSet set_;
  RichTextBox editor_{set_, "rtbCon"};
  std::vector<std::string> status_;
};

TEST_F(Colouring, LeavesAnEmptyTextAndPlainWordsBlack) {
  EXPECT_EQ(Coloured(""), "");
  EXPECT_EQ(Coloured("name 12"), ".......");
}

TEST_F(Colouring, PaintsDefinitionsRedAndTheirCommentsGreen) {
  EXPECT_EQ(Coloured("define A 1 // define\r\ndefine B 2"), "rrrrrr.....ggggggggg..rrrrrr....");
}

TEST_F(Colouring, IgnoresCase) { EXPECT_EQ(Coloured("DeFiNe"), "rrrrrr"); }

TEST_F(Colouring, TakesWholeWordsOnly) {
  EXPECT_EQ(Coloured("defined predefine define_ define2 \xe4"
                     "define define"),
            std::string(42, '.') + "rrrrrr");
}

TEST_F(Colouring, PaintsEveryWordOfTheTableThatDefinitionsHave) {
  EXPECT_EQ(Coloured("gamestartup x"), "rrrrrrrrrrr..");
  EXPECT_EQ(Coloured("define x"), "rrrrrr..");
  EXPECT_EQ(Coloured("definequote x"), "rrrrrrrrrrr..");
  EXPECT_EQ(Coloured("definequote definevolumename"), "rrrrrrrrrrr.rrrrrrrrrrrrrrrr");
  EXPECT_EQ(Coloured("definequote defineskillname"), "rrrrrrrrrrr.rrrrrrrrrrrrrrr");
  EXPECT_EQ(Coloured("definequote definelevelname"), "rrrrrrrrrrr.bbbbbbbbbbbbbbb");
  EXPECT_EQ(Coloured("definequote definesound"), "rrrrrrrrrrr.rrrrrrrrrrr");
}

TEST_F(Colouring, PaintsEveryScriptWord) {
  EXPECT_EQ(Coloured("action actor ai enda ends move state useractor"),
            "rrrrrr.rrrrr.rr.rrrr.rrrr.rrrr.rrrrr.rrrrrrrrr");
}

TEST_F(Colouring, SkipsTheOtherDefinitionsWithoutDefinequote) {
  EXPECT_EQ(Coloured("definevolumename defineskillname"), "................................");
  EXPECT_EQ(Coloured("definelevelname definesound"), "...........................");
  EXPECT_EQ(Coloured("music "), "......");
}

TEST_F(Colouring, GoesOnWithTheScriptWordsWithoutDefinequote) {
  EXPECT_EQ(Coloured("definesound actor"), "............rrrrr");
}

TEST_F(Colouring, GoesOnWithTheScriptWordsWithoutDefinesound) {
  EXPECT_EQ(Coloured("definequote actor"), "rrrrrrrrrrr.rrrrr");
}

TEST_F(Colouring, LeavesTheScriptWordsBlackBesideDefinesound) {
  EXPECT_EQ(Coloured("definequote definesound action actor ai enda ends move state useractor"),
            "rrrrrrrrrrr.rrrrrrrrrrr...............................................");
}

// The words decide wherever they stand.
TEST_F(Colouring, IsSteeredByWordsInCommentsToo) {
  EXPECT_EQ(Coloured("//definequote\ndefinelevelname"), "ggggggggggggg.bbbbbbbbbbbbbbb");
  EXPECT_EQ(Coloured("//definequote definesound\nactor"), "ggggggggggggggggggggggggg......");
}

TEST_F(Colouring, EndsALineCommentInFrontOfAnyBreak) {
  EXPECT_EQ(Coloured("//a\r\nb"), "ggg...");
  EXPECT_EQ(Coloured("//a\nb"), "ggg..");
  EXPECT_EQ(Coloured("//a\rb"), "ggg..");
  EXPECT_EQ(Coloured("//"), "gg");
  EXPECT_EQ(Coloured("//\r\n//b\r\n"), "gg..ggg..");
  EXPECT_EQ(Coloured("//a\n//b"), "ggg.ggg");
}

TEST_F(Colouring, PaintsABlockCommentThroughItsEnd) {
  EXPECT_EQ(Coloured("x /* define\r\nends */\r\ndefine"), "..ggggggggggggggggggg.rrrrrr");
}

// The scan goes on at the closing slash, which takes the character after it along.
TEST_F(Colouring, TakesTheCharacterBehindABlockCommentAlong) {
  EXPECT_EQ(Coloured("/* a */ define"), "ggggggggrrrrrr");
  EXPECT_EQ(Coloured("/* a */define"), "gggggggg.....");
  EXPECT_EQ(Coloured("/* a */"), "ggggggg");
}

TEST_F(Colouring, ReadsTheClosingSlashAsTheStartOfTheNextComment) {
  EXPECT_EQ(Coloured("/**// b"), "ggggggg");
  EXPECT_EQ(Coloured("/**/* b */ c"), "ggggggggggg.");
}

TEST_F(Colouring, TakesASlashStarSlashForAWholeComment) {
  EXPECT_EQ(Coloured("/*/ a b"), "gggg...");
}

TEST_F(Colouring, PaintsAnUnterminatedBlockCommentToTheEndAndLeavesTheScan) {
  EXPECT_EQ(Coloured("define x /* a // b\r\ndefine"), "rrrrrr...ggggggggggggggggg");
  EXPECT_EQ(Coloured("/*"), "gg");
  EXPECT_EQ(Coloured("a/*"), ".gg");
}

TEST_F(Colouring, PaintsALoneSlashAndTheCharacterAfterIt) {
  EXPECT_EQ(Coloured("a / b"), "..gg.");
  EXPECT_EQ(Coloured("w/o"), ".gg");
  EXPECT_EQ(Coloured("a/"), ".g");
  EXPECT_EQ(Coloured("/\r\n"), "gg.");
}

TEST_F(Colouring, PaintsCommentsOverTheWordOfTheFirstEntry) {
  EXPECT_EQ(Coloured("// gamestartup\r\ngamestartup"), "gggggggggggggg..rrrrrrrrrrr");
}

TEST_F(Colouring, LeavesAWordAloneThatIsPartlyColoured) {
  EXPECT_EQ(Coloured("define /define"), "rrrrrr.gg.....");
}

TEST_F(Colouring, PaintsMusicOnlyWhereTheTextEndsOneBlankBehindIt) {
  EXPECT_EQ(Coloured("definequote music "), "rrrrrrrrrrr.rrrrrr");
  EXPECT_EQ(Coloured("definequote music"), "rrrrrrrrrrr......");
  EXPECT_EQ(Coloured("definequote music  "), "rrrrrrrrrrr........");
  EXPECT_EQ(Coloured("definequote music 1"), "rrrrrrrrrrr........");
  EXPECT_EQ(Coloured("definequote music\t"), "rrrrrrrrrrr.......");
  EXPECT_EQ(Coloured("definequote // music "), "rrrrrrrrrrr.ggggggggg");
  EXPECT_EQ(Coloured("definequote music music "), "rrrrrrrrrrr.......rrrrrr");
}

TEST_F(Colouring, LeavesTextOfOtherColoursAlone) {
  editor_.SetText("define define");
  editor_.SetSelStart(2);
  editor_.SetSelLength(1);
  editor_.SetSelColor(0x123456);
  Colorize();
  EXPECT_EQ(ColoursOf(editor_), "..?....rrrrrr");
}

TEST_F(Colouring, RemembersThePassInTheTagAndRefusesAnother) {
  editor_.SetText("define");
  Colorize();
  EXPECT_EQ(editor_.Tag(), "COLOR");
  editor_.SetText("actor");
  status_.clear();
  Colorize();
  EXPECT_EQ(ColoursOf(editor_), ".....");
  EXPECT_THAT(status_, ElementsAre());
}

TEST_F(Colouring, ColoursAPlainDocumentAgain) {
  editor_.SetTag("BW");
  editor_.SetText("define");
  Colorize();
  EXPECT_EQ(ColoursOf(editor_), "rrrrrr");
}

TEST_F(Colouring, TellsTheHostBeforeAndAfterThePass) {
  editor_.SetText("define");
  std::vector<std::string> colours;
  ColorizeDocument(editor_, [&](const std::string& text) {
    status_.push_back(text);
    colours.push_back(ColoursOf(editor_));
  });
  EXPECT_THAT(status_, ElementsAre("Colorizing, please wait...", "Zanth Manager Version 4.0"));
  EXPECT_THAT(colours, ElementsAre("......", "rrrrrr"));
}

TEST_F(Colouring, IsInItsModeBeforeTheFirstLineAndInItsPlaceBeforeTheLast) {
  editor_.SetText("define");
  editor_.SetLeft(120);
  editor_.SetSelStart(3);
  std::vector<std::string> states;
  ColorizeDocument(editor_, [&](const std::string&) {
    states.push_back(editor_.Tag() + (editor_.Visible() ? " visible " : " hidden ") +
                     std::to_string(static_cast<int>(editor_.Left())) + " " +
                     std::to_string(editor_.SelStart()));
  });
  EXPECT_THAT(states, ElementsAre("COLOR visible 120 3", "COLOR visible 0 0"));
}

TEST_F(Colouring, WorksOutOfSightAndPutsTheEditorBack) {
  editor_.SetText("define // x");
  editor_.SetLeft(120);
  editor_.SetSelStart(3);
  int changes = 0;
  const Subscription watch = editor_.Change.Connect([&] {
    ++changes;
    EXPECT_FALSE(editor_.Visible());
    EXPECT_EQ(editor_.Left(), -20000);
    EXPECT_TRUE(editor_.HideSelection());
  });
  Colorize();
  EXPECT_EQ(changes, 2);
  EXPECT_TRUE(editor_.Visible());
  EXPECT_EQ(editor_.Left(), 0);
  EXPECT_FALSE(editor_.HideSelection());
  EXPECT_EQ(Marked(editor_), "[]define // x");
}

TEST_F(Colouring, IsNoUndoStep) {
  Coloured("define // x");
  EXPECT_FALSE(editor_.CanUndo());
}

TEST_F(Colouring, SurvivesAllBytes) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
  const std::string letters = Coloured(text);
  EXPECT_EQ(letters[static_cast<std::size_t>('/')], 'g');
  EXPECT_EQ(letters[static_cast<std::size_t>('0')], 'g');
  EXPECT_EQ(letters[static_cast<std::size_t>('1')], '.');
}

// --- One word

TEST_F(Colouring, PaintsOneWordBlueWhereItIsBlack) {
  test::FakeMessageLoop loop;
  editor_.SetText("// actor\r\nactor factor ACTOR");
  ColorizeWord(editor_, "/", loop);
  EXPECT_EQ(loop.calls, 1);
  ColorizeWord(editor_, "actor", loop);
  EXPECT_EQ(ColoursOf(editor_), "gggggggg..bbbbb........bbbbb");
  EXPECT_EQ(loop.calls, 4);
}

TEST_F(Colouring, PaintsOneWordInSight) {
  test::FakeMessageLoop loop;
  editor_.SetText("a b");
  editor_.SetLeft(77);
  editor_.SetTag("BW");
  editor_.SetHideSelection(false);
  loop.meanwhile = [&] {
    EXPECT_TRUE(editor_.Visible());
    EXPECT_TRUE(editor_.HideSelection());
    EXPECT_EQ(Marked(editor_), "a [b]");
  };
  ColorizeWord(editor_, "b", loop);
  EXPECT_EQ(loop.calls, 1);
  EXPECT_FALSE(editor_.HideSelection());
  EXPECT_EQ(editor_.Left(), 77);
  EXPECT_EQ(editor_.Tag(), "BW");
}

TEST_F(Colouring, MovesOnlyTheCaretWhenTheOneWordIsMissing) {
  test::FakeMessageLoop loop;
  editor_.SetText("abc");
  editor_.SetSelStart(2);
  ColorizeWord(editor_, "x", loop);
  EXPECT_EQ(Marked(editor_), "[]abc");
  EXPECT_EQ(loop.calls, 0);
}

// --- The reset, and both on a document

TEST(ColourMode, LeavesTheModifiedMarkerAloneInBothDirections) {
  HostedControls controls;
  PlainScreenPointer pointer;
  std::vector<std::string> status;
  const StatusText collect = [&](const std::string& text) { status.push_back(text); };
  RichTextBox& editor = controls.rtbCon[0];
  editor.SetText("define // x");
  controls.tbsRtb.SetTabImage(1, kBlackDot);
  const Subscription watch =
      editor.Change.Connect([&] { Document(controls, Slot{0}).MarkModified(); });

  ApplyColourMode(true, editor, pointer, collect);
  EXPECT_EQ(ColoursOf(editor), "rrrrrr.gggg");
  EXPECT_EQ(editor.Tag(), "COLOR");
  EXPECT_EQ(controls.tbsRtb.At(1).image, "BlackDot");

  ApplyColourMode(false, editor, pointer, collect);
  EXPECT_EQ(ColoursOf(editor), "...........");
  EXPECT_EQ(editor.Tag(), "BW");
  EXPECT_EQ(Marked(editor), "[]define // x");
  EXPECT_EQ(controls.tbsRtb.At(1).image, "BlackDot");
  EXPECT_EQ(editor.Left(), 0);
  EXPECT_TRUE(editor.Visible());
  EXPECT_EQ(pointer.Shape(), PointerShape::kDefault);
  EXPECT_EQ(status.size(), 2u);
}

// --- Properties

std::string ScriptLikeText(const std::vector<unsigned>& pieces) {
  static const std::vector<std::string> kPieces = {
      "/",     "*",      "//",          "/*",          "*/",          "\r\n", "\n",
      " ",     "define", "definequote", "definesound", "gamestartup", "ai",   "x1",
      "music", "state",  "actor",       "music ",      "\xe9",        "_",    "definelevelname"};
  std::string text;
  for (const unsigned piece : pieces) text += kPieces[piece % kPieces.size()];
  return text;
}

RC_GTEST_PROP(ColouringProperties, NeverChangesTheText, (const std::vector<unsigned>& pieces)) {
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  const std::string text = ScriptLikeText(pieces);
  editor.SetText(text);
  ColorizeDocument(editor, [](const std::string&) {});
  RC_ASSERT(editor.Text() == text);
  RC_ASSERT(editor.SelStart() == 0 && editor.SelLength() == 0);
}

RC_GTEST_PROP(ColouringProperties, PaintsEveryLineCommentOutsideBlocks,
              (const std::vector<unsigned>& pieces)) {
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  editor.SetText(ScriptLikeText(pieces));
  ColorizeDocument(editor, [](const std::string&) {});
  const std::string colours = ColoursOf(editor);
  const std::string text = editor.Text();
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '/') RC_ASSERT(colours[at] == 'g');
  }
  RC_ASSERT(colours.find('?') == colours.npos);
}

RC_GTEST_PROP(ColouringProperties, ResettingGivesBlack, (const std::vector<unsigned>& pieces)) {
  HostedControls controls;
  PlainScreenPointer pointer;
  const StatusText ignore = [](const std::string&) {};
  controls.rtbCon[0].SetText(ScriptLikeText(pieces));
  ApplyColourMode(true, controls.rtbCon[0], pointer, ignore);
  ApplyColourMode(false, controls.rtbCon[0], pointer, ignore);
  const std::string colours = ColoursOf(controls.rtbCon[0]);
  RC_ASSERT(colours == std::string(colours.size(), '.'));
}

}  // namespace
}  // namespace tessel
