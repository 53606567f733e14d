#include "words/StarterWords.h"

#include "base/RuntimeError.h"
#include "words/ScriptWords.h"
#include "words/WordFile.h"

namespace tessel {
namespace {

constexpr const char* kHostSection = "Host";
constexpr const char* kOffered = "StarterWordsOffered";

}  // namespace

void OfferStarterWords(SettingsStore& settings, Files& files, const std::string& path) {
  try {
    if (settings.GetSetting(kHostSection, kOffered)) return;
    if (ReadScriptWords(settings).empty()) {
      WriteScriptWords(settings, ParseWordFile(files.Read(path)));
    }
    settings.SaveSetting(kHostSection, kOffered, "1");
  } catch (const RuntimeError&) {  // the list stays as it is
  }
}

}  // namespace tessel
