// What assistive technology is told of the control's parts.
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QToolButton>

#include "models/Form.h"
#include "qt/TesselWidgetFixture.h"
#include "qt/views/ToolbarView.h"

namespace tessel::test {
namespace {

class Assistive : public TesselWidgetTest {
 protected:
  static QAccessibleInterface& Of(QWidget* widget) {
    return *QAccessible::queryAccessibleInterface(widget);
  }
  static QString NameOf(QWidget* widget) { return Of(widget).text(QAccessible::Name); }
  /// Every part that can have the focus, and has no name.
  static QStringList NamelessIn(const QWidget& whole) {
    QStringList nameless;
    for (auto* part : whole.findChildren<QWidget*>()) {
      const auto role = Of(part).role();
      const bool seen = role != QAccessible::ScrollBar && role != QAccessible::Client;
      if (!seen || part->focusPolicy() == Qt::NoFocus || part->focusProxy() != nullptr) continue;
      // The toolkit shows nobody the inside of a list.
      if (part->objectName() == "qt_scrollarea_viewport" || part->inherits("QComboBoxListView")) {
        continue;
      }
      if (NameOf(part).isEmpty()) {
        nameless += QString(part->metaObject()->className()) + " " + part->objectName();
      }
    }
    return nameless;
  }
};

TEST_F(Assistive, NoPartThatCanHaveTheFocusIsNameless) {
  EXPECT_EQ(NamelessIn(widget_).join(", ").toStdString(), "");
}

TEST_F(Assistive, OptionsAreRadioButtonsInTheGroupThatNamesThem) {
  for (const OptionButton* option : {&Controls().optCamYes, &Controls().optFreezNo}) {
    QAccessibleInterface& radio = Of(WidgetFor(*option));
    EXPECT_EQ(radio.role(), QAccessible::RadioButton);
    EXPECT_TRUE(radio.state().checkable);
    EXPECT_EQ(radio.parent()->role(), QAccessible::Grouping);
  }
  EXPECT_EQ(NameOf(WidgetFor(Controls().optCamYes)), "Cameras Destructable: Yes");
  EXPECT_EQ(NameOf(WidgetFor(Controls().optCamYes)->parentWidget()), "Cameras Destructable:");
}

TEST_F(Assistive, AnOptionTellsWhetherItIsChosenAndCanBeChosen) {
  Controls().tbsCon.Press(4);
  Controls().optCamYes.SetEnabled(true);
  QAccessibleInterface& radio = Of(WidgetFor(Controls().optCamYes));
  const Counter clicks(Controls().optCamYes.Click);
  EXPECT_FALSE(radio.state().checked);
  ASSERT_TRUE(radio.actionInterface()->actionNames().contains("Toggle"));
  radio.actionInterface()->doAction("Toggle");
  EXPECT_EQ(clicks.Count(), 1);
  Controls().optCamYes.SetValue(true);
  EXPECT_TRUE(radio.state().checked);
  Controls().optCamNo.SetValue(true);
  EXPECT_FALSE(radio.state().checked);
}

TEST_F(Assistive, ARowOfTabsHasItsOwnNameAndTheTabsHaveTheirs) {
  QAccessibleInterface& row = Of(WidgetFor(Controls().tbsCon));
  EXPECT_EQ(row.role(), QAccessible::PageTabList);
  EXPECT_EQ(row.text(QAccessible::Name), "Settings categories");
  for (int page = 0; page < kSettingsPages; ++page) {
    QAccessibleInterface* tab = row.child(page);
    ASSERT_NE(tab, nullptr);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), ShownText(Controls().tbsCon.At(page + 1).caption));
    EXPECT_EQ(tab->parent(), &row);
    EXPECT_EQ(row.indexOfChild(tab), page);
    EXPECT_EQ(tab->state().selected, page == 0);
  }
  row.child(3)->actionInterface()->doAction("Press");
  EXPECT_EQ(Controls().tbsCon.Selected(), 4);
  EXPECT_TRUE(row.child(3)->state().selected);
  EXPECT_EQ(row.childAt(row.child(2)->rect().center().x(), row.child(2)->rect().center().y()),
            row.child(2));
}

