// Which of the control's parts each subsystem uses, by their names.
#pragma once

#include "randomizer/Randomizer.h"
#include "services/Services.h"
#include "settings/Levels.h"
#include "settings/SettingsPanel.h"
#include "surface/HostedControls.h"
#include "words/WordPanel.h"

namespace tessel {

Levels::Controls LevelsControls(HostedControls& controls);
Levels::Services LevelsServices(const Services& services);
SettingsPanel::Controls SettingsControls(HostedControls& controls);
WordPanel::Controls WordControls(HostedControls& controls);
WordPanel::Services WordServices(const Services& services);
Randomizer::Controls RandomizerControls(HostedControls& controls);
Randomizer::Services RandomizerServices(const Services& services);

}  // namespace tessel
