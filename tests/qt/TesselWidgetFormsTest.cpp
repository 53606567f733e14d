// The forms' dialogs, and the services of the desktop.
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "qt/TesselWidgetFixture.h"
#include "qt/services/QtMessageBox.h"
#include "qt/services/QtModalForms.h"
#include "randomizer/frmRand.h"
#include "tools/frmFind.h"
#include "words/frmAddParam.h"

namespace tessel::test {
namespace {

class TesselWidgetFormsTest : public TesselWidgetTest {
 protected:
  template <class FormType>
  FormType& Form() {
    for (tessel::Form* form : widget_.Tessel().Forms()) {
      if (auto* found = dynamic_cast<FormType*>(form)) return *found;
    }
    throw std::logic_error("no such form");
  }
};

TEST_F(TesselWidgetFormsTest, ADialogOpensAndClosesWithItsForm) {
  for (tessel::Form* form : widget_.Tessel().Forms()) {
    const QWidget* dialog = widget_.DialogFor(*form);
    EXPECT_FALSE(dialog->isVisible());
    form->Show();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle().toStdString(), form->Caption());
    form->Hide();
    EXPECT_FALSE(dialog->isVisible());
  }
}

TEST_F(TesselWidgetFormsTest, ADialogOpensInTheMiddleOfTheScreen) {
  widget_.move(0, 0);
  for (tessel::Form* form : widget_.Tessel().Forms()) {
    const QWidget* dialog = widget_.DialogFor(*form);
    form->Show();
    const QRect place(dialog->pos(), dialog->size());
    EXPECT_EQ(place.center(), widget_.screen()->availableGeometry().center()) << form->Name();
    form->Hide();
  }
}

TEST_F(TesselWidgetFormsTest, TheWordListEditorOpensWithTheCaretInTheParameters) {
  const Services s = services_.Get();
  WidgetMap widgets;
  QtFocus mover(widgets);
  const Services services{.messages = s.messages,
                          .fileDialogs = s.fileDialogs,
                          .forms = s.forms,
                          .clipboard = s.clipboard,
                          .settings = s.settings,
                          .pointer = s.pointer,
                          .files = s.files,
                          .random = s.random,
                          .focus = mover,
                          .loop = s.loop,
                          .hostDirectory = s.hostDirectory};
  TesselWidget widget(services, widgets);
  widget.show();
  HostedControls& controls = widget.Tessel().Controls();
  controls.tbsCon.Select(kFunctionsPage + 1);
  controls.txtSearch.Type("move");
  const QWidget* focus = nullptr;
  const QWidget* parameters = nullptr;
  services_.forms.scripts.push_back([&](tessel::Form& form) {
    focus = widget.DialogFor(form)->focusWidget();
    parameters = widget.WidgetFor(dynamic_cast<frmAddParam&>(form).txtParams);
  });
  controls.cmdAddword.Press();
  ASSERT_NE(parameters, nullptr);
  EXPECT_EQ(focus, parameters);
}

TEST_F(TesselWidgetFormsTest, EscapeAndTheCloseButtonPressCancel) {
  auto& form = Form<frmRand>();
  QWidget* dialog = widget_.DialogFor(form);
  const Counter cancels(form.cmdCancel.Click);
  form.Show();
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_EQ(cancels.Count(), 1);
  EXPECT_FALSE(dialog->isVisible());
  form.Show();
  dialog->close();
  EXPECT_EQ(cancels.Count(), 2);
  EXPECT_FALSE(form.Visible());
}

TEST_F(TesselWidgetFormsTest, ReturnPressesTheDefaultButton) {
  auto& form = Form<frmFind>();
  const Counter finds(form.cmdFind.Click);
  form.Show();
  form.cboFind.SetText("two");
  auto* combo = WidgetFor<QComboBox>(form.cboFind);
  EXPECT_TRUE(WidgetFor<QPushButton>(form.cmdFind)->isDefault());
  QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(finds.Count(), 1);
  EXPECT_FALSE(form.Visible());
}

TEST_F(TesselWidgetFormsTest, AFormIsUsedThroughItsWidgets) {
  auto& form = Form<frmFind>();
  Open("a.con", "one two three");
  services_.forms.scripts.push_back([&](tessel::Form&) {
    auto* line = WidgetFor<QComboBox>(form.cboFind)->lineEdit();
    line->selectAll();
    QTest::keyClicks(line, "TWO");
    QTest::mouseClick(WidgetFor(form.cmdFind), Qt::LeftButton);
  });
  QTest::keyClick(WidgetFor(Controls().rtbCon[0]), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Editor().SelStart(), 4);
  EXPECT_EQ(Editor().SelText(), "two");
}

TEST_F(TesselWidgetFormsTest, ModalFormsReturnWhenTheFormIsHidden) {
  auto& form = Form<frmAddParam>();
  QTimer::singleShot(0, &widget_,
                     [&] { QTest::mouseClick(WidgetFor(form.cmdExit), Qt::LeftButton); });
  QtModalForms forms;
  forms.ShowModal(form);
  EXPECT_FALSE(form.Visible());
}

TEST(QtMessageBox, OpensInFrontOfItsWindowAlsoWhileAnotherProgramIsActive) {
  QWidget window;
  window.show();
  QApplication::setActiveWindow(nullptr);
  const QWidget* owner = nullptr;
  QTimer::singleShot(0, [&] {
    owner = QApplication::activeModalWidget()->parentWidget();
    QApplication::activeModalWidget()->close();
  });
  QtMessageBox().Show("Something happened.", MessageIcon::kNone, "", MessageButtons::kOk);
  EXPECT_EQ(owner, &window);
}

TEST(QtMessageBox, ShowsTheExactTextAndReturnsTheAnswer) {
  QString text;
  QString title;
  Qt::TextFormat format = Qt::AutoText;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text();
    title = box->windowTitle();
    format = box->textFormat();
    box->button(QMessageBox::No)->click();
  });
  QtMessageBox box;
  EXPECT_EQ(box.Show("Save <b> & \"x\"?", MessageIcon::kQuestion, "Zanth Manager",
                     MessageButtons::kYesNoCancel),
            MessageAnswer::kNo);
  EXPECT_EQ(text, "Save <b> & \"x\"?");
  EXPECT_EQ(format, Qt::PlainText);
  EXPECT_EQ(title, "Zanth Manager");
}

}  // namespace
}  // namespace tessel::test
