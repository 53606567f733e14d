// An editor that works out of sight comes back, whatever happens.
#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "models/ControlSet.h"
#include "support/SelectionText.h"
#include "surface/Parked.h"

namespace tessel::test {
namespace {

class ParkedEditor : public testing::Test {
 protected:
  ParkedEditor() {
    SetMarked(editor_, "one [two] three");
    editor_.SetHideSelection(false);
  }

  ControlSet set_;
  RichTextBox editor_{set_, "rtbCon"};
};

TEST_F(ParkedEditor, CannotBeSeen) {
  const Parked parked(editor_, Parked::Left::kInFront);
  EXPECT_FALSE(editor_.Visible());
  EXPECT_EQ(editor_.Left(), -20000);
  EXPECT_EQ(Marked(editor_), "one [two] three");
}

TEST_F(ParkedEditor, ComesBackToTheFrontToItsPlaceOrStaysParked) {
  editor_.SetLeft(17);
  { const Parked parked(editor_, Parked::Left::kAsBefore); }
  EXPECT_EQ(editor_.Left(), 17);
  { const Parked parked(editor_, Parked::Left::kInFront); }
  EXPECT_EQ(editor_.Left(), 0);
  { const Parked parked(editor_, Parked::Left::kParked); }
  EXPECT_EQ(editor_.Left(), -20000);
  EXPECT_TRUE(editor_.Visible());
}

TEST_F(ParkedEditor, HasItsCaretAtTheStartAfterwardsAndShowsTheSelection) {
  {
    const Parked parked(editor_, Parked::Left::kInFront, Parked::Selection::kHidden);
    EXPECT_TRUE(editor_.HideSelection());
    EXPECT_EQ(Marked(editor_), "[]one two three");
    editor_.SetSelLength(3);
  }
  EXPECT_FALSE(editor_.HideSelection());
  EXPECT_EQ(Marked(editor_), "[]one two three");
}

TEST_F(ParkedEditor, ComesBackAfterAnError) {
  try {
    const Parked parked(editor_, Parked::Left::kInFront, Parked::Selection::kHidden);
    throw RuntimeError("It went wrong.");
  } catch (const RuntimeError&) {
  }
  EXPECT_TRUE(editor_.Visible());
  EXPECT_EQ(editor_.Left(), 0);
  EXPECT_FALSE(editor_.HideSelection());
}

}  // namespace
}  // namespace tessel::test
