// Where the templates and the starter words are.
#pragma once

#include <string>

namespace tessel {

/// The host program's directory: the installed one, or that of the sources while nothing is
/// installed.
std::string DefaultHostDirectory();

}  // namespace tessel
