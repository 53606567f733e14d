// The marks of the block at the caret.
#include <gtest/gtest.h>

#include "ScriptTest.h"
#include "host/script/BlockMarks.h"

namespace tessel::test {
namespace {

class BlockMarking : public ScriptTest {
 protected:
  long Shows(int indicator, long position) {
    return View().SendScintilla(QsciScintillaBase::SCI_INDICATORVALUEAT,
                                static_cast<unsigned long>(indicator), position);
  }
  /// The text with "[" and "]" around pairs, "<" and ">" around what is alone.
  std::string Marked() {
    std::string marked;
    const std::string text = Text().Text();
    bool pair = false;
    bool alone = false;
    for (Position at = 0; at <= std::ssize(text); ++at) {
      const long place = View().mirror().PositionOf(at);
      const bool inText = at < std::ssize(text);
      const bool isPair = inText && Shows(BlockMarks::kPair, place) != 0;
      const bool isAlone = inText && Shows(BlockMarks::kAlone, place) != 0;
      if (isPair != pair) marked += isPair ? "[" : "]";
      if (isAlone != alone) marked += isAlone ? "<" : ">";
      pair = isPair;
      alone = isAlone;
      if (inText) marked += text[static_cast<std::size_t>(at)];
    }
    return marked;
  }
  bool Comes(const std::string& marked) {
    return QTest::qWaitFor([&] { return Marked() == marked; }, 5000);
  }
};

TEST_F(BlockMarking, ShowsABraceAndItsPartner) {
  Open("state \xE9 { { x } } ends");
  PutCaretBehind("\xE9 ");
  EXPECT_TRUE(Comes("state \xE9 [{] { x } [}] ends")) << Marked();
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  EXPECT_TRUE(Comes("state \xE9 { [{] x [}] } ends")) << Marked();
  Press(Qt::Key_End);
  EXPECT_TRUE(Comes("[state] \xE9 { { x } } [ends]")) << Marked();
}

TEST_F(BlockMarking, ShowsWhatHasNoPartnerInAnotherWay) {
  Open("actor A { enda");
  PutCaretBehind("actor A {");
  EXPECT_TRUE(Comes("actor A <{> enda")) << Marked();
}

TEST_F(BlockMarking, FollowsWhatIsTyped) {
  Open("actor A { enda");
  PutCaretBehind("{");
  ASSERT_TRUE(Comes("actor A <{> enda")) << Marked();
  QTest::keyClicks(&View(), " }");
  EXPECT_TRUE(Comes("actor A [{] [}] enda")) << Marked();
  Press(Qt::Key_Backspace);
  EXPECT_TRUE(Comes("actor A {  enda")) << Marked();
}

TEST_F(BlockMarking, EndsWhereTheCaretLeaves) {
  Open("{ } x");
  ASSERT_TRUE(Comes("[{] [}] x")) << Marked();
  Press(Qt::Key_End);
  EXPECT_TRUE(Comes("{ } x")) << Marked();
  EXPECT_FALSE(Documents().Current().Modified());
}

TEST_F(BlockMarking, ShowsAnotherDocumentsBlocks) {
  Open("{ }", "x");
  Select(0);
  EXPECT_TRUE(Comes("[{] [}]")) << Marked();
}

TEST_F(BlockMarking, PaintsBothWaysInAnyLight) {
  Open("actor A { } enda");
  PutCaretBehind("actor A {");
  ASSERT_TRUE(Comes("actor A [{] [}] enda"));
  const auto colourOf = [&](int indicator) {
    return View().SendScintilla(QsciScintillaBase::SCI_INDICGETFORE,
                                static_cast<unsigned long>(indicator));
  };
  EXPECT_NE(colourOf(BlockMarks::kPair), colourOf(BlockMarks::kAlone));
}

}  // namespace
}  // namespace tessel::test
