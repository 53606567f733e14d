#include "cli/files/WordStore.h"

#include <cerrno>

#include "base/RuntimeError.h"
#include "posix/HostDirectory.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"
#include "posix/SqliteSettingsStore.h"
#include "words/WordFile.h"

namespace tessel::cli {

std::string WordStore(const std::string& named) {
  return named.empty() ? DefaultSettingsPath() : named;
}

std::vector<ScriptWord> StoredWords(const std::string& named) {
  const std::string path = WordStore(named);
  if (!posix::StatusOf(path) && errno == ENOENT) return {};
  SqliteSettingsStore store(path);
  return ReadScriptWords(store);
}

std::vector<ScriptWord> StoredOrStarterWords(const std::string& named) {
  std::vector<ScriptWord> words = StoredWords(named);
  if (!words.empty()) return words;
  try {
    return ParseWordFile(PosixFiles().Read(DefaultHostDirectory() + "/words.txt"));
  } catch (const RuntimeError&) {
    return words;
  }
}

}  // namespace tessel::cli
