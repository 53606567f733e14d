#include "ControlsFixture.h"
#include "models/TabStrip.h"

namespace tessel::test {
namespace {

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

}  // namespace
}  // namespace tessel::test
