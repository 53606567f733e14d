// The hosted controls' models: which assignments and gestures raise which events.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/Buttons.h"
#include "platform/CommonDialog.h"
#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/Lists.h"
#include "platform/PopupMenu.h"
#include "platform/TabStrip.h"
#include "platform/TextBox.h"
#include "platform/Toolbar.h"
#include "support/FakeServices.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Counts how often an event was raised.
template <class... Args>
class Count {
 public:
  explicit Count(Event<Args...>& event)
      : subscription_(event.Connect([this](Args...) { ++count_; })) {}
  Count(const Count&) = delete;
  Count& operator=(const Count&) = delete;

  operator int() const { return count_; }

 private:
  int count_ = 0;
  Subscription subscription_;
};

class ControlsTest : public testing::Test {
 protected:
  ControlSet controls;
};

// --- Event

TEST(EventTest, CallsHandlersInTheOrderOfConnecting) {
  Event<int> event;
  std::vector<int> calls;
  const Subscription first = event.Connect([&](int i) { calls.push_back(i); });
  const Subscription second = event.Connect([&](int i) { calls.push_back(i * 10); });
  event.Raise(1);
  event.Raise(2);
  EXPECT_THAT(calls, ElementsAre(1, 10, 2, 20));
}

TEST(EventTest, CallsAHandlerForAsLongAsItsSubscriptionLives) {
  Event<> event;
  int calls = 0;
  Subscription subscription = event.Connect([&] { ++calls; });
  event.Raise();
  subscription.reset();
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(EventTest, LetsHandlersConnectAndDropOthersMeanwhile) {
  Event<> event;
  std::vector<std::string> calls;
  Subscription dropped;
  Subscription added;
  const Subscription first = event.Connect([&] {
    calls.push_back("first");
    dropped.reset();
    if (!added) added = event.Connect([&] { calls.push_back("added"); });
  });
  dropped = event.Connect([&] { calls.push_back("dropped"); });
  event.Raise();
  EXPECT_THAT(calls, ElementsAre("first", "added"));
}

TEST(EventTest, LetsAHandlerDropItselfAndRaiseAgain) {
  Event<> event;
  int calls = 0;
  Subscription self;
  self = event.Connect([&] {
    if (++calls < 3) event.Raise();
    self.reset();
  });
  event.Raise();
  event.Raise();
  EXPECT_EQ(calls, 3);
}

TEST(EventTest, StaysUsableAfterAnExceptionOfAHandler) {
  Event<> event;
  int calls = 0;
  const Subscription subscription = event.Connect([&] {
    if (++calls == 1) throw std::runtime_error("first");
  });
  EXPECT_THROW(event.Raise(), std::runtime_error);
  event.Raise();
  EXPECT_EQ(calls, 2);
}

// --- What all have

TEST_F(ControlsTest, AreFoundByNameAndIndexForAsLongAsTheyLive) {
  const Label first(controls, "lblValue", 0);
  {
    const Label second(controls, "lblValue", 1);
    EXPECT_EQ(controls.Find("lblValue", 1), &second);
  }
  EXPECT_EQ(controls.Find("lblValue"), &first);
  EXPECT_EQ(controls.Find("lblValue", 1), nullptr);
  EXPECT_EQ(controls.Find("LBLVALUE"), nullptr);
  EXPECT_THAT(controls.All(), ElementsAre(&first));
}

TEST_F(ControlsTest, HaveNoSizeBelowZero) {
  Label label(controls, "lbl");
  label.SetWidth(-5);
  label.SetHeight(-0.5);
  label.SetLeft(-20000);
  EXPECT_EQ(label.Width(), 0);
  EXPECT_EQ(label.Height(), 0);
  EXPECT_EQ(label.Left(), -20000);
}

TEST_F(ControlsTest, AreUsableUnlessTheyOrAContainerAreDisabledOrParked) {
  PictureBox page(controls, "picCon");
  Frame frame(controls, "fraCon");
  TextBox box(controls, "txtMap");
  frame.SetContainer(&page);
  box.SetContainer(&frame);
  EXPECT_TRUE(box.Usable());
  page.SetEnabled(false);
  EXPECT_FALSE(box.Usable());
  page.SetEnabled(true);
  frame.SetLeft(kParkedLeft);
  EXPECT_FALSE(box.Usable());
  EXPECT_TRUE(page.Usable());
  frame.SetLeft(0);
  box.SetEnabled(false);
  EXPECT_FALSE(box.Usable());
}

TEST_F(ControlsTest, TellAViewToDrawAgain) {
  Label label(controls, "lbl");
  const Count refreshes(label.Refresh);
  label.SetCaption("a");
  label.SetTag("b");
  label.SetEnabled(false);
  label.SetVisible(false);
  label.SetTop(1);
  EXPECT_EQ(refreshes, 5);
}

// --- Control arrays

TEST_F(ControlsTest, OfAnArrayCountFromZeroAndComeAndGoAtItsEnd) {
  ControlArray<TextBox> boxes(controls, "txt", 2);
  std::vector<std::string> seen;
  const Subscription loaded = boxes.Loaded.Connect(
      [&](TextBox& box) { seen.push_back("+" + std::to_string(box.Index())); });
  const Subscription unloading = boxes.Unloading.Connect(
      [&](TextBox& box) { seen.push_back("-" + std::to_string(box.Index())); });
  EXPECT_EQ(boxes.Load().Index(), 2);
  EXPECT_EQ(boxes.Count(), 3);
  EXPECT_EQ(boxes[2].Name(), "txt");
  EXPECT_EQ(controls.Find("txt", 2), &boxes[2]);
  boxes.UnloadLast();
  EXPECT_EQ(controls.Find("txt", 2), nullptr);
  EXPECT_THAT(seen, ElementsAre("+2", "-2"));
  EXPECT_THROW(boxes[2], std::out_of_range);
}

// --- Lists

TEST_F(ControlsTest, RaiseClickForEveryAssignedListIndex) {
  ListBox list(controls, "lst");
  list.AddItem("a");
  list.AddItem("b");
  const Count clicks(list.Click);
  list.SetListIndex(1);
  list.SetListIndex(1);
  EXPECT_EQ(list.ListIndex(), 1);
  list.SetListIndex(-1);
  EXPECT_EQ(list.ListIndex(), kNoSelection);
  list.SetListIndex(2);
  EXPECT_EQ(list.ListIndex(), kNoSelection);
  list.Pick(0);
  EXPECT_EQ(clicks, 5);
}

TEST_F(ControlsTest, KeepTheSelectedEntryWhenOthersComeAndGo) {
  ListBox list(controls, "lst");
  for (const char* entry : {"a", "b", "c"}) list.AddItem(entry);
  list.SetListIndex(1);
  const Count clicks(list.Click);
  list.InsertItem(0, "first");
  EXPECT_EQ(list.ListIndex(), 2);
  list.RemoveItem(0);
  EXPECT_EQ(list.ListIndex(), 1);
  list.RemoveItem(2);
  EXPECT_EQ(list.ListIndex(), 1);
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex(), kNoSelection);
  EXPECT_THAT(list.List(), ElementsAre("a"));
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ControlsTest, SelectBeforeADoubleClick) {
  ListBox list(controls, "lst");
  list.AddItem("a");
  std::vector<std::string> events;
  const Subscription click = list.Click.Connect([&] { events.push_back("Click"); });
  const Subscription twice = list.DblClick.Connect([&] { events.push_back("DblClick"); });
  list.PickTwice(0);
  EXPECT_THAT(events, ElementsAre("Click", "DblClick"));
  EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ControlsTest, TakeTheEntryAsTheTextOfAComboBox) {
  ComboBox combo(controls, "cmb");
  combo.AddItem("YES");
  combo.AddItem("NO");
  const Count changes(combo.Change);
  std::string textAtClick;
  const Subscription click = combo.Click.Connect([&] { textAtClick = combo.Text(); });
  combo.Pick(1);
  EXPECT_EQ(textAtClick, "NO");
  EXPECT_EQ(changes, 0);
  combo.SetListIndex(-1);
  EXPECT_EQ(combo.Text(), "NO");
  combo.SetListIndex(7);
  EXPECT_EQ(combo.ListIndex(), kNoSelection);
  EXPECT_EQ(combo.Text(), "NO");
}

