// The script words that a new user begins with.
#pragma once

#include <string>

#include "platform/Services.h"

namespace tessel {

/// Fills an empty word list from "words.txt" in the host's directory: a line for each word, its
/// parameters behind a tab. Without that file the list stays empty.
void FillEmptyWordList(SettingsStore& settings, Files& files, const std::string& hostDirectory);

}  // namespace tessel
