// Parameter Info: the word at the caret.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ControlFixture.h"

namespace tessel {
namespace {

using Box = test::FakeMessageBox::Shown;

class ParameterInfo : public test::ControlFixture {
 protected:
  ParameterInfo() {
    services_.settings.SaveSetting("ConWords", "NAMEspawn", "spawn");
    services_.settings.SaveSetting("ConWords", "PARAMSspawn", "[actor]");
    control_.Initialize();
  }
  std::string At(std::string_view marked) {
    Given(marked);
    Choose("mnuRtbPopupToolsParameters");
    return Shown();
  }
  std::string Searched() { return Controls().txtSearch.Text(); }
};

TEST_F(ParameterInfo, SelectsTheWordAroundTheCaretAndShowsItsParameters) {
  EXPECT_EQ(At("{ sp[]awn 12 }"), "{ [spawn] 12 }");
  EXPECT_EQ(Searched(), "spawn");
  EXPECT_EQ(Controls().lstWords.ListIndex(), 0);
  EXPECT_EQ(Controls().lblParams.Caption(), "[actor]");
  EXPECT_EQ(Controls().tbsCon.Selected(), 6);
  EXPECT_EQ(Controls().picCon[5].Left(), 120);
  EXPECT_TRUE(services_.messages.shown.empty());
}

TEST_F(ParameterInfo, TakesTheWordAtEitherOfItsEdges) {
  EXPECT_EQ(At("{ []spawn 12 }"), "{ [spawn] 12 }");
  EXPECT_EQ(At("{ spawn[] 12 }"), "{ [spawn] 12 }");
}

TEST_F(ParameterInfo, EndsTheWordAtTabsBlanksBreaksAndTheEndsOfTheText) {
  EXPECT_EQ(At("a\tb[]c\td"), "a\t[bc]\td");
  EXPECT_EQ(At("a\r\nb[]c\r\nd"), "a\r\n[bc]\r\nd");
  EXPECT_EQ(At("a\nb[]c\nd"), "a\n[bc]\nd");
  EXPECT_EQ(At("b[]c"), "[bc]");
  EXPECT_EQ(At("x/*b[]c,(d) e"), "[x/*bc,(d)] e");
}

TEST_F(ParameterInfo, TakesTheLastWordThatASelectionReachesInto) {
  EXPECT_EQ(At("one [two th]ree four"), "one two [three] four");
  EXPECT_EQ(At("one [two ]three"), "one two [three]");
}

TEST_F(ParameterInfo, RefusesBlankSpace) {
  for (const char* marked : {"a  [] b", "[]", "a\r\n[]\r\nb", "a [ ]\tb"}) {
    services_.messages.shown.clear();
    Controls().tbsCon.Select(2);
    Controls().txtSearch.Type("kept");
    At(marked);
    EXPECT_EQ(services_.messages.shown,
              (std::vector<Box>{{"No text selected. Please highlight a function or word.",
                                 MessageIcon::kExclamation, "Zanth Manager", MessageButtons::kOk}}))
        << marked;
    EXPECT_EQ(Searched(), "kept");
    EXPECT_EQ(Controls().tbsCon.Selected(), 2);
  }
}

TEST_F(ParameterInfo, LeavesTheDocumentAsItIs) {
  services_.files.files["/c/user.con"] = "spawn 12";
  control_.OpenFile("/c/user.con");
  Editor().SelectByHand(2, 0);
  PressItem("Tools", "Parameter");
  EXPECT_EQ(Shown(), "[spawn] 12");
  EXPECT_EQ(ImageOfTab(1), "BlackDot");
  EXPECT_EQ(Controls().tbsCon.Selected(), 6);
}

TEST_F(ParameterInfo, BringsAHiddenPanelBackAlsoForBlankSpace) {
  for (const char* marked : {"sp[]awn", "[]"}) {
    Press("ShowTabs");
    ASSERT_LT(Controls().tbsCon.Left(), 0);
    At(marked);
    EXPECT_TRUE(Controls().tbToolBar.Pressed("ShowTabs"));
    EXPECT_EQ(Controls().tbsCon.Left(), 0);
    EXPECT_EQ(Controls().tbsCon.Height(), 2055);
  }
}

TEST_F(ParameterInfo, SearchesAWordThatIsNotListed) {
  EXPECT_EQ(At("sp[]anner"), "[spanner]");
  EXPECT_EQ(Searched(), "spanner");
  EXPECT_EQ(Controls().lblParams.Caption(), "[actor]");  // shares "spa" with it
}

}  // namespace
}  // namespace tessel
