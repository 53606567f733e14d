// Property in, gesture out: each kind of view, both ways.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>
#include <set>

#include "qt/TesselWidgetFixture.h"
#include "qt/views/ToolbarView.h"

namespace tessel::test {
namespace {

void ClickRow(QListWidget& list, int row) {
  list.scrollToItem(list.item(row));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(row)).center());
}

TEST_F(TesselWidgetTest, AListShowsTheEntriesAndTheSelectionOfItsModel) {
  auto& list = *WidgetFor<QListWidget>(Controls().lstPlayers);
  ASSERT_EQ(list.count(), Controls().lstPlayers.ListCount());
  EXPECT_EQ(list.item(0)->text(), "Max Regular Health");
  Controls().lstPlayers.SetListIndex(3);
  EXPECT_EQ(list.currentRow(), 3);
  Controls().lstPlayers.SetListIndex(kNoSelection);
  EXPECT_TRUE(list.selectedItems().isEmpty());
  Controls().lstPlayers.RemoveItem(0);
  EXPECT_EQ(list.item(0)->text(), "Max Atomic Health");
}

TEST_F(TesselWidgetTest, AClickOnARowPicksItOnceAndAnotherClickPicksItAgain) {
  auto& list = *WidgetFor<QListWidget>(Controls().lstPlayers);
  const Counter clicks(Controls().lstPlayers.Click);
  ClickRow(list, 2);
  EXPECT_EQ(Controls().lstPlayers.ListIndex(), 2);
  EXPECT_EQ(clicks.Count(), 1);
  ClickRow(list, 2);
  EXPECT_EQ(clicks.Count(), 2);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Controls().lstPlayers.ListIndex(), 3);
  EXPECT_EQ(clicks.Count(), 3);
}

TEST_F(TesselWidgetTest, EnteringAListByKeyboardPicksNothing) {
  auto& list = *WidgetFor<QListWidget>(Controls().lstPlayers);
  const Counter clicks(Controls().lstPlayers.Click);
  list.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(list.hasFocus());
  EXPECT_EQ(clicks.Count(), 0);
  EXPECT_EQ(Controls().lstPlayers.ListIndex(), kNoSelection);
}

