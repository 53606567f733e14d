// Characters that a CON file cannot hold are refused by every box.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/TesselWidgetFixture.h"
#include "tools/frmFind.h"
#include "words/frmAddParam.h"

namespace tessel::test {
namespace {

const QString kCyrillic = QString(QChar(0x0416));
const QString kEuro = QString(QChar(0x20AC));

// A key of a keyboard for another script.
void TypeOne(QWidget* box, const QString& character) {
  QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, character, Qt::NoModifier);
}

using Refusal = TesselWidgetTest;

TEST_F(Refusal, LeavesATextBoxAsItIs) {
  Controls().tbsCon.Select(kFunctionsPage + 1);
  auto* box = WidgetFor<QLineEdit>(Controls().txtSearch);
  QTest::keyClicks(box, "state");
  TypeOne(box, kCyrillic);
  EXPECT_EQ(box->text(), "state");
  EXPECT_EQ(Controls().txtSearch.Text(), "state");
}

TEST_F(Refusal, TakesNoPartOfAPastedText) {
  Controls().tbsCon.Select(kFunctionsPage + 1);
  auto* box = WidgetFor<QLineEdit>(Controls().txtSearch);
  box->insert("a" + kCyrillic);
  EXPECT_EQ(box->text(), "");
  EXPECT_EQ(Controls().txtSearch.Text(), "");
}

TEST_F(Refusal, LeavesAValueBoxAndTheDocumentAsTheyAre) {
  Open("user.con", "define MAXPLAYERHEALTH 100\r\n");
  Controls().lstPlayers.Pick(0);
  auto* box = WidgetFor<QComboBox>(Controls().cmbweap[0])->lineEdit();
  TypeOne(box, kCyrillic);
  EXPECT_EQ(Controls().cmbweap[0].Text(), "100");
  EXPECT_EQ(Editor().Text(), "define MAXPLAYERHEALTH 100\r\n");
}

TEST_F(Refusal, LeavesABoxOfSeveralLinesAsItIs) {
  const auto& forms = widget_.Tessel().Forms();
  auto* form = dynamic_cast<frmAddParam*>(forms.at(1));
  ASSERT_NE(form, nullptr);
  auto* box = WidgetFor<QPlainTextEdit>(form->txtParams);
  QTest::keyClicks(box, "[amount]");
  TypeOne(box, kCyrillic);
  EXPECT_EQ(form->txtParams.Text(), "[amount]");
  EXPECT_EQ(box->toPlainText(), "[amount]");
}

TEST_F(Refusal, IsNotForCharactersThatAFileCanHold) {
  Controls().tbsCon.Select(kFunctionsPage + 1);
  auto* box = WidgetFor<QLineEdit>(Controls().txtSearch);
  TypeOne(box, kEuro);
  EXPECT_EQ(Controls().txtSearch.Text(), "\x80");
}

TEST_F(Refusal, LeavesTheLineBreaksOfABoxOfSeveralLinesCrLf) {
  auto* form = dynamic_cast<frmAddParam*>(widget_.Tessel().Forms().at(1));
  ASSERT_NE(form, nullptr);
  auto* box = WidgetFor<QPlainTextEdit>(form->txtParams);
  QTest::keyClicks(box, "[a]");
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClicks(box, "[b]");
  EXPECT_EQ(form->txtParams.Text(), "[a]\r\n[b]");
}

TEST_F(Refusal, LeavesTheNoBreakSpacesOfABoxOfSeveralLines) {
  auto* form = dynamic_cast<frmAddParam*>(widget_.Tessel().Forms().at(1));
  ASSERT_NE(form, nullptr);
  form->txtParams.SetText(
      "[a\xA0"
      "b]");
  auto* box = WidgetFor<QPlainTextEdit>(form->txtParams);
  box->moveCursor(QTextCursor::End);
  QTest::keyClicks(box, "c");
  EXPECT_EQ(form->txtParams.Text(),
            "[a\xA0"
            "b]c");
  form->txtParams.Refresh.Raise();
  EXPECT_EQ(box->textCursor().position(), 6) << "the caret stays";
}

TEST_F(Refusal, IsNotForLongTexts) {
  auto* form = dynamic_cast<frmFind*>(widget_.Tessel().Forms().at(0));
  ASSERT_NE(form, nullptr);
  const std::string text(40000, 'x');
  form->cboFind.SetText(text);
  auto* box = WidgetFor<QComboBox>(form->cboFind)->lineEdit();
  EXPECT_EQ(box->text().size(), 40000);
  box->end(false);
  QTest::keyClicks(box, "y");
  EXPECT_EQ(form->cboFind.Text(), text + "y");
}

}  // namespace
}  // namespace tessel::test
