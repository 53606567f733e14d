// Typing in the value boxes, choosing presets, and the YES/NO options.
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;

class ValueBoxes : public TesselTest {
 protected:
  std::string Typed(const std::string& marked, const std::string& text, int box = 0) {
    SetDocument(marked);
    C().cmbweap[box].Type(text);
    return Document();
  }
  std::string Picked(const std::string& marked, int preset, int box = 0) {
    SetDocument(marked);
    C().cmbweap[box].Pick(preset);
    return Document();
  }
};

TEST_F(ValueBoxes, OfferThePresetsAll) {
  for (int box = 0; box < 4; ++box) {
    EXPECT_THAT(C().cmbweap[box].List(),
                ElementsAre("0", "5", "10", "15", "25", "50", "75", "100", "200", "300", "400",
                            "500", "600", "700", "800", "900", "1000", "2000", "3000", "4000",
                            "5000", "6000", "7000"));
    EXPECT_TRUE(C().cmbweap[box].Editable());
    EXPECT_EQ(C().lblValue[box].Caption(), "Current Value:");
  }
}

TEST_F(ValueBoxes, WriteWhatIsTypedOverTheSelectedValue) {
  for (int box = 0; box < 4; ++box) {
    EXPECT_EQ(Typed("define A [100] // x", "75", box), "define A [75] // x");
    EXPECT_EQ(TabOf(0).image, kRedDot);
  }
}

TEST_F(ValueBoxes, WriteZeroForAnEmptyTextOrABlankOnce) {
  for (const char* text : {"", " "}) {
    SetDocument("define A [100] // x");
    int changes = 0;
    const Subscription counting = Current().Change.Connect([&] { ++changes; });
    C().cmbweap[0].Type(text);
    EXPECT_EQ(Document(), "define A [0] // x");
    EXPECT_EQ(C().cmbweap[0].Text(), "0");
    EXPECT_EQ(changes, 1);
  }
}

TEST_F(ValueBoxes, WriteNothingForTwoBlanks) {
  EXPECT_EQ(Typed("define A [100] // x", "  "), "define A [100] // x");
  EXPECT_EQ(TabOf(0).image, kBlackDot);
}

TEST_F(ValueBoxes, WriteNothingTypedWhenNothingIsSelected) {
  EXPECT_EQ(Typed("define A []100", "7"), "define A []100");
  EXPECT_EQ(Typed("define A []100", ""), "define A []100");
  EXPECT_EQ(C().cmbweap[0].Text(), "0");
}

TEST_F(ValueBoxes, NeverOverwriteYesOrNo) {
  EXPECT_EQ(Typed("define A [YES]", "7"), "define A [YES]");
  EXPECT_EQ(Typed("define A [NO]", "7"), "define A [NO]");
  EXPECT_EQ(Typed("define A [YES]", ""), "define A [YES]");
  EXPECT_EQ(C().cmbweap[0].Text(), "");
  EXPECT_EQ(Picked("define A [YES]", 3), "define A [YES]");
  EXPECT_EQ(Picked("define A [NO]", 3), "define A [NO]");
}

TEST_F(ValueBoxes, OverwriteOtherSpellingsOfYesAndNo) {
  EXPECT_EQ(Typed("define A [yes]", "7"), "define A [7]");
  EXPECT_EQ(Typed("define A [No]", "7"), "define A [7]");
  EXPECT_EQ(Typed("define A [YES ]B", "7"), "define A [7]B");
}

TEST_F(ValueBoxes, WriteAChosenPresetButZero) {
  EXPECT_EQ(Picked("define A [100] // x", 1, 2), "define A [5] // x");
  EXPECT_EQ(Picked("define A [100] // x", 22, 3), "define A [7000] // x");
  EXPECT_EQ(Picked("define A [100] // x", 0), "define A [100] // x");
  EXPECT_EQ(C().cmbweap[0].Text(), "0");
}

TEST_F(ValueBoxes, InsertAChosenPresetWhereNothingIsSelected) {
  EXPECT_EQ(Picked("define A []", 1), "define A [5]");
}

TEST_F(ValueBoxes, WriteNothingWhenTheSelectionOfAPresetIsTakenAway) {
  EXPECT_EQ(Picked("define A [100]", -1), "define A [100]");
}

