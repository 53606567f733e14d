// Where the templates and the starter words are.
#pragma once

#include <string>

namespace tessel {

/// The host program's directory: the one that belongs to the running program, wherever the whole
/// was installed or built; where that is missing, the one of the prefix that the program was built
/// for.
std::string DefaultHostDirectory();

}  // namespace tessel
