// The item tables of the settings panel: what a list shows, and what is searched for in the text.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessel {

/// The version token of the newer dialect.
inline constexpr std::string_view kNewerDialect = "Zanth15";

struct Item {
  std::string_view displayName;
  std::string_view key;  ///< empty: composed from the display name (player items)
  bool newerDialectOnly = false;
};

inline constexpr std::array<Item, 10> PlayerItemTable = {{
    {"Max Regular Health", "MAXPLAYERHEALTH"},
    {"Max Atomic Health", "MAXPLAYERATOMICHEALTH"},
    {"Armor", "STARTARMORHEALTH"},
    {"Steroid", {}},
    {"Shield", {}},
    {"Scuba", {}},
    {"Holozanth", {}},
    {"Jetpack", {}},
    {"Medkit Amount", "FIRSTAID_AMOUNT"},
    {"Boot", {}},
}};

inline constexpr std::array<Item, 20> EnemyItemTable = {{
    {"Trooper", "TROOPSTRENGTH"},
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
    {"Episode 3 Boss", "BOSS3STRENGTH"},
    {"Episode 4 Boss", "BOSS4STRENGTH", true},
    {"NewBeast", "NEWBEASTSTRENGTH", true},
    {"NewBeast Scratch", "NEWBEASTSCRATCHAMOUNT", true},
    {"Dolphin", "DOLPHINSTRENGTH", true},
}};

inline constexpr std::array<Item, 13> MiscItemTable = {{
    {"Max Water Fountain Health", "MAXWATERFOUNTAINHEALTH"},
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
    {"Thaw Time", "THAWTIME"},
    {"Bullet Holes, Blood, Money", "QSIZE", true},
}};

// "Devistator" and "Morter" are the script's own spellings: they become search keys.
inline constexpr std::array<std::string_view, 9> AmmoWeaponList = {
    "Pistol",   "Shotgun",    "Chaingun", "RPG",   "Handbomb",
    "Shrinker", "Devistator", "Tripbomb", "Freeze"};
inline constexpr std::array<std::string_view, 8> BoxWeaponList = {
    "Pistol", "Shotgun", "Chaingun", "RPG", "Handbomb", "Shrinker", "Devistator", "Freeze"};
inline constexpr std::array<std::string_view, 14> StrengthWeaponList = {
    "Kicking", "Pistol",   "Shotgun", "Chaingun",  "RPG",        "Handbomb", "Tripbomb",
    "Freeze",  "Shrinker", "Morter",  "Firelaser", "Bouncemine", "Spit",     "Bullet"};
inline constexpr std::array<std::string_view, 7> RadiusWeaponList = {
    "RPG", "Handbomb", "Shrinker", "Tripbomb", "Morter", "Bouncemine", "Seenine"};

/// A key that does not follow its category's pattern.
struct FixedKey {
  int position;  ///< in the weapon list
  /// Put around the weapon's upper-cased name; a name of its own when `wholeKey` is set.
  std::string_view before, behind;
  bool wholeKey = true;
};

struct WeaponCategory {
  std::string_view displayName;
  std::string_view sectionMarker;  ///< stands in the first line of its section
  std::span<const std::string_view> weapons;
  std::string_view before, behind;  ///< put around the weapon's upper-cased name to make a key
  std::span<const FixedKey> fixedKeys;
};

// Positions 8 of the boxes and 15 to 19 of the strengths lie behind the ends of their lists.
inline constexpr std::array<FixedKey, 2> kBoxKeys = {{
    {4, "define ", "BOX", false},
    {8, "GROWCRYSTALAMMOAMOUNT", {}},
}};
inline constexpr std::array<FixedKey, 8> kStrengthKeys = {{
    {0, "KNEE_WEAPON_STRENGTH", {}},
    {6, "TRIPBOMB_STRENGTH", {}},
    {7, "FREEZETHROWER_WEAPON_STRENGTH", {}},
    {15, "TRIPBOMBLASERMODE", {}},
    {16, "MAXXSTRETCH", {}},
    {17, "MAXYSTRETCH", {}},
    {18, "MINXSTRETCH", {}},
    {19, "MINYSTRETCH", {}},
}};
inline constexpr std::array<FixedKey, 1> kRadiusKeys = {{{1, "PIPEBOMBRADIUS", {}}}};

inline constexpr std::array<WeaponCategory, 4> WeaponCategoryTable = {{
    {"Max Weapon Ammo", "define MAXPISTOLAMMO", AmmoWeaponList, "define MAX", "AMMO", {}},
    {"Box Ammo Amount", "define PISTOLAMMOAMOUNT", BoxWeaponList, "define ", "AMMO", kBoxKeys},
    {"Weapon Strength", "// Weapon Strengths", StrengthWeaponList, "", "_WEAPON_STRENGTH",
     kStrengthKeys},
    {"Blast Radius", "// Various blast radius distances", RadiusWeaponList, "", "BLASTRADIUS",
     kRadiusKeys},
}};

/// The YES/NO settings of the misc page.
inline constexpr std::string_view kCamerasDestructable = "CAMERASDESTRUCTABLE";
inline constexpr std::string_view kFreezerHurtOwner = "FREEZERHURTOWNER";

/// The key of a player item: its fixed key, or its upper-cased display name and "_AMOUNT".
std::string PlayerKey(const Item& item);

/// The key of a weapon (WeaponKeyRules). `category` and `position` are 0-based places in
/// lstWeapInfo and lstWeapon; empty for a category that does not exist.
std::string WeaponKey(int category, std::string_view weapon, int position);

/// The entries that every value box offers, in order.
std::vector<std::string> PresetValues();

}  // namespace tessel
