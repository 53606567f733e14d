// The problems below the text, in it and in the status bar.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "ScriptTest.h"
#include "host/problems/LiveCheck.h"
#include "host/problems/ProblemCount.h"
#include "host/problems/ProblemDock.h"
#include "host/problems/ProblemMarks.h"
#include "qt/editor/EditorSetUp.h"
#include "qt/looks/Contrast.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Sci = QsciScintillaBase;

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
  /// The text below which there is a line of that severity.
  std::string Underlined(check::Severity severity) {
    const int indicator = ProblemMarks::kIndicators[static_cast<int>(severity)];
    std::string marked;
    for (Position at = 0; at < Text().Length(); ++at) {
      const long on =
          View().SendScintilla(Sci::SCI_INDICATORVALUEAT, static_cast<unsigned long>(indicator),
                               View().mirror().PositionOf(at));
      if (on != 0) marked += Text().Bytes()[static_cast<std::size_t>(at)];
    }
    return marked;
  }
  bool Underlines(check::Severity severity, const std::string& text) {
    return QTest::qWaitFor([&] { return Underlined(severity) == text; }, kPatience);
  }
  QColor ColourOf(check::Severity severity) {
    const auto indicator =
        static_cast<unsigned long>(ProblemMarks::kIndicators[static_cast<int>(severity)]);
    const long bgr = View().SendScintilla(Sci::SCI_INDICGETFORE, indicator);
    return {static_cast<int>(bgr & 0xFF), static_cast<int>(bgr >> 8 & 0xFF),
            static_cast<int>(bgr >> 16 & 0xFF)};
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

TEST_F(ProblemsOf, AreUnderlinedInTheText) {
  Open(std::string(kStray));
  EXPECT_TRUE(Underlines(check::Severity::kError, "ends"));
  Text().SelectByHand(0, 0);
  QTest::keyClicks(&View(), "// ");
  EXPECT_EQ(Underlined(check::Severity::kError), "ends") << "the lines move with the text";
  Text().SelectByHand(Text().Length() - 6, 4);
  Press(Qt::Key_Delete);
  EXPECT_TRUE(Underlines(check::Severity::kError, ""));
}

TEST_F(ProblemsOf, AreUnderlinedInTheDocumentThatComesToTheFront) {
  Open(std::string(kStray), std::string("define C 1\r\n"));
  Toggle();
  ASSERT_TRUE(Lists(1));
  EXPECT_EQ(Underlined(check::Severity::kError), "");
  Select(0);
  EXPECT_TRUE(Underlines(check::Severity::kError, "ends"));
}

TEST_F(ProblemsOf, AreToldByATipAtTheirMarks) {
  Open(std::string(kStray));
  ASSERT_TRUE(Underlines(check::Severity::kError, "ends"));
  const auto at = static_cast<long>(View().mirror().PositionOf(14));
  const QPoint place(
      static_cast<int>(View().SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, at)) + 2,
      static_cast<int>(View().SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, at)) + 4);
  QHelpEvent help(QEvent::ToolTip, place, View().viewport()->mapToGlobal(place));
  QApplication::sendEvent(View().viewport(), &help);
  EXPECT_THAT(QToolTip::text().toStdString(), testing::StartsWith("Error: "));
}

TEST_F(ProblemsOf, HaveLinesThatCanBeSeenOnLightAndDark) {
  const QPalette before = QApplication::palette();
  for (const auto brightness : {Brightness::kLight, Brightness::kDark}) {
    QApplication::setPalette(PaletteOf(brightness));
    QTest::qWait(1);
    const EditorTheme theme = ThemeOfWidget(View());
    using enum check::Severity;
    for (const auto severity : {kNote, kWarning, kError}) {
      EXPECT_GE(ContrastOf(ColourOf(severity), theme.background), kSeenContrast);
      EXPECT_GE(ContrastOf(ColourOf(severity), theme.currentLine), kSeenContrast);
    }
    EXPECT_NE(ColourOf(kError), ColourOf(kWarning));
  }
  QApplication::setPalette(before);
}

TEST_F(ProblemsOf, AreUnderlinedInTheColourOfTheTextWhereContrastIsHigh) {
  const QPalette before = QApplication::palette();
  QPalette high = PaletteOf(Brightness::kDark);
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    high.setColor(group, QPalette::Base, Qt::black);
    high.setColor(group, QPalette::Window, Qt::black);
    high.setColor(group, QPalette::Text, Qt::yellow);
    high.setColor(group, QPalette::WindowText, Qt::yellow);
  }
  ASSERT_TRUE(IsHighContrast(high));
  QApplication::setPalette(high);
  QTest::qWait(1);
  EXPECT_EQ(ColourOf(check::Severity::kError), QColor(Qt::yellow));
  EXPECT_EQ(ColourOf(check::Severity::kNote), QColor(Qt::yellow));
  QApplication::setPalette(before);
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
  EXPECT_TRUE(Underlines(check::Severity::kError, ""));
  EXPECT_TRUE(check->isVisible());
  check->click();
  EXPECT_TRUE(Lists(1));
  EXPECT_TRUE(Underlines(check::Severity::kError, "ends"));
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

TEST(UnderlinedFor, IsTheFirstLineOfARange) {
  EXPECT_EQ(UnderlinedFor("ab\r\ncd", {1, 6}), (language::Range{1, 2}));
}

TEST(UnderlinedFor, IsAByteWhereSomethingIsMissing) {
  EXPECT_EQ(UnderlinedFor("abc", {1, 1}), (language::Range{1, 2}));
  EXPECT_EQ(UnderlinedFor("abc", {3, 3}), (language::Range{2, 3}));
  EXPECT_EQ(UnderlinedFor("abc\r\n\r\n", {7, 7}), (language::Range{2, 3}));
  EXPECT_EQ(UnderlinedFor("\r\n", {2, 2}).Length(), 0);
  EXPECT_EQ(UnderlinedFor("", {0, 0}).Length(), 0);
  EXPECT_EQ(UnderlinedFor("ab", {9, 12}), (language::Range{1, 2}));
}

}  // namespace
}  // namespace tessel::test
