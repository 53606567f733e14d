// Where the templates and the starter words are.
#pragma once

#include <string>

namespace tessel {

/// The host program's directory: the installed one that belongs to the running program, wherever
/// the whole was installed; for a program run from its build tree, that of the sources.
std::string DefaultHostDirectory();

}  // namespace tessel
