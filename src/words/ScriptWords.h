// The stored script words with their parameter texts.
#pragma once

#include <string>
#include <vector>

#include "services/Services.h"

namespace tessel {

/// A word and what is shown about its parameters.
struct ScriptWord {
  std::string word;
  std::string parameters;
};

/// The words of the store, in its order. Every stored value that is not empty and holds no "[" is a
/// word: that mark alone tells parameter texts from words. Parameters that are missing or cannot be
/// read are empty.
std::vector<ScriptWord> ReadScriptWords(SettingsStore& settings);
/// True when the store holds anything at all in the words' section, be it a word or not.
bool HasScriptWordEntries(SettingsStore& settings);

void WriteScriptWord(SettingsStore& settings, const ScriptWord& word);
/// All of them or none.
void WriteScriptWords(SettingsStore& settings, const std::vector<ScriptWord>& words);
void DeleteScriptWord(SettingsStore& settings, const std::string& word);

}  // namespace tessel
