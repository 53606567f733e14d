// The randomizer: a walk over the settings panel that writes a random number into every value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "randomizer/frmRand.h"
#include "services/Services.h"
#include "settings/SettingsPanel.h"
#include "surface/DocumentList.h"

namespace tessel {

class Randomizer {
 public:
  /// The range of the numbers that are drawn, and which values beyond it stay.
  struct Range {
    std::int16_t lower = 0;
    std::int16_t upper = 0;
    bool keepBelow = false;
    bool keepAbove = false;
  };
  /// The lists and boxes that the walk plays on. They outlive it, as do the services.
  struct Controls {
    TabStrip& tbsCon;
    ListBox& lstPlayers;
    ListBox& lstWeapInfo;
    ListBox& lstWeapon;
    ListBox& lstEnemy;
    ListBox& lstConMisc;
    ControlArray<ComboBox>& cmbweap;
  };
  struct Services {
    ModalForms& forms;
    MessageBox& messages;
    RandomNumbers& random;
    MessageLoop& loop;
  };

  Randomizer(const DocumentList& documents, const Controls& controls, const Services& services,
             SettingsPanel& settings)
      : documents_(documents), controls_(controls), services_(services), settings_(settings) {}

  /// Asks for the range and randomizes a section: "All", "Player", "Weapon", "Enemy" or "Misc". A
  /// bound of 0 changes nothing. A bound outside 16 bits is a RuntimeError.
  void RandomizeSection(const std::string& section);
  /// Walks a section through the panel's own lists. With keepAbove or keepBelow a value beyond that
  /// bound is left as it is; a value that is not a number is a RuntimeError then.
  void RandomizeItems(std::string_view section, const Range& range);

  void cmdOk_Click();
  void cmdCancel_Click() { form_.Hide(); }

  frmRand& Form() { return form_; }

 private:
  void LoadForm(const std::string& caption);
  void WalkList(ListBox& list, ComboBox& valueBox, const std::string& itemPrefix,
                const Range& range);
  bool ToBeDrawn(const std::string& itemName, const Range& range) const;

  const DocumentList& documents_;
  Controls controls_;
  Services services_;
  SettingsPanel& settings_;
  frmRand form_;
  bool accepted_ = false;
};

}  // namespace tessel