TEST_F(Assistive, ADocumentsTabSaysThatItIsModified) {
  Open("a&b.con", "define X 1\r\n");
  QAccessibleInterface& row = Of(WidgetFor(Controls().tbsRtb));
  EXPECT_EQ(row.text(QAccessible::Name), "Documents");
  EXPECT_EQ(row.child(0)->text(QAccessible::Name), "a&b.con");
  Editor().Type("x");
  EXPECT_EQ(row.child(0)->text(QAccessible::Name), "a&b.con, modified");
}

TEST_F(Assistive, ATabThatIsGoneIsNotValid) {
  Open("a.con", "a");
  Open("b.con", "b");
  QAccessibleInterface& row = Of(WidgetFor(Controls().tbsRtb));
  QAccessibleInterface* second = row.child(1);
  EXPECT_TRUE(second->isValid());
  Controls().tbToolBar.Press("FileClose");
  EXPECT_FALSE(second->isValid());
  EXPECT_EQ(second->text(QAccessible::Name), "");
  second->actionInterface()->doAction("Press");
  EXPECT_EQ(Controls().tbsRtb.Selected(), 1);
}

TEST_F(Assistive, TheCloseButtonOfATabNamesItsDocument) {
  auto& bar = *WidgetFor<QTabBar>(Controls().tbsRtb);
  bar.setTabsClosable(true);
  Open("a&b.con", "a");
  QApplication::processEvents();
  EXPECT_EQ(NameOf(bar.tabButton(0, QTabBar::RightSide)), "Close a&b.con");
}

TEST_F(Assistive, AButtonWithAListSaysSoAndOpensIt) {
  auto& bar = *WidgetFor<ToolbarView>(Controls().tbToolBar);
  for (const char* key : {"FileNew", "Tools", "RandSec"}) {
    QAction* action = bar.ActionOf(key);
    QAccessibleInterface& button = Of(bar.widgetForAction(action));
    EXPECT_FALSE(button.text(QAccessible::Name).isEmpty()) << key;
    EXPECT_EQ(button.role(), QAccessible::ButtonDropDown) << key;
    EXPECT_TRUE(button.state().hasPopup) << key;
    EXPECT_TRUE(button.state().expandable) << key;
    EXPECT_FALSE(button.state().expanded) << key;
    ASSERT_TRUE(button.actionInterface()->actionNames().contains("ShowMenu")) << key;
    bool expanded = false;
    QObject::connect(action->menu(), &QMenu::aboutToShow, &bar, [&] {
      QTimer::singleShot(0, action->menu(), [&] {
        expanded = button.state().expanded;
        action->menu()->close();
      });
    });
    button.actionInterface()->doAction("ShowMenu");
    EXPECT_TRUE(QTest::qWaitFor([&] { return expanded; })) << key;
  }
  QAccessibleInterface& plain = Of(bar.widgetForAction(bar.ActionOf("Cut")));
  EXPECT_FALSE(plain.state().hasPopup);
}

TEST_F(Assistive, TheParametersAreReadThemselves) {
  QWidget* parameters = WidgetFor(Controls().lblParams);
  EXPECT_EQ(NameOf(parameters), "Parameters") << "while there are none";
  Controls().lblParams.SetCaption("ifhitspace { }");
  EXPECT_EQ(NameOf(parameters), "ifhitspace { }");
  Controls().lblParams.SetCaption("");
  EXPECT_EQ(NameOf(parameters), "Parameters");
}

TEST_F(Assistive, ALetterOfTheViewIsNoPartOfTheCaption) {
  auto* label = WidgetFor<QLabel>(Controls().lblValue[0]);
  EXPECT_EQ(label->text(), "C&urrent Value:");
  EXPECT_EQ(NameOf(label), "Current Value:");
  EXPECT_EQ(Controls().lblValue[0].Caption(), "Current Value:");
  Controls().lblValue[0].SetCaption("&Other:");
  EXPECT_EQ(label->text(), "&Other:") << "a mark of its own is kept";
}

}  // namespace
}  // namespace tessel::test
