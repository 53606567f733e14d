// The words that a host offers to a user who has none yet.
#pragma once

#include <string>

#include "services/Services.h"

namespace tessel {

/// Fills an empty word list from a file of starter words (see WordFile.h), once: a list that the
/// user emptied later stays empty. A file that is missing or not well-formed changes nothing.
void OfferStarterWords(SettingsStore& settings, Files& files, const std::string& path);

}  // namespace tessel
