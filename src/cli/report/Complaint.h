// What goes to standard error.
#pragma once

#include <string>

namespace tessel::cli {

/// Prints a line to standard error, with control characters made harmless.
void Complain(const std::string& text);

}  // namespace tessel::cli