TEST_F(TesselWidgetTest, ADoubleClickIsReportedOnce) {
  auto& list = *WidgetFor<QListWidget>(Controls().lstPlayers);
  const Counter doubles(Controls().lstPlayers.DblClick);
  const QPoint row = list.visualItemRect(list.item(0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
  EXPECT_EQ(doubles.Count(), 1);
}

TEST_F(TesselWidgetTest, TypingInAComboBoxIsAChangeForEveryKeyAndNeverAPick) {
  ComboBox& model = Controls().cmbweap[0];
  Controls().lstPlayers.Pick(0);
  auto& combo = *WidgetFor<QComboBox>(model);
  const Counter changes(model.Change);
  const Counter clicks(model.Click);
  combo.lineEdit()->selectAll();
  QTest::keyClicks(combo.lineEdit(), "100");
  EXPECT_EQ(model.Text(), "100");
  EXPECT_EQ(changes.Count(), 3);
  QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
  WidgetFor(Controls().lstPlayers)->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(clicks.Count(), 0) << "a typed text that equals an entry is no pick of it";
  EXPECT_EQ(combo.currentText(), "100");
}

TEST_F(TesselWidgetTest, TypingInTheMiddleOfAComboBoxKeepsTheCaretThere) {
  Controls().lstPlayers.Pick(0);
  auto& combo = *WidgetFor<QComboBox>(Controls().cmbweap[0]);
  Controls().cmbweap[0].SetListIndex(7);
  combo.lineEdit()->setCursorPosition(1);
  QTest::keyClicks(combo.lineEdit(), "5");
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 2);
  EXPECT_EQ(Controls().cmbweap[0].Text(), "1500");
}

TEST_F(TesselWidgetTest, PickingAnEntryOfAComboBoxIsAClickAlsoOfTheSameEntryAndNeverAChange) {
  ComboBox& model = Controls().cmbweap[0];
  Controls().lstPlayers.Pick(0);
  auto& combo = *WidgetFor<QComboBox>(model);
  const Counter changes(model.Change);
  const Counter clicks(model.Click);
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(model.ListIndex(), 0);
  EXPECT_EQ(clicks.Count(), 1);
  emit combo.activated(0);
  EXPECT_EQ(clicks.Count(), 2);
  EXPECT_EQ(changes.Count(), 0);
  EXPECT_EQ(combo.currentText().toStdString(), model.List(0));
}

TEST_F(TesselWidgetTest, AComboBoxKeepsTheTextThatCodeGaveItWithoutAnEvent) {
  ComboBox& model = Controls().cmbweap[1];
  auto& combo = *WidgetFor<QComboBox>(model);
  const Counter clicks(model.Click);
  model.SetText("12");
  EXPECT_EQ(combo.currentText(), "12");
  model.SetListIndex(4);
  EXPECT_EQ(combo.currentText().toStdString(), model.List(4));
  EXPECT_EQ(clicks.Count(), 1) << "the model's own";
}

TEST_F(TesselWidgetTest, TextBoxesShowTheirTextAndReportTyping) {
  auto& box = *WidgetFor<QLineEdit>(Controls().txtSearch);
  Controls().tbsCon.Press(6);
  Controls().txtSearch.SetText("add\xE9");
  EXPECT_EQ(box.text(), QString("add\u00E9"));
  const Counter changes(Controls().txtSearch.Change);
  QTest::keyClicks(&box, "x");
  EXPECT_EQ(Controls().txtSearch.Text(), "add\xE9x");
  EXPECT_EQ(changes.Count(), 1);
}

TEST_F(TesselWidgetTest, OnlyAPersonEntersATextBox) {
  Controls().tbsCon.Press(5);
  auto& box = *WidgetFor<QLineEdit>(Controls().txtTitle);
  const Counter entered(Controls().txtTitle.GotFocus);
  box.setFocus(Qt::OtherFocusReason);
  box.clearFocus();
  box.setFocus(Qt::ActiveWindowFocusReason);
  EXPECT_EQ(entered.Count(), 0);
  box.clearFocus();
  QTest::mouseClick(&box, Qt::LeftButton);
  EXPECT_EQ(entered.Count(), 1);
}

TEST_F(TesselWidgetTest, ABoxThatIsClickedKeepsTheWholeTextSelectedThatItsHandlerSelects) {
  Open("a.con", "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n");
  Controls().tbsCon.Press(5);
  Controls().cboEpisode.Pick(0);
  auto& box = *WidgetFor<QLineEdit>(Controls().txtMap);
  QTest::mouseClick(&box, Qt::LeftButton);
  EXPECT_EQ(box.selectedText(), "E1L8.map");
  EXPECT_EQ(Editor().SelText(), "E1L8.map");
}

TEST_F(TesselWidgetTest, NoFocusWandersIntoABoxWhenAButtonIsDisabled) {
  Open("a.con", "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n");
  Controls().tbsCon.Press(5);
  Controls().cboEpisode.Pick(0);
  QTest::mouseClick(WidgetFor(Controls().txtMap), Qt::LeftButton);
  auto& insert = *WidgetFor<QPushButton>(Controls().cmdInsert[0]);
  insert.setFocus(Qt::TabFocusReason);
  const Counter entered(Controls().txtTitle.GotFocus);
  Controls().cmdInsert[0].SetEnabled(false);
  EXPECT_FALSE(insert.isEnabled());
  EXPECT_EQ(entered.Count(), 0);
}

TEST_F(TesselWidgetTest, OptionsFollowTheirModelsAndMayAllBeOff) {
  Controls().tbsCon.Press(4);
  auto& yes = *WidgetFor<QRadioButton>(Controls().optCamYes);
  auto& no = *WidgetFor<QRadioButton>(Controls().optCamNo);
  EXPECT_FALSE(yes.isChecked() || no.isChecked());
  QTest::mouseClick(&yes, Qt::LeftButton, {}, {8, yes.height() / 2});
  EXPECT_TRUE(Controls().optCamYes.Value());
  QTest::mouseClick(&no, Qt::LeftButton, {}, {8, no.height() / 2});
  EXPECT_TRUE(no.isChecked());
  EXPECT_FALSE(yes.isChecked());
  Controls().optCamNo.SetValue(false);
  EXPECT_FALSE(no.isChecked());
}

TEST_F(TesselWidgetTest, ATabIsPressedByAClickAlsoWhenItIsSelectedAlready) {
  auto& bar = *WidgetFor<QTabBar>(Controls().tbsCon);
  const Counter clicks(Controls().tbsCon.Click);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(3).center());
  EXPECT_EQ(Controls().tbsCon.Selected(), 4);
  EXPECT_EQ(clicks.Count(), 1);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(3).center());
  EXPECT_EQ(clicks.Count(), 2);
  Controls().tbsCon.Select(2);
  EXPECT_EQ(bar.currentIndex(), 1);
}

TEST_F(TesselWidgetTest, ADocumentTabShowsCaptionPathAndMarker) {
  Open("a&b.con", "define X 1\r\n");
  auto& bar = *WidgetFor<QTabBar>(Controls().tbsRtb);
  EXPECT_EQ(bar.tabText(0), "a&&b.con");
  EXPECT_EQ(bar.tabToolTip(0), "/con/a&b.con");
  EXPECT_EQ(bar.accessibleTabName(0), "a&b.con");
  EXPECT_FALSE(bar.tabIcon(0).isNull());
  Editor().Type("x");
  EXPECT_EQ(bar.accessibleTabName(0), "a&b.con, modified");
}

