// Where widgets stand, how keys and focus travel, and what assistive programs are told.
#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QTabBar>
#include <set>

#include "models/Form.h"
#include "qt/TesselWidgetFixture.h"
#include "qt/base/TwipScale.h"

namespace tessel::test {
namespace {

bool ShowsNothing(const Control& control) {
  return control.Name() == "tmrColor" || control.Name() == "dlgCommon";
}

TEST_F(TesselWidgetTest, EveryControlHasAWidgetWithAnAccessibleName) {
  std::vector<const Control*> controls(Controls().all.All().begin(), Controls().all.All().end());
  for (const Form* form : widget_.Tessel().Forms()) {
    ASSERT_NE(widget_.DialogFor(*form), nullptr) << form->Name();
    controls.insert(controls.end(), form->controls.All().begin(), form->controls.All().end());
  }
  for (const Control* control : controls) {
    if (ShowsNothing(*control)) continue;
    QWidget* widget = widget_.WidgetFor(*control);
    ASSERT_NE(widget, nullptr) << control->Name() << control->Index();
    if (control->Name() == "fraCon") continue;  // a frame without a caption
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(accessible, nullptr) << control->Name();
    EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
        << control->Name() << control->Index();
    EXPECT_NE(accessible->role(), QAccessible::NoRole) << control->Name();
  }
}

TEST_F(TesselWidgetTest, ContainersStandWhereTheirModelsSay) {
  widget_.resize(900, 700);
  const int dpi = widget_.logicalDpiX();
  for (const Control* control :
       {static_cast<Control*>(&Controls().tbToolBar), static_cast<Control*>(&Controls().picRtb),
        static_cast<Control*>(&Controls().picCon[0])}) {
    const QRect place = WidgetFor(*control)->geometry();
    EXPECT_EQ(place.left(), TwipsToPixels(control->Left(), dpi)) << control->Name();
    EXPECT_EQ(place.top(), TwipsToPixels(control->Top(), dpi)) << control->Name();
    EXPECT_NEAR(place.width(), TwipsToPixels(control->Width(), dpi), 1) << control->Name();
    EXPECT_NEAR(place.height(), TwipsToPixels(control->Height(), dpi), 1) << control->Name();
  }
  EXPECT_EQ(Controls().scaleWidth, PixelsToTwips(900, dpi));
  EXPECT_EQ(Controls().scaleHeight, PixelsToTwips(700, dpi));
}

TEST_F(TesselWidgetTest, EditorsComeAndGoWithTheirModels) {
  Open("a.con", "first");
  Open("b.con", "second");
  ASSERT_EQ(Controls().rtbCon.Count(), 2);
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[1])->isVisible());
  EXPECT_FALSE(WidgetFor(Controls().rtbCon[0])->isVisible());
  Controls().tbToolBar.Press("FileClose");
  ASSERT_EQ(Controls().rtbCon.Count(), 1);
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[0])->isVisible());
}

TEST_F(TesselWidgetTest, TheFocusStaysInTheEditorThroughOpeningColouringAndClosing) {
  Open("a.con", "// first");
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[0])->hasFocus());
  Controls().tbToolBar.Press("Colorize");
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[0])->hasFocus());
  Open("b.con", "second");
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[1])->hasFocus());
  Controls().tbsRtb.Press(1);
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[0])->hasFocus());
  Controls().tbsRtb.Press(2);
  Controls().tbToolBar.Press("FileClose");
  EXPECT_TRUE(WidgetFor(Controls().rtbCon[0])->hasFocus());
}

