// The item tables and the keys made from them, against a copy written down on its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "settings/ItemTables.h"

namespace tessel {
namespace {

using testing::ElementsAre;
using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs Rows(std::span<const Item> items, bool newerDialectOnly) {
  Pairs rows;
  for (const Item& item : items) {
    if (item.newerDialectOnly == newerDialectOnly) rows.emplace_back(item.name, item.key);
  }
  return rows;
}

TEST(PlayerItems, HaveTheseNamesAndKeys) {
  EXPECT_EQ(Rows(PlayerItemTable, false), (Pairs{{"Max Regular Health", "MAXPLAYERHEALTH"},
                                                 {"Max Atomic Health", "MAXPLAYERATOMICHEALTH"},
                                                 {"Armor", "STARTARMORHEALTH"},
                                                 {"Steroid", "STEROID_AMOUNT"},
                                                 {"Shield", "SHIELD_AMOUNT"},
                                                 {"Scuba", "SCUBA_AMOUNT"},
                                                 {"Holozanth", "HOLOZANTH_AMOUNT"},
                                                 {"Jetpack", "JETPACK_AMOUNT"},
                                                 {"Medkit Amount", "FIRSTAID_AMOUNT"},
                                                 {"Boot", "BOOT_AMOUNT"}}));
  EXPECT_EQ(Rows(PlayerItemTable, true), Pairs());
}

TEST(EnemyItems, HaveTheseNamesAndKeys) {
  EXPECT_EQ(Rows(EnemyItemTable, false), (Pairs{{"Trooper", "TROOPSTRENGTH"},
                                                {"Pig Cop", "PIGCOPSTRENGTH"},
                                                {"Pig Cop Armor 1", "PIG_SHIELD_AMOUNT1"},
                                                {"Pig Cop Armor 2", "PIG_SHIELD_AMOUNT2"},
                                                {"Lizard Enforcer", "LIZSTRENGTH"},
                                                {"Octabrain", "OCTASTRENGTH"},
                                                {"Recon Car", "RECONSTRENGTH"},
                                                {"Regular Turret", "TURRETSTRENGTH"},
                                                {"Rotating Turret", "ROTTURRETSTRENGTH"},
                                                {"Sentry Drone", "DRONESTRENGTH"},
                                                {"Fat Commander", "COMMANDERSTRENGTH"},
                                                {"Shark", "SHARKSTRENGTH"},
                                                {"Episode 1 Boss", "BOSS1STRENGTH"},
                                                {"Mini Boss", "BOSS1PALSTRENGTH"},
                                                {"Episode 2 Boss", "BOSS2STRENGTH"},
                                                {"Episode 3 Boss", "BOSS3STRENGTH"}}));
  EXPECT_EQ(Rows(EnemyItemTable, true), (Pairs{{"Episode 4 Boss", "BOSS4STRENGTH"},
                                               {"NewBeast", "NEWBEASTSTRENGTH"},
                                               {"NewBeast Scratch", "NEWBEASTSCRATCHAMOUNT"},
                                               {"Dolphin", "DOLPHINSTRENGTH"}}));
}

TEST(MiscItems, HaveTheseNamesAndKeys) {
  EXPECT_EQ(Rows(MiscItemTable, false),
            (Pairs{{"Max Water Fountain Health", "MAXWATERFOUNTAINHEALTH"},
                   {"Retrieve Distance", "RETRIEVEDISTANCE"},
                   {"Squishable Distance", "SQUISHABLEDISTANCE"},
                   {"Default Visibility", "DEFAULTVISIBILITY"},
                   {"Frozen Quick Kick Distance", "FROZENQUICKKICKDIST"},
                   {"Generic Impact Damage", "GENERICIMPACTDAMAGE"},
                   {"Swear Frequency", "SWEARFREQUENCY"},
                   {"Respawn Actor Time", "RESPAWNACTORTIME"},
                   {"Respawn Item Time", "RESPAWNITEMTIME"},
                   {"Number of Freeze Bounces", "NUMFREEZEBOUNCES"},
                   {"Frozen Drip Time", "FROZENDRIPTIME"},
                   {"Thaw Time", "THAWTIME"}}));
  EXPECT_EQ(Rows(MiscItemTable, true), (Pairs{{"Bullet Holes, Blood, Money", "QSIZE"}}));
}

TEST(YesNoSettings, HaveTheseKeys) {
  EXPECT_EQ(kCamerasDestructable, "CAMERASDESTRUCTABLE");
  EXPECT_EQ(kFreezerHurtOwner, "FREEZERHURTOWNER");
}

TEST(WeaponCategories, HaveTheseNamesAndSectionMarkers) {
  Pairs rows;
  for (const WeaponCategory& category : WeaponCategoryTable) {
    rows.emplace_back(category.name, category.sectionMarker);
  }
  EXPECT_EQ(rows, (Pairs{{"Max Weapon Ammo", "define MAXPISTOLAMMO"},
                         {"Box Ammo Amount", "define PISTOLAMMOAMOUNT"},
                         {"Weapon Strength", "// Weapon Strengths"},
                         {"Blast Radius", "// Various blast radius distances"}}));
}

/// The weapons of a category with the keys that choosing them searches.
Pairs WeaponsAndKeys(int category) {
  Pairs rows;
  for (const Weapon& weapon : WeaponCategoryTable.at(static_cast<std::size_t>(category)).weapons) {
    const int position = static_cast<int>(rows.size());
    EXPECT_EQ(WeaponKey(category, weapon.name, position), weapon.key);
    rows.emplace_back(weapon.name, weapon.key);
  }
  return rows;
}

TEST(WeaponKeys, OfTheMaximaSurroundTheName) {
  EXPECT_EQ(WeaponsAndKeys(0), (Pairs{{"Pistol", "define MAXPISTOLAMMO"},
                                      {"Shotgun", "define MAXSHOTGUNAMMO"},
                                      {"Chaingun", "define MAXCHAINGUNAMMO"},
                                      {"RPG", "define MAXRPGAMMO"},
                                      {"Handbomb", "define MAXHANDBOMBAMMO"},
                                      {"Shrinker", "define MAXSHRINKERAMMO"},
                                      {"Devistator", "define MAXDEVISTATORAMMO"},
                                      {"Tripbomb", "define MAXTRIPBOMBAMMO"},
                                      {"Freeze", "define MAXFREEZEAMMO"}}));
}

TEST(WeaponKeys, OfTheBoxesSurroundTheNameButForHandbombs) {
  EXPECT_EQ(WeaponsAndKeys(1), (Pairs{{"Pistol", "define PISTOLAMMO"},
                                      {"Shotgun", "define SHOTGUNAMMO"},
                                      {"Chaingun", "define CHAINGUNAMMO"},
                                      {"RPG", "define RPGAMMO"},
                                      {"Handbomb", "define HANDBOMBBOX"},
                                      {"Shrinker", "define SHRINKERAMMO"},
                                      {"Devistator", "define DEVISTATORAMMO"},
                                      {"Freeze", "define FREEZEAMMO"}}));
}

TEST(WeaponKeys, OfTheStrengthsFollowTheNameButForThree) {
  EXPECT_EQ(WeaponsAndKeys(2), (Pairs{{"Kicking", "KNEE_WEAPON_STRENGTH"},
                                      {"Pistol", "PISTOL_WEAPON_STRENGTH"},
                                      {"Shotgun", "SHOTGUN_WEAPON_STRENGTH"},
                                      {"Chaingun", "CHAINGUN_WEAPON_STRENGTH"},
                                      {"RPG", "RPG_WEAPON_STRENGTH"},
                                      {"Handbomb", "HANDBOMB_WEAPON_STRENGTH"},
                                      {"Tripbomb", "TRIPBOMB_STRENGTH"},
                                      {"Freeze", "FREEZETHROWER_WEAPON_STRENGTH"},
                                      {"Shrinker", "SHRINKER_WEAPON_STRENGTH"},
                                      {"Morter", "MORTER_WEAPON_STRENGTH"},
                                      {"Firelaser", "FIRELASER_WEAPON_STRENGTH"},
                                      {"Bouncemine", "BOUNCEMINE_WEAPON_STRENGTH"},
                                      {"Spit", "SPIT_WEAPON_STRENGTH"},
                                      {"Bullet", "BULLET_WEAPON_STRENGTH"}}));
}

TEST(WeaponKeys, OfTheRadiiFollowTheNameButForHandbombs) {
  EXPECT_EQ(WeaponsAndKeys(3), (Pairs{{"RPG", "RPGBLASTRADIUS"},
                                      {"Handbomb", "PIPEBOMBRADIUS"},
                                      {"Shrinker", "SHRINKERBLASTRADIUS"},
                                      {"Tripbomb", "TRIPBOMBBLASTRADIUS"},
                                      {"Morter", "MORTERBLASTRADIUS"},
                                      {"Bouncemine", "BOUNCEMINEBLASTRADIUS"},
                                      {"Seenine", "SEENINEBLASTRADIUS"}}));
}

TEST(WeaponKeys, BehindTheEndsOfTheListsAreFixedToo) {
  EXPECT_EQ(WeaponKey(1, "Anything", 8), "GROWCRYSTALAMMOAMOUNT");
  EXPECT_EQ(WeaponKey(2, "Anything", 14), "ANYTHING_WEAPON_STRENGTH");
  EXPECT_EQ(WeaponKey(2, "Anything", 15), "TRIPBOMBLASERMODE");
  EXPECT_EQ(WeaponKey(2, "Anything", 16), "MAXXSTRETCH");
  EXPECT_EQ(WeaponKey(2, "Anything", 17), "MAXYSTRETCH");
  EXPECT_EQ(WeaponKey(2, "Anything", 18), "MINXSTRETCH");
  EXPECT_EQ(WeaponKey(2, "Anything", 19), "MINYSTRETCH");
  EXPECT_EQ(WeaponKey(2, "Anything", 20), "ANYTHING_WEAPON_STRENGTH");
}

TEST(WeaponKeys, FollowThePositionAndTheNameGiven) {
  EXPECT_EQ(WeaponKey(0, "Ray", 0), "define MAXRAYAMMO");
  EXPECT_EQ(WeaponKey(0, "Ray", -1), "define MAXRAYAMMO");
  EXPECT_EQ(WeaponKey(0, "Ray", 99), "define MAXRAYAMMO");
  EXPECT_EQ(WeaponKey(1, "Ray", 3), "define RAYAMMO");
  EXPECT_EQ(WeaponKey(1, "Ray", 4), "define RAYBOX");
  EXPECT_EQ(WeaponKey(1, "Ray", 99), "define RAYAMMO");
  EXPECT_EQ(WeaponKey(1, "Handbomb", 3), "define HANDBOMBAMMO");
  EXPECT_EQ(WeaponKey(2, "Ray", 1), "RAY_WEAPON_STRENGTH");
  EXPECT_EQ(WeaponKey(2, "Kicking", 1), "KICKING_WEAPON_STRENGTH");
  EXPECT_EQ(WeaponKey(3, "Handbomb", 0), "HANDBOMBBLASTRADIUS");
  EXPECT_EQ(WeaponKey(3, "Ray", 99), "RAYBLASTRADIUS");
}

TEST(WeaponKeys, OfFourPlacesStandWhateverTheName) {
  EXPECT_EQ(WeaponKey(2, "Ray", 0), "KNEE_WEAPON_STRENGTH");
  EXPECT_EQ(WeaponKey(2, "Ray", 6), "TRIPBOMB_STRENGTH");
  EXPECT_EQ(WeaponKey(2, "Ray", 7), "FREEZETHROWER_WEAPON_STRENGTH");
  EXPECT_EQ(WeaponKey(3, "Ray", 1), "PIPEBOMBRADIUS");
}

TEST(WeaponKeys, AreEmptyOutsideTheFourCategories) {
  EXPECT_EQ(WeaponKey(-1, "Pistol", 0), "");
  EXPECT_EQ(WeaponKey(4, "Pistol", 0), "");
}

TEST(PresetValues, AreTheseTwentyThree) {
  EXPECT_THAT(PresetValues(), ElementsAre("0", "5", "10", "15", "25", "50", "75", "100", "200",
                                          "300", "400", "500", "600", "700", "800", "900", "1000",
                                          "2000", "3000", "4000", "5000", "6000", "7000"));
}

}  // namespace
}  // namespace tessel
