#include "cli/look/PanelRead.h"

#include "settings/Defines.h"

namespace tessel::cli {
namespace {

// The panel never writes this text of a value box, so it marks "nothing found".
constexpr const char* kNothingFound = "  ";

struct Place {
  ListBox& list;
  ComboBox& box;
};

Place PlaceOf(HostedControls& c, const PanelItem& item) {
  if (item.section == "Player") return {c.lstPlayers, c.cmbweap[kPlayerPage]};
  if (item.section == "Weapon") return {c.lstWeapon, c.cmbweap[kWeaponPage]};
  if (item.section == "Enemy") return {c.lstEnemy, c.cmbweap[kEnemyPage]};
  return {c.lstConMisc, c.cmbweap[kMiscPage]};
}

}  // namespace

std::optional<std::string> ReadItem(DocumentSession& session, const PanelItem& item) {
  HostedControls& c = session.Controls();
  if (item.entry < 0) {
    RichTextBox& editor = session.Editor();
    if (FindDefine(editor, item.define, true) == kNotFound) return std::nullopt;
    return ReadYesNo(editor, item.define) ? "YES" : "NO";
  }
  if (item.category >= 0) c.lstWeapInfo.Pick(item.category);
  const Place place = PlaceOf(c, item);
  place.box.SetText(kNothingFound);
  place.list.Pick(item.entry);
  if (place.box.Text() == kNothingFound) return std::nullopt;
  return place.box.Text();
}

}  // namespace tessel::cli
