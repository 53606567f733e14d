// However a text is edited, the colours that are kept up are those of a fresh pass.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <time.h>

#include <algorithm>
#include <string>
#include <vector>

#include "colouring/Colouring.h"
#include "colouring/LiveColours.h"
#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "support/BestSeconds.h"

namespace tessel {
namespace {

std::vector<Colour> ColoursOfAPass(const std::string& text) {
  ControlSet set;
  RichTextBox editor(set, "rtbCon");
  editor.SetText(text);
  ColorizeDocument(editor, [](const std::string&) {});
  std::vector<Colour> colours;
  for (Position at = 0; at < editor.Length(); ++at) {
    colours.push_back(editor.Store().ColourAt(at));
  }
  return colours;
}

std::vector<Colour> ColoursKept(const LiveColours& live, const std::string& text, Position begin,
                                Position end) {
  std::vector<Colour> colours;
  for (const char index : live.ColoursOf(text, begin, end)) {
    colours.push_back(LiveColours::Palette()[static_cast<unsigned char>(index)]);
  }
  return colours;
}

std::vector<Colour> ColoursKept(const LiveColours& live, const std::string& text) {
  return ColoursKept(live, text, 0, std::ssize(text));
}

// --- Properties

rc::Gen<std::string> AnyPiece() {
  return rc::gen::weightedOneOf<std::string>(
      {{10, rc::gen::element<std::string>("define", "definequote", "definevolumename",
                                          "defineskillname", "definelevelname", "definesound",
                                          "gamestartup", "music", "action", "actor", "ai", "enda",
                                          "ends", "move", "STATE", "UserActor", "x", "_", "7")},
       {8, rc::gen::element<std::string>("/", "*", "//", "/*", "*/", "/*/", "*//", "*/*")},
       {2, rc::gen::element<std::string>("definequote ", "definesound ", "music ")},
       {6, rc::gen::element<std::string>(" ", " ", "\t")},
       {6, rc::gen::element<std::string>("\r\n", "\n", "\r")},
       {2, rc::gen::map(rc::gen::inRange(0x80, 0x100),
                        [](int byte) { return std::string(1, static_cast<char>(byte)); })},
       {1, rc::gen::container<std::string>(1, rc::gen::arbitrary<char>())}});
}

std::string AnyText(int mostPieces) {
  const auto count = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, mostPieces + 1));
  std::string text;
  for (const auto& piece :
       *rc::gen::container<std::vector<std::string>>(static_cast<std::size_t>(count), AnyPiece())) {
    text += piece;
  }
  return text;
}

Position AnyChunkLength() { return *rc::gen::element<Position>(1, 2, 7, 7, 40, 4096); }

struct TextEdit {
  Position offset = 0;
  Position removed = 0;
  std::string inserted;
};

/// Anywhere, or where something begins or ends that counts: a line, a comment, the text.
Position AnyPlace(const std::string& text) {
  const Position length = std::ssize(text);
  const Position any = *rc::gen::inRange<Position>(0, length + 1);
  const auto marks = *rc::gen::element<std::string>("", "", "\r\n", "/*", "\n");
  const auto found = text.find_first_of(marks, static_cast<std::size_t>(any));
  if (found != text.npos) return static_cast<Position>(found) + *rc::gen::inRange<Position>(0, 2);
  return *rc::gen::element(any, length);
}

TextEdit AnyEdit(const std::string& text) {
  TextEdit edit;
  edit.offset = AnyPlace(text);
  const Position left = std::ssize(text) - edit.offset;
  const Position most = *rc::gen::element<Position>(0, 1, 1, 2, 12, left);
  edit.removed = std::min(*rc::gen::inRange<Position>(0, most + 1), left);
  edit.inserted = AnyText(*rc::gen::element(0, 0, 1, 1, 2, 12));
  return edit;
}

RC_GTEST_PROP(LiveColoursProperties, OfAWholeTextAreThoseOfAPass, ()) {
  const std::string text = AnyText(60);
  RC_LOG() << testing::PrintToString(text);
  RC_ASSERT(ColoursKept(LiveColours(text, AnyChunkLength()), text) == ColoursOfAPass(text));
}

RC_GTEST_PROP(LiveColoursProperties, AfterAnyEditsAreThoseOfAPass, ()) {
  std::string text = AnyText(60);
  LiveColours live(text, AnyChunkLength());
  std::vector<Colour> before = ColoursOfAPass(text);
  for (int i = *rc::gen::inRange(1, 200); i > 0; --i) {
    const TextEdit edit = AnyEdit(text);
    RC_LOG() << testing::PrintToString(text) << " at " << edit.offset << " -" << edit.removed
             << " +" << testing::PrintToString(edit.inserted) << "\n";
    text.replace(static_cast<std::size_t>(edit.offset), static_cast<std::size_t>(edit.removed),
                 edit.inserted);
    const Position from = live.Update(text, edit.offset, edit.removed, std::ssize(edit.inserted));
    const std::vector<Colour> after = ColoursOfAPass(text);
    RC_ASSERT(ColoursKept(live, text) == after);
    RC_ASSERT(from <= edit.offset);
    RC_ASSERT(std::equal(after.begin(), after.begin() + from, before.begin()));
    before = after;
  }
}

