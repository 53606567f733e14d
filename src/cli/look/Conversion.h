// A user file converted as the control converts it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "converter/VersionEdits.h"

namespace tessel::cli {

struct Conversion {
  std::vector<StepResult> steps;
  std::string text;  ///< what is inserted ends its lines with CR LF
};

/// A RuntimeError, in the control's words, where the text cannot be converted.
Conversion ConvertText(std::string bytes);

}  // namespace tessel::cli
