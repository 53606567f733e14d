// The randomizer: a walk over the settings panel that writes a random number into every value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "randomizer/frmRand.h"
#include "services/Services.h"
#include "settings/SettingsPanel.h"
#include "surface/HostedControls.h"

namespace tessel {

class Randomizer {
 public:
  /// Everything passed outlives this.
  Randomizer(HostedControls& controls, const Services& services, SettingsPanel& settings);

  /// Asks for the range and randomizes a section: "All", "Player", "Weapon", "Enemy" or "Misc". A
  /// bound of 0 changes nothing. A bound outside 16 bits is a RuntimeError.
  void RandomizeSection(const std::string& section);
  /// Walks a section through the panel's own lists. With keepAbove or keepBelow a value beyond that
  /// bound is left as it is; a value that is not a number is a RuntimeError then.
  void RandomizeItems(std::string_view section, std::int16_t upper, std::int16_t lower,
                      bool keepAbove, bool keepBelow);

  void cmdOk_Click();
  void cmdCancel_Click() { form_.Hide(); }

  frmRand& Form() { return form_; }

 private:
  struct Range {
    std::int16_t upper, lower;
    bool keepAbove, keepBelow;
  };

  void LoadForm(const std::string& caption);
  void WalkList(ListBox& list, ComboBox& valueBox, const std::string& itemPrefix,
                const Range& range);
  bool ToBeDrawn(const std::string& itemName, const Range& range) const;

  HostedControls& controls_;
  Services services_;
  SettingsPanel& settings_;
  frmRand form_;
  bool accepted_ = false;
};

}  // namespace tessel
