// The levels page: the list of levels, and the map and title of one.
#include "control/Wiring.h"
#include "settings/Levels.h"
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LevelLine, HasEpisodeAndLevelBetweenItsFirstAndThirdBlank) {
  EXPECT_EQ(EpisodeAndLevel("definelevelname 0 7 E1L8.map 05:00 03:00 T"), "0 7");
  EXPECT_EQ(EpisodeAndLevel("definelevelname 1 10 E2L11.map 00:00 00:00 X"), "1 10");
  EXPECT_EQ(EpisodeAndLevel("definelevelname  7 E1L8.map"), " 7");
  EXPECT_EQ(EpisodeAndLevel("definelevelname 0 7 "), "0 7");
}

TEST(LevelLine, HasNoEntryWithFewerThanThreeBlanks) {
  EXPECT_EQ(EpisodeAndLevel(""), std::nullopt);
  EXPECT_EQ(EpisodeAndLevel("definelevelname"), std::nullopt);
  EXPECT_EQ(EpisodeAndLevel("definelevelname 0"), std::nullopt);
  EXPECT_EQ(EpisodeAndLevel("definelevelname 0 7"), std::nullopt);
}

TEST(LevelLine, HasItsTitleFourPositionsBehindTheSecondColon) {
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:00 FIRST STEPS"), "FIRST STEPS");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:00  TWO"), " TWO");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:0 FIRST"), "IRST");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:00 A: B"), "A: B");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:00"), "");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00 03:"), "");
}

TEST(LevelLine, WithoutTwoColonsHasItsTitleFromTheFourthPositionOn) {
  EXPECT_EQ(TitleOfLevel("E1L8.map 0500 0300 T"), "8.map 0500 0300 T");
  EXPECT_EQ(TitleOfLevel("E1L8.map 05:00"), "8.map 05:00");
  EXPECT_EQ(TitleOfLevel("abc"), "");
  EXPECT_EQ(TitleOfLevel(":500 0300 TITLE"), "0 0300 TITLE");
  EXPECT_EQ(TitleOfLevel(""), "");
}

constexpr const char* kTwoLevels =
    "[]// levels\r\n"
    "definelevelname 0 7 E1L8.map 05:00 03:00 FIRST STEPS\r\n"
    "definelevelname 1 10 E2L11.map 00:00 00:00 X\r\n";

class LevelList : public TesselTest {
 protected:
  std::vector<std::string> Listed(const std::string& marked) {
    SetDocument(marked);
    levels_.FillLevelList();
    return C().cboEpisode.List();
  }

  std::string conPath_ = "/maps";
  DocumentList documents_{C()};
  Levels levels_{documents_, LevelsControls(C()), LevelsServices(world_.Get()), conPath_};
};

TEST_F(LevelList, HoldsOneEntryPerLineInTheirOrder) {
  EXPECT_THAT(Listed(kTwoLevels), ElementsAre("0 7", "1 10"));
  EXPECT_THAT(Listed("[]definelevelname 2 1 A\ndefinelevelname 0 1 B\ndefinelevelname 2 1 C"),
              ElementsAre("2 1", "0 1", "2 1"));
}

TEST_F(LevelList, IgnoresCaseAndTakesCommentsAndPartsOfWords) {
  EXPECT_THAT(Listed("[]// DefineLevelName 0 1 A\r\nxdefinelevelnamex 0 2 B"),
              ElementsAre("0 1", "0 2"));
}

TEST_F(LevelList, SkipsLinesWithTooFewBlanks) {
  EXPECT_THAT(Listed("[]definelevelname 0 1\r\ndefinelevelname\r\ndefinelevelname 0 2 B"),
              ElementsAre("0 2"));
}

TEST_F(LevelList, HasAnEntryForEveryMentionInALine) {
  EXPECT_THAT(Listed("[]definelevelname definelevelname 0 1 A"),
              ElementsAre("definelevelname 0", "0 1"));
}

TEST_F(LevelList, IsEmptyWithoutLevels) {
  EXPECT_THAT(Listed(kTwoLevels), testing::SizeIs(2));
  EXPECT_THAT(Listed("[]define A 1"), IsEmpty());
  EXPECT_THAT(Listed("[]"), IsEmpty());
}

