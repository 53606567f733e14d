#include <stdexcept>
#include <string>
#include <vector>

#include "ControlsFixture.h"
#include "models/Buttons.h"
#include "models/ControlArray.h"
#include "models/Form.h"
#include "models/TextBox.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

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
