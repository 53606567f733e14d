// The item tables of the settings panel: what a list shows, and what is searched for in the text.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessel {

/// The version token of the newer dialect.
inline constexpr std::string_view kNewerDialect = "Zanth15";

/// A row of a list. Rows of the newer dialect stand last: a place in the list is one in the table.
struct Item {
  std::string_view name;
  std::string_view key;  ///< what is searched for in the text
  bool newerDialectOnly = false;
};

inline constexpr auto PlayerItemTable = std::to_array<Item>({
    {"Max Regular Health", "MAXPLAYERHEALTH"},
    {"Max Atomic Health", "MAXPLAYERATOMICHEALTH"},
    {"Armor", "STARTARMORHEALTH"},
    {"Steroid", "STEROID_AMOUNT"},
    {"Shield", "SHIELD_AMOUNT"},
    {"Scuba", "SCUBA_AMOUNT"},
    {"Holozanth", "HOLOZANTH_AMOUNT"},
    {"Jetpack", "JETPACK_AMOUNT"},
    {"Medkit Amount", "FIRSTAID_AMOUNT"},
    {"Boot", "BOOT_AMOUNT"},
});

inline constexpr auto EnemyItemTable = std::to_array<Item>({
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
});

inline constexpr auto MiscItemTable = std::to_array<Item>({
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
});

/// A row of a weapon list.
struct Weapon {
  std::string_view name;
  std::string_view key;     ///< what is searched for in the text
  bool keyOfPlace = false;  ///< the key belongs to the place, whatever name stands there
};

// "Devistator" and "Morter" are the script's own spellings, in the keys as well.
inline constexpr auto AmmoWeaponTable = std::to_array<Weapon>({
    {"Pistol", "define MAXPISTOLAMMO"},
    {"Shotgun", "define MAXSHOTGUNAMMO"},
    {"Chaingun", "define MAXCHAINGUNAMMO"},
    {"RPG", "define MAXRPGAMMO"},
    {"Handbomb", "define MAXHANDBOMBAMMO"},
    {"Shrinker", "define MAXSHRINKERAMMO"},
    {"Devistator", "define MAXDEVISTATORAMMO"},
    {"Tripbomb", "define MAXTRIPBOMBAMMO"},
    {"Freeze", "define MAXFREEZEAMMO"},
});

inline constexpr auto BoxWeaponTable = std::to_array<Weapon>({
    {"Pistol", "define PISTOLAMMO"},
    {"Shotgun", "define SHOTGUNAMMO"},
    {"Chaingun", "define CHAINGUNAMMO"},
    {"RPG", "define RPGAMMO"},
    {"Handbomb", "define HANDBOMBBOX"},
    {"Shrinker", "define SHRINKERAMMO"},
    {"Devistator", "define DEVISTATORAMMO"},
    {"Freeze", "define FREEZEAMMO"},
});

inline constexpr auto StrengthWeaponTable = std::to_array<Weapon>({
    {"Kicking", "KNEE_WEAPON_STRENGTH", true},
    {"Pistol", "PISTOL_WEAPON_STRENGTH"},
    {"Shotgun", "SHOTGUN_WEAPON_STRENGTH"},
    {"Chaingun", "CHAINGUN_WEAPON_STRENGTH"},
    {"RPG", "RPG_WEAPON_STRENGTH"},
    {"Handbomb", "HANDBOMB_WEAPON_STRENGTH"},
    {"Tripbomb", "TRIPBOMB_STRENGTH", true},
    {"Freeze", "FREEZETHROWER_WEAPON_STRENGTH", true},
    {"Shrinker", "SHRINKER_WEAPON_STRENGTH"},
    {"Morter", "MORTER_WEAPON_STRENGTH"},
    {"Firelaser", "FIRELASER_WEAPON_STRENGTH"},
    {"Bouncemine", "BOUNCEMINE_WEAPON_STRENGTH"},
    {"Spit", "SPIT_WEAPON_STRENGTH"},
    {"Bullet", "BULLET_WEAPON_STRENGTH"},
});

inline constexpr auto RadiusWeaponTable = std::to_array<Weapon>({
    {"RPG", "RPGBLASTRADIUS"},
    {"Handbomb", "PIPEBOMBRADIUS", true},
    {"Shrinker", "SHRINKERBLASTRADIUS"},
    {"Tripbomb", "TRIPBOMBBLASTRADIUS"},
    {"Morter", "MORTERBLASTRADIUS"},
    {"Bouncemine", "BOUNCEMINEBLASTRADIUS"},
    {"Seenine", "SEENINEBLASTRADIUS"},
});

