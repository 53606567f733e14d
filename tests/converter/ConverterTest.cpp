#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "RedText.h"
#include "base/RuntimeError.h"
#include "converter/Converter.h"
#include "converter/modConVersion.h"
#include "support/FakeServices.h"
#include "support/SelectionText.h"
#include "surface/DocumentList.h"

namespace tessel {
namespace {

using test::Marked;
using test::RedMarked;
using test::SetMarked;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const kAlreadyConverted = "This con appears to already be version 1.4/1.5 compatible.";
const char* const kNoUserCon = "This does not appear to be a user.con file.";
const std::string kUserCon =
    "definelevelname 0 0 A.map 01:00 02:00 ONE\r\ngamestartup FREEZERHURTOWNER\r\nmusic 1 "
    "a.mid\r\n";

/// Notes the pointer's shape while a box is open.
class WatchingMessageBox : public test::FakeMessageBox {
 public:
  explicit WatchingMessageBox(const ScreenPointer& pointer) : pointer_(pointer) {}

  PointerShape shape = PointerShape::kDefault;

  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override {
    shape = pointer_.Shape();
    return FakeMessageBox::Show(text, icon, title, buttons);
  }

 private:
  const ScreenPointer& pointer_;
};

class Converting : public testing::Test {
 protected:
  Converting() {
    controls_.tbsRtb.SetTabImage(1, kBlackDot);
    modified_ = Editor().Change.Connect([this] { documents_.At(Slot{0}).MarkModified(); });
  }

  RichTextBox& Editor() { return controls_.rtbCon[0]; }
  std::string Marker() const { return controls_.tbsRtb.At(1).image; }

  std::vector<StepResult> Convert() {
    return ConvertUserCon(documents_.CurrentEditor(), fakes_.pointer, fakes_.messages,
                          [this] { documents_.Current().MarkModified(); });
  }

  /// Puts a text in without marking the document.
  void Load(const std::string& marked) {
    SetMarked(Editor(), marked);
    controls_.tbsRtb.SetTabImage(1, kBlackDot);
  }

  void ExpectInSight() {
    EXPECT_TRUE(Editor().Visible());
    EXPECT_EQ(Editor().Left(), 0);
    EXPECT_EQ(fakes_.pointer.Shape(), PointerShape::kDefault);
  }

  void ExpectRefused(const std::string& marked, const std::string& message) {
    Load(marked);
    fakes_.messages.shown.clear();
    EXPECT_THAT(Convert(), IsEmpty());
    const test::FakeMessageBox::Shown wanted = {message, MessageIcon::kExclamation, "Zanth Manager",
                                                MessageButtons::kOk};
    ASSERT_EQ(fakes_.messages.shown.size(), 1u);
    EXPECT_EQ(fakes_.messages.shown[0], wanted);
    EXPECT_EQ(Editor().Text(), test::ReadSelection(marked).text);
    EXPECT_EQ(Editor().SelStart(), test::ReadSelection(marked).start);
    EXPECT_EQ(Editor().SelLength(), 0);
    EXPECT_EQ(Marker(), "BlackDot");
    ExpectInSight();
  }