TEST_F(TesselWidgetTest, OnlyTheSelectedPageCanBeReached) {
  for (int page = 0; page < kSettingsPages; ++page) {
    Controls().tbsCon.Press(page + 1);
    for (int other = 0; other < kSettingsPages; ++other) {
      const QWidget* view = WidgetFor(Controls().picCon[other]);
      EXPECT_EQ(view->isVisible(), other == page) << page << " " << other;
      EXPECT_EQ(view->isEnabled(), other == page) << page << " " << other;
    }
  }
  Controls().tbToolBar.Press("ShowTabs");
  EXPECT_FALSE(WidgetFor(Controls().tbsCon)->isVisible());
  EXPECT_FALSE(WidgetFor(Controls().txtSearch)->isVisible());
}

TEST_F(TesselWidgetTest, AToolbarButtonShowsItsStateAndPressesItsModel) {
  auto& bar = *WidgetFor<ToolbarView>(Controls().tbToolBar);
  auto& toggle = *qobject_cast<QToolButton*>(bar.widgetForAction(bar.ActionOf("Colorize")));
  EXPECT_TRUE(toggle.isChecked());
  QTest::mouseClick(&toggle, Qt::LeftButton);
  EXPECT_FALSE(Controls().tbToolBar.Pressed("Colorize"));
  EXPECT_FALSE(toggle.isChecked());
  Controls().tbToolBar.SetPressed("Colorize", true);
  EXPECT_TRUE(toggle.isChecked());
  Controls().tbsCon.Press(5);
  EXPECT_FALSE(bar.widgetForAction(bar.ActionOf("RandSec"))->isEnabled());
}

TEST_F(TesselWidgetTest, EveryToolbarButtonHasAnIconAndItsToolTip) {
  auto& bar = *WidgetFor<ToolbarView>(Controls().tbToolBar);
  int buttons = 0;
  for (const ToolbarButton& button : Controls().tbToolBar.Buttons()) {
    if (button.style == ButtonStyle::kSeparator) continue;
    ++buttons;
    const QAction* action = bar.ActionOf(button.key);
    ASSERT_NE(action, nullptr) << button.key;
    EXPECT_EQ(action->toolTip().toStdString(), button.toolTip);
    const QImage image = action->icon().pixmap(20, 20).toImage();
    EXPECT_FALSE(image.isNull()) << button.key;
    bool drawn = false;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) drawn |= image.pixelColor(x, y).alpha() > 0;
    }
    EXPECT_TRUE(drawn) << button.key;
  }
  EXPECT_GT(buttons, 0);
}

TEST_F(TesselWidgetTest, ADropDownFollowsItsModelAndAnItemMayChangeIt) {
  auto& bar = *WidgetFor<ToolbarView>(Controls().tbToolBar);
  const QMenu& menu = *bar.ActionOf("FileNew")->menu();
  const auto before = menu.actions().size();
  EXPECT_EQ(before, Controls().tbToolBar.MenuCount("FileNew"));
  EXPECT_EQ(menu.actions()[1]->text(), "User.con: 1.4/1.5 ");
  EXPECT_TRUE(menu.actions()[2]->isSeparator());
  Open("a.con", "x");
  ASSERT_EQ(menu.actions().size(), before + 1);
  services_.files.Write("/con/B.CON", "y");
  Controls().tbToolBar.InsertMenuItem("FileNew", static_cast<int>(before) + 2,
                                      {"B.CON", "", "/con/B.CON"});
  menu.actions().last()->trigger();
  EXPECT_EQ(Controls().tbsRtb.Count(), 2);
  EXPECT_EQ(Editor().Text(), "y");
}

TEST_F(TesselWidgetTest, ThePopupMenuShowsWhatCanBeChosenAndReportsTheChoice) {
  auto& menu = *WidgetFor<QMenu>(Controls().mnuRtbPopup);
  Editor().ReleaseMouse(MouseButton::kRight);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_FALSE(menu.findChild<QAction*>("mnuRtbPopupFileSave")->isEnabled());
  std::string chosen;
  const Subscription subscription =
      Controls().mnuRtbPopup.ItemClick.Connect([&](const std::string& name) { chosen = name; });
  menu.findChild<QAction*>("mnuRtbPopupEditSel")->trigger();
  EXPECT_EQ(chosen, "mnuRtbPopupEditSel");
  menu.hide();
}

TEST_F(TesselWidgetTest, EveryPageHasItsCaptions) {
  std::multiset<std::string> shown;
  for (const auto* label : widget_.findChildren<QLabel*>()) {
    shown.insert(QString(label->text()).remove('&').toStdString());
  }
  for (const auto* frame : widget_.findChildren<QGroupBox*>()) {
    shown.insert(QString(frame->title()).remove('&').toStdString());
  }
  const std::vector<std::pair<std::string, std::size_t>> wanted{{"Select Item:", 3},
                                                                {"Select Category:", 1},
                                                                {"Select Weapon:", 1},
                                                                {"Current Value:", 4},
                                                                {"Cameras Destructable:", 1},
                                                                {"Freeze Hurt Owner:", 1},
                                                                {"Episode/Level", 1},
                                                                {"Map file", 1},
                                                                {"Title", 1}};
  for (const auto& [caption, count] : wanted) EXPECT_EQ(shown.count(caption), count) << caption;
}

}  // namespace
}  // namespace tessel::test