TEST_F(ValueBoxes, WriteIntoTheCurrentDocument) {
  Open("/a.con", "define BOOT_AMOUNT 1");
  Open("/b.con", "define BOOT_AMOUNT 2");
  C().lstPlayers.Pick(9);
  C().cmbweap[0].Type("7");
  EXPECT_EQ(Editor(0).Text(), "define BOOT_AMOUNT 1");
  EXPECT_EQ(Editor(1).Text(), "define BOOT_AMOUNT 7");
  EXPECT_EQ(TabOf(0).image, kBlackDot);
  EXPECT_EQ(TabOf(1).image, kRedDot);
}

TEST_F(ValueBoxes, SelectTheLastTokenOfWhatWasWritten) {
  EXPECT_EQ(Typed("define A [100] // x", "7 8"), "define A 7 [8] // x");
  EXPECT_EQ(Typed("define A [100] // x", "   "), "define A    [] // x");
}

using YesNoOptions = ValueBoxes;

TEST_F(YesNoOptions, WriteTheirAnswerAndSelectIt) {
  SetDocument("[]define CAMERASDESTRUCTABLE NO // a\r\ndefine FREEZERHURTOWNER YES\r\n");
  C().optCamYes.Press();
  EXPECT_EQ(Document(), "define CAMERASDESTRUCTABLE [YES] // a\r\ndefine FREEZERHURTOWNER YES\r\n");
  C().optFreezNo.Press();
  EXPECT_EQ(Document(), "define CAMERASDESTRUCTABLE YES // a\r\ndefine FREEZERHURTOWNER [NO]\r\n");
  C().optCamNo.Press();
  EXPECT_EQ(Document(), "define CAMERASDESTRUCTABLE [NO] // a\r\ndefine FREEZERHURTOWNER NO\r\n");
  C().optFreezYes.Press();
  EXPECT_EQ(Document(), "define CAMERASDESTRUCTABLE NO // a\r\ndefine FREEZERHURTOWNER [YES]\r\n");
  EXPECT_FALSE(Current().HideSelection());
  EXPECT_EQ(TabOf(0).image, kRedDot);
}

TEST_F(YesNoOptions, SearchWhileTheSelectionIsHidden) {
  SetDocument("[]define CAMERASDESTRUCTABLE YES");
  Current().SetHideSelection(false);
  EditorTrace trace(Current(), world_.pointer);
  C().optCamNo.Press();
  EXPECT_EQ(trace.Take().at(0), "selection hidden");
  EXPECT_FALSE(Current().HideSelection());
}

TEST_F(YesNoOptions, EnableTheValueBoxOfTheMiscPage) {
  for (OptionButton* option : {&C().optCamYes, &C().optCamNo, &C().optFreezYes, &C().optFreezNo}) {
    C().cmbweap[3].SetEnabled(false);
    C().lblValue[3].SetEnabled(false);
    option->Press();
    EXPECT_TRUE(C().cmbweap[3].Enabled());
    EXPECT_TRUE(C().lblValue[3].Enabled());
  }
}

TEST_F(YesNoOptions, ExcludeEachOtherInTheirPair) {
  C().optCamYes.Press();
  C().optFreezNo.Press();
  EXPECT_TRUE(C().optCamYes.Value());
  EXPECT_FALSE(C().optCamNo.Value());
  C().optCamNo.Press();
  EXPECT_FALSE(C().optCamYes.Value());
  EXPECT_TRUE(C().optFreezNo.Value());
}

TEST_F(YesNoOptions, OverwriteTheTokenAtTheCaretWhenTheirDefineIsMissing) {
  SetDocument("one [two] three // four");
  C().optCamYes.Press();
  EXPECT_EQ(Document(), "one two [YES] // four");
}

TEST_F(YesNoOptions, SearchTheirDefineAsAWholeWord) {
  SetDocument("[]define XCAMERASDESTRUCTABLE NO\r\ndefine CAMERASDESTRUCTABLE NO");
  C().optCamYes.Press();
  EXPECT_EQ(Document(), "define XCAMERASDESTRUCTABLE NO\r\ndefine CAMERASDESTRUCTABLE [YES]");
}

TEST_F(YesNoOptions, ProtectTheirAnswerFromTheValueBox) {
  SetDocument("[]define FREEZERHURTOWNER YES");
  C().optFreezNo.Press();
  C().cmbweap[3].Type("12");
  EXPECT_EQ(Document(), "define FREEZERHURTOWNER [NO]");
}

}  // namespace
}  // namespace tessel::test