TEST_F(LevelList, IsMadeOutOfSight) {
  SetDocument("define A[ 1]\r\ndefinelevelname 0 1 A");
  Current().SetHideSelection(false);
  EditorTrace trace(Current(), world_.pointer);
  levels_.FillLevelList();
  const auto steps = trace.Take();
  ASSERT_GE(steps.size(), 8U);
  EXPECT_THAT(std::vector(steps.begin(), steps.begin() + 5),
              ElementsAre("pointer 11", "hidden", "left -20000", "select 0+0", "selection hidden"));
  EXPECT_THAT(std::vector(steps.end() - 4, steps.end()),
              ElementsAre("select 8+0", "left 0", "visible", "pointer 0"));
  EXPECT_EQ(Document(), "define A[] 1\r\ndefinelevelname 0 1 A");
  EXPECT_TRUE(Current().HideSelection());
  EXPECT_EQ(TabOf(0).image, kBlackDot);
}

TEST_F(LevelList, PutsTheEditorBackWhereItStood) {
  SetDocument(kTwoLevels);
  Current().SetLeft(-20000);
  levels_.FillLevelList();
  EXPECT_EQ(Current().Left(), -20000);
  EXPECT_TRUE(Current().Visible());
}

TEST_F(LevelList, OfAnEmptyDocumentLeavesTheEditorAlone) {
  SetDocument("[]");
  Current().SetHideSelection(false);
  EditorTrace trace(Current(), world_.pointer);
  levels_.FillLevelList();
  EXPECT_THAT(trace.Take(), ElementsAre("pointer 11", "pointer 0"));
}

class Level : public LevelList {
 protected:
  void Choose(int entry) { C().cboEpisode.Pick(entry); }
};

TEST_F(Level, ShowsItsMapAndTitle) {
  Listed(kTwoLevels);
  Choose(0);
  EXPECT_EQ(C().txtMap.Text(), "E1L8.map");
  EXPECT_EQ(C().txtTitle.Text(), "FIRST STEPS");
  EXPECT_EQ(Current().SelText(), "E1L8.map 05:00 03:00 FIRST STEPS");
  EXPECT_FALSE(Current().HideSelection());
  Choose(1);
  EXPECT_EQ(C().txtMap.Text(), "E2L11.map");
  EXPECT_EQ(C().txtTitle.Text(), "X");
  EXPECT_EQ(TabOf(0).image, kBlackDot);
}

TEST_F(Level, LeavesNothingOnThePageWhenTheListStartsAnew) {
  Listed(kTwoLevels);
  for (const auto focus : {&Levels::txtMap_GotFocus, &Levels::txtTitle_GotFocus}) {
    Choose(0);
    (levels_.*focus)();
    C().tbsRtb.SetTabTag(1, "/a.con");
    levels_.DocumentLoaded(documents_.Current());
    EXPECT_EQ(C().cboEpisode.ListIndex(), kNoSelection);
    EXPECT_EQ(C().txtMap.Text(), "");
    EXPECT_EQ(C().txtTitle.Text(), "");
    EXPECT_FALSE(C().cmdInsert[0].Enabled());
    EXPECT_FALSE(C().cmdInsert[1].Enabled());
  }
}

TEST_F(Level, IsTheFirstLineThatBeginsAsTheEntrySays) {
  Listed(
      "[]definelevelname 0 10 TEN.map 00:00 00:00 TEN\r\n"
      "definelevelname 0 1 ONE.map 00:00 00:00 ONE\r\n");
  Choose(1);
  // The position behind the match is one character into the longer number's line.
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_EQ(C().txtTitle.Text(), "TEN");
  levels_.ShowLevel("0 10");
  EXPECT_EQ(C().txtMap.Text(), "TEN.map");
}

// Only a blank ends the map.
TEST_F(Level, WhoseLineEndsBehindItsMapRunsOnIntoTheNext) {
  for (const std::string brk : {"\r\n", "\n"}) {
    Listed("[]definelevelname 0 7 A.map" + brk + "definelevelname 0 8 B.map 01:00 02:00 T" + brk);
    Choose(0);
    EXPECT_EQ(C().txtMap.Text(), "A.map" + brk + "definelevelname");
    EXPECT_EQ(C().txtTitle.Text(), "T");
  }
}

TEST_F(Level, ThatIsNotFoundLeavesTheBoxes) {
  Listed(kTwoLevels);
  Choose(0);
  Current().SetHideSelection(true);
  levels_.ShowLevel("3 3");
  EXPECT_EQ(C().txtMap.Text(), "E1L8.map");
  EXPECT_EQ(C().txtTitle.Text(), "FIRST STEPS");
  EXPECT_EQ(Current().SelStart(), 0);
  EXPECT_EQ(Current().SelLength(), 0);
  EXPECT_FALSE(Current().HideSelection());
}

