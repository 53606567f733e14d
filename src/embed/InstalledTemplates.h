// Where the templates are when a library brought the control.
#pragma once

#include <string>

namespace tessel {

/// The directory of the templates that was installed with this library, or else that of the
/// program.
std::string InstalledTemplates();

}  // namespace tessel