  HostedControls controls_;
  DocumentList documents_{controls_};
  test::FakeServices fakes_;
  Subscription modified_;
};

TEST_F(Converting, RefusesAFileThatIsConvertedAlready) {
  ExpectRefused("definelevelname 0\r\ndefine QSIZE[] 64", kAlreadyConverted);
}

TEST_F(Converting, RefusesThatWhereverTheMarkStandsAndFirstOfAll) {
  ExpectRefused("[]// no xqsizex here", kAlreadyConverted);
}

TEST_F(Converting, RefusesAFileThatIsNoUserCon) { ExpectRefused("act[or] x", kNoUserCon); }

TEST_F(Converting, RefusesAnEmptyDocument) { ExpectRefused("[]", kNoUserCon); }

TEST_F(Converting, TakesTheMarkOfAUserConForAPlainPieceOfText) {
  Load("[]// xDefineLevelNames\r\ngamestartup FREEZERHURTOWNER\r\nmusic 1");
  EXPECT_EQ(std::ssize(Convert()), VersionEdits().back().step);
}

TEST_F(Converting, ShowsTheHourglassWithARefusal) {
  WatchingMessageBox messages(fakes_.pointer);
  ConvertUserCon(Editor(), fakes_.pointer, messages, [] {});
  EXPECT_EQ(messages.shape, PointerShape::kHourglass);
  ExpectInSight();
}

TEST_F(Converting, RewritesTheDocumentInRedAndMarksIt) {
  Load(kUserCon + "e[n]d");
  EXPECT_EQ(std::ssize(Convert()), VersionEdits().back().step);
  EXPECT_EQ(RedMarked(Editor()), "definelevelname 0 0 A.map 01:00 02:00 ONE\r\n{" +
                                     std::string(kGamestartupBlock) + "}\r\n{" +
                                     std::string(kMusic4Block) + "} a.mid\r\nend{\r\n" +
                                     std::string(NewSoundDefinitions()) + "}");
  EXPECT_EQ(Editor().SelStart(), 0);
  EXPECT_EQ(Editor().SelLength(), 0);
  EXPECT_EQ(Marker(), "RedDot");
  EXPECT_FALSE(Editor().CanUndo());
  EXPECT_FALSE(Editor().CanRedo());
  EXPECT_THAT(fakes_.messages.shown, IsEmpty());
  ExpectInSight();
}

TEST_F(Converting, WorksOutOfSight) {
  Load(kUserCon + "[]");
  int changes = 0;
  const Subscription watch = Editor().Change.Connect([&] {
    ++changes;
    EXPECT_FALSE(Editor().Visible());
    EXPECT_EQ(Editor().Left(), -20000);
    EXPECT_EQ(fakes_.pointer.Shape(), PointerShape::kHourglass);
    EXPECT_EQ(Marker(), "BlackDot");
  });
  Convert();
  EXPECT_GT(changes, 0);
}

TEST_F(Converting, KeepsTheColoursOfWhatItDoesNotWrite) {
  Load("[definelevelname]" + kUserCon);
  Editor().SetSelColor(0xC00000);
  Convert();
  EXPECT_EQ(Editor().Store().ColourAt(3), 0xC00000u);
  EXPECT_EQ(Editor().Store().ColourAt(Editor().Length() - 1), 0x0000FFu);
}

TEST_F(Converting, ConvertsTheCurrentDocument) {
  documents_.LoadNewEditor();
  documents_.AddDocumentTab("two.con");
  controls_.tbsRtb.Select(2);
  controls_.rtbCon[0].SetLeft(kParkedLeft);
  controls_.rtbCon[1].SetLeft(0);
  controls_.rtbCon[1].SetText(kUserCon);
  Convert();
  const std::string converted = controls_.rtbCon[1].Text();
  EXPECT_EQ(controls_.rtbCon[0].Text(), "");
  EXPECT_EQ(controls_.tbsRtb.At(2).image, "RedDot");
  EXPECT_EQ(Marker(), "BlackDot");

  controls_.tbsRtb.Select(1);
  controls_.rtbCon[1].SetLeft(kParkedLeft);
  controls_.rtbCon[0].SetLeft(0);
  controls_.rtbCon[0].SetText(kUserCon);
  Convert();
  EXPECT_THAT(converted, HasSubstr("RESPAWNITEMTIME"));
  EXPECT_EQ(controls_.rtbCon[0].Text(), converted);
}

TEST_F(Converting, RefusesASecondConversionOnceTheMarkIsWritten) {
  Load("[]define RESPAWNITEMTIME 768\r\n" + kUserCon);
  Convert();
  const std::string converted = Editor().Text();
  EXPECT_THAT(Convert(), IsEmpty());
  ASSERT_EQ(fakes_.messages.shown.size(), 1u);
  EXPECT_EQ(fakes_.messages.shown[0].text, kAlreadyConverted);
  EXPECT_EQ(Editor().Text(), converted);
}

/// Makes the document one with colours, a selection and something to undo and redo.
void GiveHistory(RichTextBox& editor) {
  editor.SetSelStart(20);
  editor.SetSelText("XX");
  editor.SetSelText("YY");
  editor.Undo();
  editor.SetSelStart(1);
  editor.SetSelLength(5);
  editor.SetSelColor(0xC00000);
}

TEST_F(Converting, LeavesTheDocumentAsItWasWhenItFails) {
  Load("[]definelevelname 0 0 A\r\n/* x */\r\ndefine MAXSHRINKERAMMO 1\r\nmusic 1\r\n");
  GiveHistory(Editor());
  controls_.tbsRtb.SetTabImage(1, kBlackDot);
  const std::string marked = Marked(Editor());
  const auto runs = Editor().Store().Runs(0, Editor().Length());

  try {
    Convert();
    FAIL() << "the start-up list is missing";
  } catch (const RuntimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr("\"gamestartup\""));
    ExpectInSight();
  }
  EXPECT_EQ(Marked(Editor()), marked);
  EXPECT_EQ(Editor().Store().Runs(0, Editor().Length()), runs);
  EXPECT_EQ(Marker(), "BlackDot");
  EXPECT_THAT(fakes_.messages.shown, IsEmpty());