TEST_F(Level, IsNotLookedForInAnEmptyDocument) {
  Listed(kTwoLevels);
  SetDocument("[]");
  Current().SetHideSelection(true);
  Choose(0);
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_TRUE(Current().HideSelection());
}

TEST_F(Level, ShowsNothingWhenTheSelectionIsTakenAway) {
  Listed(kTwoLevels);
  C().cboEpisode.SetListIndex(-1);
  EXPECT_EQ(C().txtMap.Text(), "");
  EXPECT_EQ(Document(), kTwoLevels);
}

TEST_F(Level, MayEndTheText) {
  Listed("[]definelevelname 0 1 A.map");
  Choose(0);
  EXPECT_EQ(C().txtMap.Text(), "A.map");
  EXPECT_EQ(C().txtTitle.Text(), "ap");
}

using LevelPage = LevelList;

TEST_F(LevelPage, EnablesTheInsertButtonOfTheBoxWithTheFocusAlone) {
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());
  SetDocument(kTwoLevels);
  levels_.FillLevelList();
  C().cboEpisode.Pick(0);
  EXPECT_FALSE(C().cmdInsert[0].Enabled());

  Current().SetHideSelection(true);
  int selectedAll = 0;
  const Subscription map = C().txtMap.SelectAllRequested.Connect([&] { ++selectedAll; });
  C().txtMap.Enter();
  EXPECT_EQ(selectedAll, 1);
  EXPECT_EQ(Current().SelText(), "E1L8.map");
  EXPECT_FALSE(Current().HideSelection());
  EXPECT_TRUE(C().cmdInsert[0].Enabled());
  EXPECT_FALSE(C().cmdInsert[1].Enabled());

  Current().SetHideSelection(true);
  const Subscription title = C().txtTitle.SelectAllRequested.Connect([&] { ++selectedAll; });
  C().txtTitle.Enter();
  EXPECT_EQ(selectedAll, 2);
  EXPECT_EQ(Current().SelText(), "FIRST STEPS");
  EXPECT_FALSE(Current().HideSelection());
  EXPECT_FALSE(C().cmdInsert[0].Enabled());
  EXPECT_TRUE(C().cmdInsert[1].Enabled());
}

TEST_F(LevelPage, ReplacesMapAndTitleInTheDocument) {
  Listed(kTwoLevels);
  C().cboEpisode.Pick(0);
  C().txtMap.Enter();
  C().txtMap.Type("NEW.map");
  C().cmdInsert[0].Press();
  EXPECT_EQ(Document(),
            "// levels\r\n"
            "definelevelname 0 7 NEW.map[] 05:00 03:00 FIRST STEPS\r\n"
            "definelevelname 1 10 E2L11.map 00:00 00:00 X\r\n");
  C().txtTitle.Enter();
  C().txtTitle.Type("LAST STEPS");
  C().cmdInsert[1].Press();
  EXPECT_EQ(Document(),
            "// levels\r\n"
            "definelevelname 0 7 NEW.map 05:00 03:00 LAST STEPS[]\r\n"
            "definelevelname 1 10 E2L11.map 00:00 00:00 X\r\n");
  EXPECT_EQ(TabOf(0).image, kRedDot);
}

TEST_F(LevelPage, TakesTheFirstOccurrenceAnywhere) {
  SetDocument("[]// e1l8.MAP\r\ndefinelevelname 0 7 E1L8.map 05:00 03:00 T");
  C().txtMap.SetText("E1L8.map");
  C().txtMap.Enter();
  EXPECT_EQ(Document(), "// [e1l8.MAP]\r\ndefinelevelname 0 7 E1L8.map 05:00 03:00 T");
}

TEST_F(LevelPage, ReplacesWhateverIsSelectedWhenTheTextIsNotFound) {
  SetDocument("one [two] three");
  C().txtTitle.SetText("absent");
  C().txtTitle.Enter();
  EXPECT_EQ(Document(), "one [two] three");
  EXPECT_TRUE(C().cmdInsert[1].Enabled());
  C().cmdInsert[1].Press();
  EXPECT_EQ(Document(), "one absent[] three");
  C().cmdInsert[1].Press();
  EXPECT_EQ(Document(), "one absent[] three");
}

TEST_F(LevelPage, FindsNothingForAnEmptyBox) {
  SetDocument("one [two] three");
  C().txtMap.Enter();
  EXPECT_EQ(Document(), "one [two] three");
  C().cmdInsert[0].Press();
  EXPECT_EQ(Document(), "one [] three");
}

}  // namespace
}  // namespace tessel::test