TEST_F(ControlsTest, RaiseChangeForEveryAssignedTextOfAComboBox) {
  ComboBox combo(controls, "cmb");
  combo.AddItem("YES");
  combo.SetListIndex(0);
  const Count changes(combo.Change);
  const Count clicks(combo.Click);
  combo.SetText("YES");
  combo.SetText("YES");
  combo.Type("NO");
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(combo.ListIndex(), kNoSelection);
  combo.Clear();
  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(changes, 3);
}

// --- Text boxes

TEST_F(ControlsTest, RaiseChangeForEveryAssignedTextOfATextBox) {
  TextBox box(controls, "txt");
  const Count changes(box.Change);
  const Count focused(box.GotFocus);
  const Count selected(box.SelectAllRequested);
  box.SetText("a");
  box.SetText("a");
  box.Type("b");
  EXPECT_EQ(box.Text(), "b");
  EXPECT_EQ(changes, 3);
  box.Enter();
  box.SelectAll();
  box.SetMultiLine(true);
  EXPECT_EQ(focused, 1);
  EXPECT_EQ(selected, 1);
  EXPECT_EQ(changes, 3);
}

// --- Buttons

TEST_F(ControlsTest, RaiseClickForAPressedButton) {
  CommandButton button(controls, "cmd");
  const Count clicks(button.Click);
  button.SetCaption("Insert");
  button.SetEnabled(false);
  EXPECT_EQ(clicks, 0);
  button.Press();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, RaiseNoClickForAnAssignedCheckBox) {
  CheckBox box(controls, "chk");
  const Count clicks(box.Click);
  box.SetValue(true);
  EXPECT_EQ(clicks, 0);
  box.Press();
  EXPECT_FALSE(box.Value());
  box.Press();
  EXPECT_TRUE(box.Value());
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, LetAtMostOneOptionBeOn) {
  OptionButton yes(controls, "optYes");
  OptionButton no(controls, "optNo");
  OptionButton::Pair(yes, no);
  const Count clicks(yes.Click);
  const Count otherClicks(no.Click);
  yes.SetValue(true);
  no.SetValue(true);
  EXPECT_FALSE(yes.Value());
  no.SetValue(false);
  EXPECT_FALSE(yes.Value());
  EXPECT_EQ(clicks, 0);
  yes.Press();
  yes.Press();
  EXPECT_TRUE(yes.Value());
  EXPECT_EQ(clicks, 2);
  no.Press();
  EXPECT_FALSE(yes.Value());
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(otherClicks, 1);
}

