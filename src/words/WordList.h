// Script words in a list box.
#pragma once

#include <string>
#include <vector>

#include "models/Lists.h"
#include "words/ScriptWords.h"

namespace tessel {

/// Makes the words the entries of the list and returns their parameter texts, parallel to it.
std::vector<std::string> ShowScriptWords(ListBox& list, const std::vector<ScriptWord>& words);

}  // namespace tessel
