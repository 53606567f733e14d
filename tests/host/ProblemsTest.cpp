// The problems below the text and in the status bar.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScriptTest.h"
#include "host/problems/LiveCheck.h"
#include "host/problems/ProblemCount.h"
#include "host/problems/ProblemDock.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kOpen = "define A 1\r\n/* never closed\r\n";
constexpr const char* kStray = "define B 1\r\nends\r\n";

class ProblemsOf : public ScriptTest {
 protected:
  ProblemDock& Dock() { return *Shown().findChild<ProblemDock*>(); }
  QTreeView& List() { return *Dock().findChild<QTreeView*>(); }
  void Toggle() { Press(Qt::Key_F5); }

  std::string Cell(int row, int column) {
    return List().model()->index(row, column).data().toString().toStdString();
  }
  /// "FILE:LINE RULE" of each row.
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 0; row < List().model()->rowCount(); ++row) {
      rows.push_back(Cell(row, ProblemModel::kFile) + ":" + Cell(row, ProblemModel::kLine) + " " +
                     Cell(row, ProblemModel::kRule));
    }
    return rows;
  }
  bool Lists(int count) {
    return QTest::qWaitFor([&] { return List().model()->rowCount() == count; }, kPatience);
  }
  QPoint PlaceOf(int row, int column) {
    return List().visualRect(List().model()->index(row, column)).center();
  }
  template <class Button>
  Button* Captioned(const QString& begin) {
    for (auto* button : Dock().findChildren<Button*>()) {
      if (PlainCaption(button->text()).startsWith(begin)) return button;
    }
    return nullptr;
  }
  QToolButton& Count() { return *Shown().findChild<ProblemCount*>()->findChild<QToolButton*>(); }
  std::string Counted() { return Count().accessibleName().toStdString(); }
};

TEST_F(ProblemsOf, AreHiddenUntilTheyAreWanted) {
  EXPECT_TRUE(Dock().isHidden());
  Toggle();
  EXPECT_TRUE(Dock().isVisible());
  EXPECT_TRUE(List().hasFocus());
  QTest::keyClick(&List(), Qt::Key_F5);
  EXPECT_TRUE(Dock().isHidden());
}

TEST_F(ProblemsOf, AllDocumentsAreListedWithFileAndLine) {
  Open(std::string(kOpen), std::string(kStray));
  Toggle();
  ASSERT_TRUE(Lists(2));
  EXPECT_THAT(Rows(), ElementsAre("1.con:2 open-comment", "2.con:2 stray-closer"));
  EXPECT_EQ(Counted(), "2 problems");
}

TEST_F(ProblemsOf, LeadToTheirPlacesByKeysAndByTheMouse) {
  Open(std::string(kOpen), std::string(kStray));
  Toggle();
  ASSERT_TRUE(Lists(2));
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(0, ProblemModel::kText));
  EXPECT_EQ(Current(), 1) << "a single click chooses only";
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(0, ProblemModel::kText));
  EXPECT_EQ(Current(), 0);
  EXPECT_EQ(Text().SelStart(), 12);
  EXPECT_TRUE(View().hasFocus());
  List().setFocus();
  List().setCurrentIndex(List().model()->index(1, 0));
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Text().SelStart(), 12);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Current(), 0);
}

TEST_F(ProblemsOf, AreLeftByEscape) {
  Toggle();
  QTest::keyClick(&List(), Qt::Key_Escape);
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(ProblemsOf, AreFilteredBySeverity) {
  Open(std::string(kOpen));
  Toggle();
  ASSERT_TRUE(Lists(1));
  auto* errors = Captioned<QToolButton>("Errors");
  ASSERT_NE(errors, nullptr);
  EXPECT_EQ(PlainCaption(errors->text()), "Errors (1)");
  errors->click();
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_EQ(Counted(), "1 problem");
  errors->click();
  EXPECT_EQ(Rows().size(), 1U);
}

TEST_F(ProblemsOf, AFixIsOneClickAndOneStepOfUndo) {
  Open(std::string(kOpen));
  Toggle();
  ASSERT_TRUE(Lists(1));
  EXPECT_EQ(Cell(0, ProblemModel::kFix), "close the comment");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(0, ProblemModel::kFix));
  const std::string fixed = Text().Text();
  EXPECT_THAT(fixed, testing::HasSubstr("*/"));
  EXPECT_TRUE(Documents().Current().Modified());
  ASSERT_TRUE(Lists(0));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), kOpen);
  EXPECT_TRUE(Lists(1));
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), fixed);
}

