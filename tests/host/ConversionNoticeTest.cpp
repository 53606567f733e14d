// A conversion can be taken back, whoever asked for it.
#include <QLabel>

#include "HostFixture.h"
#include "host/ConversionNotice.h"

namespace tessel::test {
namespace {

class Conversion : public HostTest {
 protected:
  Conversion() { Run().window->OpenFiles({user_}); }

  ucTessel& Tessel() { return Run().window->Control().Tessel(); }
  RichTextBox& Editor() { return Run().Editor(0); }
  ConversionNotice& Notice() { return *Run().window->findChild<ConversionNotice*>(); }
  bool Offered() { return Notice().isVisible(); }
  void Convert() {
    ASSERT_TRUE(Tessel().Convert());
    ASSERT_NE(Editor().Text(), text_);
  }
  void Undo() { ASSERT_TRUE(Run().Press<ConversionNotice>("&Undo Convert")); }

  std::string text_ = BytesOf(std::string(TESSEL_TEST_DATA_DIR) + "/zmuser.dat");
  std::string user_ = directory_.Put("user.con", text_);
};

TEST_F(Conversion, OffersTheTextFromBeforeAndStillLeavesNothingToUndo) {
  EXPECT_FALSE(Offered());
  Convert();
  EXPECT_TRUE(Offered());
  EXPECT_TRUE(Notice().findChild<QLabel*>()->text().startsWith("user.con has been converted."));
  EXPECT_FALSE(Editor().CanUndo());
}

TEST_F(Conversion, IsOfferedAlsoAfterTheButton) {
  Run().Controls().tbToolBar.Press("Convert");
  EXPECT_TRUE(Offered());
}

TEST_F(Conversion, IsTakenBackAsOneEditWithColoursAndCaret) {
  const auto colours = Editor().Store().Runs(0, Editor().Length());
  ASSERT_GT(colours.size(), 10U);
  Editor().SelectByHand(40, 0);
  Convert();
  const std::string converted = Editor().Text();
  Undo();
  EXPECT_EQ(Editor().Text(), text_);
  EXPECT_TRUE(Editor().Store().Runs(0, Editor().Length()) == colours);
  EXPECT_EQ(Editor().SelStart(), 40);
  EXPECT_FALSE(Offered());
  EXPECT_EQ(Run().Tabs().At(1).image, kRedDot);
  Editor().Undo();
  EXPECT_EQ(Editor().Text(), converted);
  EXPECT_FALSE(Editor().CanUndo());
  Editor().Redo();
  EXPECT_EQ(Editor().Text(), text_);
}

TEST_F(Conversion, IsTakenBackAfterASaveToo) {
  Convert();
  Run().SaveInPlace();
  Undo();
  EXPECT_EQ(Editor().Text(), text_);
  EXPECT_NE(BytesOf(user_), text_);
}

TEST_F(Conversion, IsNotOfferedOnceTheTextIsChanged) {
  Convert();
  Editor().Type("x");
  EXPECT_FALSE(Offered());
}

TEST_F(Conversion, IsStillOfferedAfterTheColoursChanged) {
  Convert();
  Run().Controls().tbToolBar.Press("Colorize");
  EXPECT_TRUE(Offered());
}

TEST_F(Conversion, IsNotOfferedOnceItIsToStay) {
  Convert();
  ASSERT_TRUE(Run().Press<ConversionNotice>("Keep Co&nverted"));
  EXPECT_FALSE(Offered());
}

TEST_F(Conversion, IsNotOfferedWhenItWasRefused) {
  Convert();
  Undo();
  Editor().SelectByHand(0, 0);
  Editor().Type("// QSIZE\r\n");
  Tessel().Convert();
  EXPECT_FALSE(Offered());
}

TEST_F(Conversion, IsOfferedForItsDocumentOnly) {
  Run().window->OpenFiles({directory_.Put("other.con", "define A 1\r\n")});
  Run().Tabs().Select(1);
  Convert();
  Run().Tabs().Select(2);
  EXPECT_FALSE(Offered());
  Run().Tabs().Select(1);
  EXPECT_TRUE(Offered());
}

TEST_F(Conversion, MovesWithItsDocument) {
  Run().window->OpenFiles({directory_.Put("other.con", text_)});
  Tessel().Convert();
  Run().Tabs().Select(1);
  Run().Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Run().Tabs().Count(), 1);
  EXPECT_TRUE(Offered());
  Undo();
  EXPECT_EQ(Editor().Text(), text_);
}

TEST_F(Conversion, IsGoneWithItsDocument) {
  Convert();
  Tessel().ReloadDocument();
  EXPECT_FALSE(Offered());
}

}  // namespace
}  // namespace tessel::test
