// What the program says where it was started from.
#pragma once

#include <string_view>

namespace tessel {

/// One line on standard error behind the program's name. A terminal there obeys nothing that is in
/// the text, such as the name of a file.
void TellOnStandardError(std::string_view text);

}  // namespace tessel