// --- Tab strips

TEST_F(ControlsTest, SelectTheFirstTabQuietly) {
  TabStrip strip(controls, "tbs");
  const Count clicks(strip.Click);
  EXPECT_EQ(strip.Selected(), 0);
  strip.Add({"One", "k1", "t1", "RedDot"});
  strip.Add({"Two", "k2", "", ""});
  EXPECT_EQ(strip.Selected(), 1);
  strip.SetTabCaption(2, "two");
  strip.SetTabTag(2, "/two");
  strip.SetTabImage(2, "BlackDot");
  EXPECT_EQ(strip.At(2).caption, "two");
  EXPECT_EQ(strip.At(2).tag, "/two");
  EXPECT_EQ(strip.At(2).image, "BlackDot");
  EXPECT_EQ(strip.At(1).image, "RedDot");
  EXPECT_EQ(clicks, 0);
}

TEST_F(ControlsTest, RaiseClickForEverySelectedTab) {
  TabStrip strip(controls, "tbs");
  strip.Add({});
  strip.Add({});
  const Count clicks(strip.Click);
  strip.Select(2);
  strip.Select(2);
  strip.Press(1);
  EXPECT_EQ(strip.Selected(), 1);
  EXPECT_EQ(clicks, 3);
}

TEST_F(ControlsTest, CountTheLastTabAsSelectedWhenTheSelectedOneIsTakenFromTheEnd) {
  TabStrip strip(controls, "tbs");
  for (const char* caption : {"One", "Two", "Three"}) strip.Add({caption, "", "", ""});
  strip.Select(3);
  const Count clicks(strip.Click);
  strip.Remove(3);
  EXPECT_EQ(strip.Selected(), 2);
  strip.Remove(1);
  EXPECT_EQ(strip.At(1).caption, "Two");
  EXPECT_EQ(strip.Selected(), 1);
  strip.Remove(1);
  EXPECT_EQ(strip.Selected(), 0);
  EXPECT_EQ(clicks, 0);
}

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

// --- The file dialog

class CommonDialogTest : public ControlsTest {
 protected:
  auto Show(FakeFileDialogs::Answer answer) {
    services.fileDialogs.answers.push_back(std::move(answer));
    return dialog.Show(services.fileDialogs, services.files, {});
  }

  FakeServices services;
  CommonDialog dialog{controls, "cdlCon"};
};

TEST_F(CommonDialogTest, HoldsNothingAtFirst) {
  EXPECT_EQ(dialog.Held().fileName, "");
  EXPECT_EQ(dialog.Held().fileTitle, "");
}

TEST_F(CommonDialogTest, HoldsTheLastOfTheChosenFiles) {
  EXPECT_THAT(*Show({{"/games/a.con", "/games/b.con"}}),
              ElementsAre("/games/a.con", "/games/b.con"));
  EXPECT_EQ(dialog.Held().fileName, "/games/b.con");
  EXPECT_EQ(dialog.Held().fileTitle, "b.con");
}

TEST_F(CommonDialogTest, HoldsWhatItHeldWhenItIsCancelled) {
  Show({{"/games/a.con"}});
  EXPECT_EQ(Show(std::nullopt), std::nullopt);
  EXPECT_EQ(Show(std::vector<std::string>{}), std::nullopt);
  EXPECT_EQ(dialog.Held().fileName, "/games/a.con");
}

// --- Forms

TEST(FormTest, IsShownAndHidden) {
  Form form("frmFind", "Find");
  const Count refreshes(form.Refresh);
  EXPECT_FALSE(form.Visible());
  form.Show();
  EXPECT_TRUE(form.Visible());
  form.SetCaption("Find Next");
  form.Hide();
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.Caption(), "Find Next");
  EXPECT_EQ(form.Name(), "frmFind");
  EXPECT_EQ(refreshes, 3);
  EXPECT_EQ(form.DefaultButton(), nullptr);
}

}  // namespace
}  // namespace tessel::test