RC_GTEST_PROP(LiveColoursProperties, OfAPartAreThoseOfTheWhole, ()) {
  const std::string text = AnyText(60);
  const LiveColours live(text, AnyChunkLength());
  const Position begin = *rc::gen::inRange<Position>(0, std::ssize(text) + 1);
  const Position end = *rc::gen::inRange<Position>(begin, std::ssize(text) + 1);
  const std::vector<Colour> whole = ColoursOfAPass(text);
  RC_ASSERT(ColoursKept(live, text, begin, end) ==
            std::vector<Colour>(whole.begin() + begin, whole.begin() + end));
}

// As a person types it.
RC_GTEST_PROP(LiveColoursProperties, OfATextThatGrowsByteByByteAreThoseOfAPass, ()) {
  const std::string text = AnyText(25);
  const Position chunkLength = AnyChunkLength();
  std::string soFar;
  LiveColours live(soFar, chunkLength);
  for (const char c : text) {
    soFar += c;
    live.Update(soFar, std::ssize(soFar) - 1, 0, 1);
    RC_ASSERT(ColoursKept(live, soFar) == ColoursOfAPass(soFar));
  }
}

// --- The cases that the design turns on

class LiveColoursOf : public testing::Test {
 protected:
  void Start(const std::string& text) {
    text_ = text;
    live_ = LiveColours(text_, 7);
  }
  Position Edit(Position offset, Position removed, const std::string& inserted) {
    const std::vector<Colour> before = ColoursOfAPass(text_);
    text_.replace(static_cast<std::size_t>(offset), static_cast<std::size_t>(removed), inserted);
    const Position from = live_.Update(text_, offset, removed, std::ssize(inserted));
    const std::vector<Colour> after = ColoursOfAPass(text_);
    EXPECT_EQ(ColoursKept(live_, text_), after) << text_;
    EXPECT_TRUE(std::equal(after.begin(), after.begin() + from, before.begin())) << text_;
    return from;
  }

  std::string text_;
  LiveColours live_{""};
};

TEST_F(LiveColoursOf, ACommentThatIsOpenedAndClosedFarAbove) {
  Start("a\nb\nc\nd\ndefine\ne\nf\n*/ define\ndefine\n");
  Edit(0, 0, "/*");
  Edit(2, 0, "*/");
  Edit(0, 4, "");
}

TEST_F(LiveColoursOf, AWordThatDecidesAboutTheWholeText) {
  Start("definelevelname\nactor\n\nx\ny\nz\n");
  EXPECT_EQ(Edit(22, 0, "definequot"), 22 - 17);
  EXPECT_EQ(Edit(32, 0, "e"), 0);
  EXPECT_EQ(Edit(33, 0, " definesoun"), 33 - 17);
  EXPECT_EQ(Edit(44, 0, "d"), 0);
  EXPECT_EQ(Edit(45, 0, " definesound"), 45 - 17);
  EXPECT_EQ(Edit(45, 12, ""), 45 - 17);
  EXPECT_EQ(Edit(44, 1, ""), 0);
}

TEST_F(LiveColoursOf, EachWordThatAnEditBehindItMakesLonger) {
  for (const ColorWord& entry : kColorWords) {
    Start("definequote\n" + std::string(entry.word));
    const Position end = std::ssize(text_);
    Edit(end, 0, "x");
    Edit(end, 1, "");
  }
}

TEST_F(LiveColoursOf, MusicBeforeTheEndOfTheText) {
  Start("definequote\nx\ny\nmusic");
  Edit(21, 0, " ");
  Edit(22, 0, "\nz\n");
  Edit(22, 3, "");
  Edit(12, 4, "");
}

TEST_F(LiveColoursOf, ATextThatIsEmptiedAndFilled) {
  Start("");
  EXPECT_EQ(live_.ColoursOf(text_, 0, 0), "");
  Edit(0, 0, "define /* x\n\n\ny */\n");
  Edit(0, std::ssize(text_), "");
  Edit(0, 0, "actor");
}

// --- Speed: an edit costs a small part of a whole reading, both measured here as the best of
// several, on the same machine under the same load.

class LiveColoursSpeed : public testing::Test {
 protected:
  LiveColoursSpeed() {
    const std::string once = test::ReadDataFile("zmgame.dat") + test::ReadDataFile("zmuser.dat");
    while (text_.size() < 4'000'000) text_ += once;
  }

  /// Writing something at a part of the text, looking at what is around it, and taking it away
  /// again, beside a whole reading.
  void ExpectCheap(double part, const std::string& written) {
    const auto at = static_cast<std::size_t>(part * static_cast<double>(text_.size()));
    const std::string after = std::string(text_).insert(at, written);
    LiveColours live(text_);
    const auto offset = static_cast<Position>(at);
    const double whole = test::BestSecondsOf(3, [&] { live = LiveColours(text_); });
    const double edits = test::BestSecondsOf(5, [&] {
      live.Update(after, offset, 0, std::ssize(written));
      const Position end = std::min(offset + 4000, std::ssize(after));
      EXPECT_EQ(std::ssize(live.ColoursOf(after, offset, end)), end - offset);
      live.Update(text_, offset, std::ssize(written), 0);
    });
    constexpr double kPart = 20;
    EXPECT_LT(edits, whole / kPart) << written << " at " << part;
  }

  std::string text_;
};

TEST_F(LiveColoursSpeed, OfAnEditIsThatOfTheLinesAroundIt) {
  for (const double part : {0.0, 0.5, 1.0}) ExpectCheap(part, "x");
}

TEST_F(LiveColoursSpeed, OfOpeningACommentIsNotThatOfAllItSwallows) { ExpectCheap(0, "/* "); }

}  // namespace
}  // namespace tessel