  EXPECT_TRUE(Editor().CanRedo());
  Editor().Undo();
  EXPECT_EQ(Editor().Text(),
            "definelevelname 0 0 A\r\n/* x */\r\ndefine MAXSHRINKERAMMO 1\r\nmusic 1\r\n");
  EXPECT_FALSE(Editor().CanUndo());
}

TEST_F(Converting, LeavesAModifiedDocumentModifiedWhenItFails) {
  Load("[]definelevelname 0 0 A");
  Editor().SetSelText("x");
  EXPECT_THROW(Convert(), RuntimeError);
  EXPECT_EQ(Marker(), "RedDot");
}

RC_GTEST_PROP(ConversionProperties, AFailureLeavesTheDocumentAsItWas,
              (const std::vector<unsigned>& pieces)) {
  static const std::vector<std::string> kPieces = {"definelevelname 0 7",
                                                   "gamestartup",
                                                   "FREEZERHURTOWNER",
                                                   "music 1",
                                                   "\r\n",
                                                   "/*",
                                                   "define HBOMBTOUGH",
                                                   "music 0",
                                                   "0   0",
                                                   "definesound SQUISHED",
                                                   " ",
                                                   "\n"};
  HostedControls controls;
  test::FakeServices fakes;
  RichTextBox& editor = controls.rtbCon[0];
  std::string text = "definelevelname ";
  for (const unsigned piece : pieces) text += kPieces[piece % kPieces.size()] + " ";
  editor.SetText(text);
  try {
    ConvertUserCon(editor, fakes.pointer, fakes.messages, [] {});
    RC_TAG("converted");
    RC_ASSERT(editor.Text().ends_with("\r\n" + std::string(NewSoundDefinitions())));
  } catch (const RuntimeError&) {
    RC_TAG("failed");
    RC_ASSERT(editor.Text() == text);
    RC_ASSERT(!editor.CanUndo());
  }
  RC_ASSERT(editor.Left() == 0 && editor.Visible());
}

// --- The templates

std::string TemplateText(const std::string& name) {
  std::ifstream file(std::string(TESSEL_TEST_DATA_DIR) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(Converting, RefusesTheConvertedTemplate) {
  Editor().SetText(TemplateText("zmuser.dat"));
  Convert();
  EXPECT_THAT(Convert(), IsEmpty());
  ASSERT_EQ(fakes_.messages.shown.size(), 1u);
  EXPECT_EQ(fakes_.messages.shown[0].text, kAlreadyConverted);
}

TEST_F(Converting, RefusesTheTemplateOfTheNewerDialect) {
  Editor().SetText(TemplateText("zmuserp.dat"));
  Convert();
  ASSERT_EQ(fakes_.messages.shown.size(), 1u);
  EXPECT_EQ(fakes_.messages.shown[0].text, kAlreadyConverted);
}

}  // namespace
}  // namespace tessel