TEST_F(ProblemsOf, AFixGoesToItsDocument) {
  Open(std::string("define A 1\r\n"), std::string("define A 1\r\n"), std::string("define C 1\r\n"));
  Toggle();
  ASSERT_TRUE(Lists(1));
  List().setCurrentIndex(List().model()->index(0, 0));
  auto* fix = Captioned<QPushButton>("Fix");
  ASSERT_TRUE(fix != nullptr && fix->isEnabled());
  fix->click();
  EXPECT_EQ(Current(), 1);
  EXPECT_EQ(Text().Text(), "");
  EXPECT_TRUE(Lists(0));
}

TEST_F(ProblemsOf, AFixOfATextThatHasChangedIsRefused) {
  Open(std::string(kOpen));
  Toggle();
  ASSERT_TRUE(Lists(1));
  Text().Type("// ");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(0, ProblemModel::kFix));
  EXPECT_EQ(Text().Text(), std::string("// ") + kOpen);
  EXPECT_EQ(Said(), "The text has changed since it was checked; nothing is fixed.");
}

TEST_F(ProblemsOf, AClickThatIsNoFixChangesNothing) {
  Open(std::string(kStray));
  Toggle();
  ASSERT_TRUE(Lists(1));
  ASSERT_EQ(Cell(0, ProblemModel::kFix), "");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(0, ProblemModel::kFix));
  EXPECT_FALSE(Captioned<QPushButton>("Fix")->isEnabled());
  EXPECT_EQ(Text().Text(), kStray);
}

TEST_F(ProblemsOf, AreCountedInTheStatusBarAsLongAsThereAreAny) {
  EXPECT_FALSE(Count().isVisible());
  Open(std::string(kOpen));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Count().isVisible(); }, kPatience));
  EXPECT_EQ(Counted(), "1 problem");
  Count().click();
  EXPECT_TRUE(Dock().isVisible());
  EXPECT_TRUE(List().hasFocus());
  Text().SetText("define A 1\r\n");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Count().isVisible(); }, kPatience));
}

TEST_F(ProblemsOf, GoWithTheirDocument) {
  Open(std::string(kOpen), std::string(kStray));
  Toggle();
  ASSERT_TRUE(Lists(2));
  Run().SaveInPlace();
  Run().Controls().mnuRtbPopup.Choose("mnuRtbPopupFileClose");
  EXPECT_THAT(Rows(), ElementsAre("1.con:2 open-comment"));
}

TEST_F(ProblemsOf, AreNotSoughtForAUserWhoDoesNotWantThat) {
  Open(std::string(kStray));
  Toggle();
  ASSERT_TRUE(Lists(1));
  auto* check = Captioned<QPushButton>("Check Now");
  EXPECT_FALSE(check->isVisible());
  Shown().Wishes().Set(Wish::kLiveCheck, 0);
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_TRUE(check->isVisible());
  check->click();
  EXPECT_TRUE(Lists(1));
}

TEST_F(ProblemsOf, LongTextsAreCheckedWhenAsked) {
  std::string text = kStray;
  while (std::ssize(text) <= LiveCheck::kMostBytes) text += "// " + std::string(100, 'x') + "\r\n";
  Open(text);
  Toggle();
  auto* check = Captioned<QPushButton>("Check Now");
  ASSERT_TRUE(QTest::qWaitFor([&] { return check->isVisible(); }, kPatience));
  EXPECT_THAT(Rows(), IsEmpty());
  check->click();
  EXPECT_TRUE(Lists(1));
}

TEST_F(ProblemsOf, PaneIsRemembered) {
  Toggle();
  CloseAndStartAgain();
  EXPECT_TRUE(Dock().isHidden());
  Shown().RestoreLook();
  EXPECT_TRUE(Dock().isVisible());
  EXPECT_FALSE(List().hasFocus());
  Dock().close();
  CloseAndStartAgain();
  Shown().RestoreLook();
  EXPECT_TRUE(Dock().isHidden());
}

}  // namespace
}  // namespace tessel::test
