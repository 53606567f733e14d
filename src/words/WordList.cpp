#include "words/WordList.h"

namespace tessel {

std::vector<std::string> ShowScriptWords(ListBox& list, const std::vector<ScriptWord>& words) {
  std::vector<std::string> entries;
  std::vector<std::string> parameters;
  entries.reserve(words.size());
  parameters.reserve(words.size());
  for (const ScriptWord& word : words) {
    entries.push_back(word.word);
    parameters.push_back(word.parameters);
  }
  list.Clear();
  list.AddItems(entries);
  return parameters;
}

}  // namespace tessel
