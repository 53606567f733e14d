#include <string>
#include <vector>

#include "ControlsFixture.h"
#include "models/Lists.h"
#include "models/TextBox.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

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

TEST_F(ControlsTest, TellTheirViewsOnceOfManyNewEntries) {
  ListBox list(controls, "lst");
  list.AddItem("a");
  list.SetListIndex(0);
  const Count refreshes(list.Refresh);
  list.AddItems({"b", "c", "d"});
  EXPECT_EQ(list.List(), (std::vector<std::string>{"a", "b", "c", "d"}));
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(refreshes, 1);
}

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

}  // namespace
}  // namespace tessel::test