TEST_F(TesselWidgetTest, CtrlFAndF3WorkWhereverTheFocusIs) {
  Open("a.con", "one two one two");
  for (const Control* place :
       {static_cast<Control*>(&Controls().rtbCon[0]), static_cast<Control*>(&Controls().lstPlayers),
        static_cast<Control*>(&Controls().tbsRtb)}) {
    QWidget* widget = WidgetFor(*place);
    widget->setFocus();
    ASSERT_TRUE(widget->hasFocus()) << place->Name();
    services_.forms.shown.clear();
    QTest::keyClick(widget, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(services_.forms.shown, std::vector<std::string>{"frmFind"}) << place->Name();
    QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_F, QString("\x06"),
                        Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(services_.forms.shown.size(), 1U) << "with Shift held it is another key";
    services_.messages.shown.clear();
    QTest::keyClick(widget, Qt::Key_F3);
    EXPECT_EQ(services_.messages.shown.size(), 1U) << place->Name() << ": nothing was searched yet";
  }
  EXPECT_EQ(Editor().Text(), "one two one two") << "no key has reached the text";
}

// While its box closes nothing has the focus; the key must not run again at the parents.
TEST_F(TesselWidgetTest, F3WithoutAHitShowsItsBoxOnce) {
  Open("a.con", "one");
  for (const Control* place :
       {static_cast<Control*>(&Controls().rtbCon[0]), static_cast<Control*>(&Controls().lstPlayers),
        static_cast<Control*>(&Controls().tbsRtb)}) {
    QWidget* widget = WidgetFor(*place);
    widget->setFocus();
    services_.messages.shown.clear();
    services_.messages.meanwhile = [] {
      if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
    };
    QTest::keyClick(widget, Qt::Key_F3);
    EXPECT_EQ(services_.messages.shown.size(), 1U) << place->Name();
  }
}

TEST_F(TesselWidgetTest, TabReachesEveryUsableControlOfEveryPage) {
  for (int page = 0; page < kSettingsPages; ++page) {
    Controls().tbsCon.Press(page + 1);
    Controls().cmdInsert[0].SetEnabled(true);
    Controls().cmdInsert[1].SetEnabled(true);
    Controls().cmdAddword.SetEnabled(true);
    std::set<const QWidget*> reached;
    const QWidget* at = &widget_;
    for (int step = 0; step < 400; ++step) {
      at = at->nextInFocusChain();
      const bool tab = at->focusPolicy() & Qt::TabFocus;
      if (tab && at->isEnabled() && at->isVisibleTo(&widget_)) reached.insert(at);
    }
    for (const Control* control : Controls().all.All()) {
      const bool onPage = control->Container() == &Controls().fraCon[page];
      const bool isLabel = dynamic_cast<const Label*>(control) != nullptr;
      if (!onPage || isLabel || !control->Usable()) continue;
      EXPECT_TRUE(reached.contains(widget_.WidgetFor(*control)))
          << control->Name() << control->Index();
    }
    EXPECT_TRUE(reached.contains(WidgetFor(Controls().tbsCon)));
    EXPECT_TRUE(reached.contains(WidgetFor(Controls().tbsRtb)));
  }
}

TEST_F(TesselWidgetTest, F6GoesFromPartToPartAndLeavesTheEditor) {
  QWidget* editor = WidgetFor(Controls().rtbCon[0]);
  editor->setFocus();
  QTest::keyClick(editor, Qt::Key_F6);
  EXPECT_TRUE(WidgetFor(Controls().tbsRtb)->hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(WidgetFor(Controls().tbsCon)->hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(WidgetFor(Controls().tbsRtb)->hasFocus());
}

TEST_F(TesselWidgetTest, AListShowsAtLeastFourRowsAtTheDesignsSize) {
  auto* list = WidgetFor<QAbstractItemView>(Controls().lstPlayers);
  QApplication::processEvents();
  const int row = list->visualRect(list->model()->index(0, 0)).height();
  EXPECT_GE(list->viewport()->height(), 4 * row);
}

TEST(TesselWidgetLife, AControlCanBeMadeAndDestroyedAgainOnTheSameServices) {
  FakeServices services;
  WidgetMap widgets;
  for (int round = 0; round < 3; ++round) {
    TesselWidget widget(services.Get(), widgets);
    widget.show();
    QApplication::setActiveWindow(&widget);
    widget.Tessel().Controls().tbsCon.Press(5);
    widget.WidgetFor(widget.Tessel().Controls().cboEpisode)->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
  }
}

}  // namespace
}  // namespace tessel::test
