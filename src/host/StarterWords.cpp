#include "host/StarterWords.h"

#include <sstream>

#include "platform/Paths.h"
#include "words/ScriptWords.h"

namespace tessel {

void FillEmptyWordList(SettingsStore& settings, Files& files, const std::string& hostDirectory) {
  const std::string path =
      hostDirectory + BackslashIfNeeded(hostDirectory, files.Separator()) + "words.txt";
  if (!ReadScriptWords(settings).empty() || !FileExists(files, path)) return;
  std::istringstream lines(files.Read(path));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    const auto tab = line.find('\t');
    if (line.empty() || tab == std::string::npos) continue;
    WriteScriptWord(settings, {line.substr(0, tab), line.substr(tab + 1)});
  }
}

}  // namespace tessel
