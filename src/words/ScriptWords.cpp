#include "words/ScriptWords.h"

#include "base/RuntimeError.h"

namespace tessel {
namespace {

constexpr const char* kWordsSection = "ConWords";

std::string NameKey(const std::string& word) { return "NAME" + word; }
std::string ParametersKey(const std::string& word) { return "PARAMS" + word; }

std::string ReadParameters(SettingsStore& settings, const std::string& word) {
  try {
    return settings.GetSetting(kWordsSection, ParametersKey(word)).value_or("");
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace

std::vector<ScriptWord> ReadScriptWords(SettingsStore& settings) {
  std::vector<ScriptWord> words;
  for (const auto& [key, value] : settings.GetAllSettings(kWordsSection)) {
    if (!value.empty() && value.find('[') == value.npos) words.push_back({value, {}});
  }
  for (ScriptWord& word : words) {
    word.parameters = ReadParameters(settings, word.word);
  }
  return words;
}

bool HasScriptWordEntries(SettingsStore& settings) {
  return !settings.GetAllSettings(kWordsSection).empty();
}

void WriteScriptWord(SettingsStore& settings, const ScriptWord& word) {
  WriteScriptWords(settings, {word});
}

void WriteScriptWords(SettingsStore& settings, const std::vector<ScriptWord>& words) {
  std::vector<SettingsStore::Entry> entries;
  for (const ScriptWord& word : words) {
    entries.emplace_back(NameKey(word.word), word.word);
    entries.emplace_back(ParametersKey(word.word), word.parameters);
  }
  settings.SaveSettings(kWordsSection, entries);
}

void DeleteScriptWord(SettingsStore& settings, const std::string& word) {
  settings.DeleteSetting(kWordsSection, NameKey(word));
  settings.DeleteSetting(kWordsSection, ParametersKey(word));
}

}  // namespace tessel
