// The lists of the settings panel and what choosing from them shows.
#include "settings/ItemTables.h"
#include "support/EditorTrace.h"
#include "support/TesselTest.h"

namespace tessel::test {
namespace {

using testing::IsEmpty;

class SettingsLists : public TesselTest {
 protected:
  int RowOf(const ListBox& list, const std::string& name) {
    for (int i = 0; i < list.ListCount(); ++i) {
      if (list.List(i) == name) return i;
    }
    ADD_FAILURE() << name << " is not listed";
    return kNoSelection;
  }
  void Pick(ListBox& list, const std::string& name) { list.Pick(RowOf(list, name)); }
};

template <class Row>
std::vector<std::string> NamesOf(std::span<const Row> rows) {
  std::vector<std::string> names;
  for (const Row& row : rows) names.emplace_back(row.name);
  return names;
}

TEST_F(SettingsLists, HoldEveryNameOfTheNewerDialectFromTheStart) {
  EXPECT_EQ(C().lstPlayers.List(), NamesOf<Item>(PlayerItemTable));
  EXPECT_EQ(C().lstWeapInfo.List(), NamesOf<WeaponCategory>(WeaponCategoryTable));
  EXPECT_THAT(C().lstWeapon.List(), IsEmpty());
  EXPECT_EQ(C().lstEnemy.List(), NamesOf<Item>(EnemyItemTable));
  EXPECT_EQ(C().lstConMisc.List(), NamesOf<Item>(MiscItemTable));
}

TEST_F(SettingsLists, EnableTheValueBoxAndLabelOfTheirPageAlone) {
  for (int page = 0; page < 4; ++page) {
    EXPECT_FALSE(C().cmbweap[page].Enabled()) << page;
    EXPECT_FALSE(C().lblValue[page].Enabled()) << page;
  }
  Pick(C().lstEnemy, "Shark");
  for (int page = 0; page < 4; ++page) {
    EXPECT_EQ(C().cmbweap[page].Enabled(), page == 2) << page;
    EXPECT_EQ(C().lblValue[page].Enabled(), page == 2) << page;
  }
  Pick(C().lstPlayers, "Boot");
  EXPECT_TRUE(C().cmbweap[0].Enabled());
  EXPECT_TRUE(C().lblValue[0].Enabled());
  Pick(C().lstConMisc, "Thaw Time");
  EXPECT_TRUE(C().cmbweap[3].Enabled());
  EXPECT_TRUE(C().lblValue[3].Enabled());
}

TEST_F(SettingsLists, ShowThePlayersValue) {
  SetDocument("[]define XMAXPLAYERHEALTH 1\r\ndefine MAXPLAYERHEALTH 100 // start\r\n");
  Pick(C().lstPlayers, "Max Regular Health");
  EXPECT_EQ(Document(), "define XMAXPLAYERHEALTH 1\r\ndefine MAXPLAYERHEALTH [100] // start\r\n");
  EXPECT_EQ(C().cmbweap[0].Text(), "100");
  EXPECT_FALSE(Current().HideSelection());
  EXPECT_EQ(TabOf(0).image, kBlackDot);
}

TEST_F(SettingsLists, LookTheKeyUpAndNotTheName) {
  SetDocument(
      "[]define HOLOZANTH_AMOUNT 12\r\ndefine MEDKIT AMOUNT_AMOUNT 1\r\n"
      "define FIRSTAID_AMOUNT 34\r\n");
  Pick(C().lstPlayers, "Holozanth");
  EXPECT_EQ(C().cmbweap[0].Text(), "12");
  Pick(C().lstPlayers, "Medkit Amount");
  EXPECT_EQ(C().cmbweap[0].Text(), "34");
}

TEST_F(SettingsLists, SearchEnemiesAsWholeWords) {
  SetDocument("[]define BOSS1PALSTRENGTHX 1\ndefine PIGCOPSTRENGTH 2\ndefine BOSS1PALSTRENGTH 3");
  Pick(C().lstEnemy, "Mini Boss");
  EXPECT_EQ(C().cmbweap[2].Text(), "3");
}

TEST_F(SettingsLists, SearchMiscItemsAnywhere) {
  SetDocument("[]define MYQSIZEX 64\ndefine QSIZE 32");
  Pick(C().lstConMisc, "Bullet Holes, Blood, Money");
  EXPECT_EQ(C().cmbweap[3].Text(), "64");
}

TEST_F(SettingsLists, LeaveTheBoxAndTheSelectionHiddenOnAMiss) {
  SetDocument("define [BOOT_AMOUNT] 1");
  C().cmbweap[0].SetText("12");
  SetDocument("define [BOOT_AMOUNT] 1");
  Pick(C().lstPlayers, "Armor");
  EXPECT_EQ(C().cmbweap[0].Text(), "12");
  EXPECT_EQ(Document(), "define [BOOT_AMOUNT] 1");
  EXPECT_TRUE(Current().HideSelection());
}

TEST_F(SettingsLists, HideTheSelectionBeforeTheyMoveItAndShowItAfterwards) {
  SetDocument("[]define BOOT_AMOUNT 1");
  Current().SetHideSelection(false);
  EditorTrace trace(Current(), world_.pointer);
  Pick(C().lstPlayers, "Boot");
  const auto steps = trace.Take();
  EXPECT_EQ(steps.front(), "selection hidden");
  EXPECT_EQ(steps.back(), "selection shown");
  EXPECT_THAT(steps, testing::Contains("select 7+11"));
  EXPECT_THAT(steps, testing::Contains("select 19+1"));
}

TEST_F(SettingsLists, DoNothingWhenTheirSelectionIsTakenAway) {
  SetDocument("[]define BOOT_AMOUNT 1");
  C().lstPlayers.SetListIndex(-1);
  C().lstEnemy.SetListIndex(-1);
  C().lstConMisc.SetListIndex(-1);
  C().lstWeapInfo.SetListIndex(-1);
  C().lstWeapon.SetListIndex(-1);
  for (int page = 0; page < 4; ++page) EXPECT_FALSE(C().cmbweap[page].Enabled()) << page;
  EXPECT_EQ(Document(), "[]define BOOT_AMOUNT 1");
}

TEST_F(SettingsLists, ReadTheDocumentThatIsCurrentWhenTheyAreClicked) {
  Open("/a.con", "define BOOT_AMOUNT 1");
  Pick(C().lstPlayers, "Boot");
  Open("/b.con", "define BOOT_AMOUNT 2");
  EXPECT_EQ(C().cmbweap[0].Text(), "1");
  EXPECT_EQ(C().lstPlayers.List(C().lstPlayers.ListIndex()), "Boot");
  Pick(C().lstPlayers, "Boot");
  EXPECT_EQ(C().cmbweap[0].Text(), "2");
}

constexpr const char* kWeapons =
    "[]define MAXPISTOLAMMO 200\r\n"
    "define MAXSHOTGUNAMMO 50\r\n"
    "define HANDBOMBAMMO 1\r\n"
    "define PISTOLAMMOAMOUNT 12\r\n"
    "define HANDBOMBBOX 5\r\n"
    "// Weapon Strengths\r\n"
    "define KNEE_WEAPON_STRENGTH 10\r\n"
    "define TRIPBOMB_STRENGTH 100\r\n"
    "// Various blast radius distances\r\n"
    "define PIPEBOMBRADIUS 2500\r\n";

TEST_F(SettingsLists, JumpToTheSectionOfAWeaponCategory) {
  SetDocument(kWeapons);
  const std::vector<std::string> markers = {"define MAXPISTOLAMMO", "define PISTOLAMMOAMOUNT",
                                            "// Weapon Strengths",
                                            "// Various blast radius distances"};
  for (int category = 0; category < 4; ++category) {
    Current().SetHideSelection(false);
    C().lstWeapInfo.Pick(category);
    EXPECT_EQ(Current().SelText(), markers[static_cast<std::size_t>(category)]);
    EXPECT_TRUE(Current().HideSelection());
    EXPECT_EQ(C().cmbweap[1].Text(), "  ");
    EXPECT_TRUE(C().cmbweap[1].Enabled());
    EXPECT_TRUE(C().lblValue[1].Enabled());
  }
  EXPECT_EQ(Current().Text(), ReadSelection(kWeapons).text);
}

TEST_F(SettingsLists, FindTheSectionAlsoInsideOfALongerWord) {
  SetDocument("[]x\r\n// Weapon Strengths2\r\n");
  C().lstWeapInfo.Pick(2);
  EXPECT_EQ(Current().SelText(), "// Weapon Strengths");
}

TEST_F(SettingsLists, OfferTheWeaponsOfTheCategory) {
  for (std::size_t category = 0; category < WeaponCategoryTable.size(); ++category) {
    C().lstWeapInfo.Pick(static_cast<int>(category));
    EXPECT_EQ(C().lstWeapon.List(), NamesOf(WeaponCategoryTable[category].weapons)) << category;
  }
}

TEST_F(SettingsLists, ShowTheWeaponsValue) {
  SetDocument(kWeapons);
  const auto value = [&](int category, const std::string& weapon) {
    C().lstWeapInfo.Pick(category);
    Pick(C().lstWeapon, weapon);
    return C().cmbweap[1].Text();
  };
  EXPECT_EQ(value(0, "Pistol"), "200");
  EXPECT_EQ(value(0, "Shotgun"), "50");
  EXPECT_EQ(value(1, "Pistol"), "12");
  EXPECT_EQ(value(1, "Handbomb"), "5");
  EXPECT_EQ(value(2, "Kicking"), "10");
  EXPECT_EQ(value(2, "Tripbomb"), "100");
  EXPECT_EQ(value(3, "Handbomb"), "2500");
  EXPECT_EQ(value(3, "Seenine"), "  ");
}

TEST_F(SettingsLists, LeaveTheDocumentAloneWhenACategoryIsPickedWithAValueSelected) {
  SetDocument("define A [100]");
  C().lstWeapInfo.Pick(2);
  EXPECT_EQ(Document(), "define A [100]");
}

}  // namespace
}  // namespace tessel::test