/// A key for a place that its weapon list does not reach.
struct UnlistedKey {
  int position;
  std::string_view key;
};

// The rules name keys for positions behind the ends of two lists. No list shows them, but WeaponKey
// answers with them, so a list may not grow over one without taking it over as its own row.
inline constexpr auto kUnlistedBoxKeys = std::to_array<UnlistedKey>({{8, "GROWCRYSTALAMMOAMOUNT"}});
inline constexpr auto kUnlistedStrengthKeys = std::to_array<UnlistedKey>({
    {15, "TRIPBOMBLASERMODE"},
    {16, "MAXXSTRETCH"},
    {17, "MAXYSTRETCH"},
    {18, "MINXSTRETCH"},
    {19, "MINYSTRETCH"},
});

struct WeaponCategory {
  std::string_view name;
  std::string_view sectionMarker;  ///< stands in the first line of its section
  std::span<const Weapon> weapons;
  /// Put around an upper-cased name at a place without a row.
  std::string_view before, behind;
  std::span<const UnlistedKey> unlisted;
};

inline constexpr auto WeaponCategoryTable = std::to_array<WeaponCategory>({
    {"Max Weapon Ammo", "define MAXPISTOLAMMO", AmmoWeaponTable, "define MAX", "AMMO", {}},
    {"Box Ammo Amount", "define PISTOLAMMOAMOUNT", BoxWeaponTable, "define ", "AMMO",
     kUnlistedBoxKeys},
    {"Weapon Strength", "// Weapon Strengths", StrengthWeaponTable, "", "_WEAPON_STRENGTH",
     kUnlistedStrengthKeys},
    {"Blast Radius", "// Various blast radius distances", RadiusWeaponTable, "", "BLASTRADIUS", {}},
});

/// The YES/NO settings of the misc page.
inline constexpr std::string_view kCamerasDestructable = "CAMERASDESTRUCTABLE";
inline constexpr std::string_view kFreezerHurtOwner = "FREEZERHURTOWNER";

/// The key that choosing a weapon searches for. `category` and `position` are 0-based places in
/// lstWeapInfo and lstWeapon. The row at that place decides; a weapon of another name than the
/// row's has its own name in the row's key, or the row's key as it is where that belongs to the
/// place. Without a row the category's pattern makes the key. Empty for a category that does not
/// exist.
std::string WeaponKey(int category, std::string_view weapon, int position);

/// The entries that every value box offers, in order.
std::vector<std::string> PresetValues();

// --- What holds for every table

template <class Row>
constexpr bool HasKeysAndNoNameOrKeyTwice(std::span<const Row> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].name.empty() || rows[i].key.empty()) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (rows[i].name == rows[j].name || rows[i].key == rows[j].key) return false;
    }
  }
  return true;
}
constexpr bool HasNewerRowsLast(std::span<const Item> rows) {
  return std::ranges::is_sorted(rows, {}, &Item::newerDialectOnly);
}
constexpr bool EndsBeforeItsUnlistedKeys(const WeaponCategory& category) {
  return std::ranges::all_of(category.unlisted, [&](const UnlistedKey& unlisted) {
    return unlisted.position >= std::ssize(category.weapons);
  });
}

static_assert(HasKeysAndNoNameOrKeyTwice<Item>(PlayerItemTable));
static_assert(HasKeysAndNoNameOrKeyTwice<Item>(EnemyItemTable));
static_assert(HasKeysAndNoNameOrKeyTwice<Item>(MiscItemTable));
static_assert(HasNewerRowsLast(PlayerItemTable) && HasNewerRowsLast(EnemyItemTable) &&
                  HasNewerRowsLast(MiscItemTable),
              "a place in the list of the older dialect would be another row's in the table");
static_assert(std::ranges::all_of(WeaponCategoryTable, [](const WeaponCategory& category) {
  return HasKeysAndNoNameOrKeyTwice(category.weapons);
}));
static_assert(std::ranges::all_of(WeaponCategoryTable, EndsBeforeItsUnlistedKeys),
              "a weapon stands at a place whose key is fixed: make that key its row's");

}  // namespace tessel
