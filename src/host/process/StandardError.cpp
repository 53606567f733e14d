#include "host/process/StandardError.h"

#include <iostream>

#include "text/SafeText.h"

namespace tessel {

void TellOnStandardError(std::string_view text) {
  std::cerr << "zanth-manager: " << ForTerminal(text) << "\n";
}

}  // namespace tessel
