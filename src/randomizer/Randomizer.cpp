#include "randomizer/Randomizer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "base/RuntimeError.h"
#include "text/Text.h"

namespace tessel {
namespace {

struct Steps {
  int first, last, step;
};
constexpr std::array<Steps, 4> kChoices = {
    {{1, 19, 1}, {25, 100, 25}, {200, 1000, 100}, {2000, 7000, 1000}}};

constexpr std::array<std::string_view, 4> kSections = {"Player", "Weapon", "Enemy", "Misc"};

std::int16_t BoundOf(const std::string& text, const char* which) {
  const double bound = std::nearbyint(NumericValue(text));  // half to even
  using Limits = std::numeric_limits<std::int16_t>;
  if (bound < Limits::min() || bound > Limits::max()) {
    throw RuntimeError(std::string("The ") + which + " bound " + text +
                       " cannot be used: it must lie between -32768 and 32767.");
  }
  return static_cast<std::int16_t>(bound);
}

int TabOf(const TabStrip& tabs, std::string_view key) {
  for (int tab = 1; tab <= tabs.Count(); ++tab) {
    if (EqualIgnoringAsciiCase(tabs.At(tab).key, key)) return tab;
  }
  return 0;
}

}  // namespace

void Randomizer::LoadForm(const std::string& caption) {
  form_.SetCaption(caption);
  for (int i = 0; i < form_.cmbChoose.Count(); ++i) {
    form_.cmbChoose[i].Clear();
    for (const Steps& steps : kChoices) {
      for (int value = steps.first; value <= steps.last; value += steps.step) {
        form_.cmbChoose[i].AddItem(std::to_string(value));
      }
    }
  }
  form_.chkLvLw.SetValue(false);
  form_.chkLvUp.SetValue(false);
  accepted_ = false;
}

void Randomizer::cmdOk_Click() {
  const std::string& lower = form_.cmbChoose[0].Text();
  const std::string& upper = form_.cmbChoose[1].Text();
  if (lower.empty() || upper.empty()) {
    services_.messages.Show("Please select a value", MessageIcon::kExclamation, "",
                            MessageButtons::kOk);
    return;
  }
  if (std::floor(NumericValue(upper)) < std::floor(NumericValue(lower))) {
    services_.messages.Show("Upper Bounds must be a number greater than Lower Bounds",
                            MessageIcon::kNone, "", MessageButtons::kOk);
    return;
  }
  accepted_ = true;
  form_.Hide();
}

void Randomizer::RandomizeSection(const std::string& section) {
  LoadForm(section == "All" ? "Randomize All Sections" : section + " Section Randomizer");
  services_.forms.ShowModal(form_);
  if (!accepted_) return;
  const std::int16_t lower = BoundOf(form_.cmbChoose[0].Text(), "lower");
  const std::int16_t upper = BoundOf(form_.cmbChoose[1].Text(), "upper");
  if (lower == 0 || upper == 0) return;
  RandomizeItems(section, {.lower = lower,
                           .upper = upper,
                           .keepBelow = form_.chkLvLw.Value(),
                           .keepAbove = form_.chkLvUp.Value()});
}

void Randomizer::RandomizeItems(std::string_view section, const Range& range) {
  if (section == "All") {
    for (const std::string_view each : kSections) RandomizeItems(each, range);
    return;
  }
  settings_.BringIntoSight();
  if (const int tab = TabOf(controls_.tbsCon, section)) controls_.tbsCon.Select(tab);

  auto& boxes = controls_.cmbweap;
  if (section == "Player") WalkList(controls_.lstPlayers, boxes[kPlayerPage], "", range);
  if (section == "Enemy") WalkList(controls_.lstEnemy, boxes[kEnemyPage], "", range);
  if (section == "Misc") WalkList(controls_.lstConMisc, boxes[kMiscPage], "", range);
  if (section == "Weapon") {
    for (int category = 0; category < controls_.lstWeapInfo.ListCount(); ++category) {
      controls_.lstWeapInfo.SetListIndex(category);
      WalkList(controls_.lstWeapon, boxes[kWeaponPage], controls_.lstWeapInfo.List(category) + "/",
               range);
    }
  }
}

void Randomizer::WalkList(ListBox& list, ComboBox& valueBox, const std::string& itemPrefix,
                          const Range& range) {
  for (int i = 0; i < list.ListCount(); ++i) {
    list.SetListIndex(i);
    services_.loop.DoEvents();
    if (!ToBeDrawn(itemPrefix + list.List(i), range)) continue;
    const float width = static_cast<float>(range.upper) - static_cast<float>(range.lower) + 1.0F;
    const float drawn = width * services_.random.Next() + static_cast<float>(range.lower);
    // Single precision may round a number close to 1 up, beyond the range. Bounds such as 5.9 and
    // 5.1 cross when they are rounded: the larger one is the limit.
    const int limit = std::max(range.upper, range.lower);
    const int value = std::min(static_cast<int>(std::floor(drawn)), limit);
    valueBox.SetText(std::to_string(value));
  }
}

bool Randomizer::ToBeDrawn(const std::string& itemName, const Range& range) const {
  if (!range.keepAbove && !range.keepBelow) return true;
  const std::string selected = documents_.CurrentEditor().SelText();
  if (NumericPrefix(selected).empty()) {
    throw RuntimeError("The value \"" + selected + "\" of " + itemName + " is not a number.");
  }
  const double value = std::floor(NumericValue(selected));
  return !(range.keepAbove && value > range.upper) && !(range.keepBelow && value < range.lower);
}

}  // namespace tessel
