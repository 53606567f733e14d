#include "words/ScriptWords.h"

namespace tessel {
namespace {

constexpr const char* kSection = "ConWords";

std::string NameKey(const std::string& word) { return "NAME" + word; }
std::string ParametersKey(const std::string& word) { return "PARAMS" + word; }

}  // namespace

std::vector<ScriptWord> ReadScriptWords(SettingsStore& settings) {
  std::vector<ScriptWord> words;
  for (const auto& [key, value] : settings.GetAllSettings(kSection)) {
    if (!value.empty() && value.find('[') == value.npos) words.push_back({value, {}});
  }
  for (ScriptWord& word : words) {
    word.parameters = settings.GetSetting(kSection, ParametersKey(word.word)).value_or("");
  }
  return words;
}

void WriteScriptWord(SettingsStore& settings, const ScriptWord& word) {
  settings.SaveSetting(kSection, NameKey(word.word), word.word);
  settings.SaveSetting(kSection, ParametersKey(word.word), word.parameters);
}

void DeleteScriptWord(SettingsStore& settings, const std::string& word) {
  settings.DeleteSetting(kSection, NameKey(word));
  settings.DeleteSetting(kSection, ParametersKey(word));
}

}  // namespace tessel
