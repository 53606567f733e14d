#include <string>
#include <vector>

#include "ControlsFixture.h"
#include "models/PopupMenu.h"
#include "models/Toolbar.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

// --- Toolbars

class ToolbarTest : public ControlsTest {
 protected:
  ToolbarTest() {
    toolbar.Add(
        {"FileNew", "New", ButtonStyle::kDropDown, {{"User", "NewUser", ""}, {"-", "", ""}}});
    toolbar.Add({"", "", ButtonStyle::kSeparator});
    toolbar.Add({"Colorize", "Colours", ButtonStyle::kTwoState});
  }

  Toolbar toolbar{controls, "tbToolBar"};
};

TEST_F(ToolbarTest, FindsButtonsByTheirExactKey) {
  EXPECT_EQ(toolbar.Find("Colorize")->toolTip, "Colours");
  EXPECT_EQ(toolbar.Find("COLORIZE"), nullptr);
  EXPECT_EQ(toolbar.Find(""), nullptr);
  EXPECT_EQ(toolbar.Buttons().size(), 3U);
}

TEST_F(ToolbarTest, RaisesNoEventForAnAssignedValue) {
  const Count clicks(toolbar.ButtonClick);
  toolbar.SetPressed("Colorize", true);
  toolbar.SetButtonEnabled("Colorize", false);
  EXPECT_TRUE(toolbar.Pressed("Colorize"));
  EXPECT_FALSE(toolbar.Find("Colorize")->enabled);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ToolbarTest, TogglesATwoStateButtonBeforeItsClick) {
  std::vector<std::string> clicks;
  const Subscription click = toolbar.ButtonClick.Connect([&](const ToolbarButton& button) {
    clicks.push_back(button.key + (button.pressed ? " down" : " up"));
  });
  toolbar.Press("Colorize");
  toolbar.Press("Colorize");
  toolbar.Press("FileNew");
  EXPECT_THAT(clicks, ElementsAre("Colorize down", "Colorize up", "FileNew up"));
}

TEST_F(ToolbarTest, HasMenusThatCountFromOne) {
  toolbar.InsertMenuItem("FileNew", 1, {"First", "NewFirst", "tag"});
  EXPECT_EQ(toolbar.MenuCount("FileNew"), 3);
  EXPECT_EQ(toolbar.MenuItem("FileNew", 1).key, "NewFirst");
  EXPECT_TRUE(toolbar.MenuItem("FileNew", 3).IsSeparator());
  toolbar.RemoveMenuItem("FileNew", 1);
  EXPECT_EQ(toolbar.MenuItem("FileNew", 1).key, "NewUser");
  EXPECT_EQ(toolbar.MenuCount("Colorize"), 0);
}

TEST_F(ToolbarTest, LetsAMenusHandlerChangeTheMenu) {
  std::string chosen;
  const Subscription click =
      toolbar.ButtonMenuClick.Connect([&](const ToolbarButton& button, const ButtonMenuItem& item) {
        toolbar.RemoveMenuItem("FileNew", 1);
        chosen = button.key + "/" + item.key;
      });
  toolbar.PressMenuItem("FileNew", 1);
  EXPECT_EQ(chosen, "FileNew/NewUser");
}

TEST_F(ToolbarTest, DoesNothingForASeparatorOfAMenu) {
  const Count clicks(toolbar.ButtonMenuClick);
  toolbar.PressMenuItem("FileNew", 2);
  EXPECT_EQ(clicks, 0);
}

// --- Popup menus

TEST_F(ControlsTest, FindAndSwitchItemsOfAMenuAnywhereInItsTree) {
  PopupMenu menu(controls, "mnu");
  menu.SetItems({{"mnuFile", "&File", {{"mnuSave", "&Save", {}, true}, {"", "-", {}, true}}, true},
                 {"mnuUndo", "&Undo", {}, true}});
  EXPECT_EQ(menu.Find("mnuSave")->caption, "&Save");
  EXPECT_EQ(menu.Find("gone"), nullptr);
  EXPECT_EQ(menu.Find(""), nullptr);
  menu.SetItemEnabled("mnuSave", false);
  EXPECT_FALSE(menu.Find("mnuSave")->enabled);
  std::vector<std::string> leaves;
  for (const MenuItem* item : menu.Leaves()) leaves.push_back(item->name);
  EXPECT_THAT(leaves, ElementsAre("mnuSave", "mnuUndo"));
}

TEST_F(ControlsTest, TellWhichItemOfAMenuWasChosen) {
  PopupMenu menu(controls, "mnu");
  menu.SetItems({{"mnuUndo", "&Undo", {}, true}});
  const Count opened(menu.Opened);
  std::string chosen;
  const Subscription click =
      menu.ItemClick.Connect([&](const std::string& name) { chosen = name; });
  menu.PopUp();
  menu.Choose("mnuUndo");
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(chosen, "mnuUndo");
}

}  // namespace
}  // namespace tessel::test
