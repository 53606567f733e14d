#include <algorithm>
#include <functional>
#include <iostream>
#include <sstream>

#include "base/RuntimeError.h"
#include "cli/CommandLineServices.h"
#include "cli/Subcommands.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/PosixFiles.h"
#include "posix/SqliteSettingsStore.h"
#include "text/SafeText.h"
#include "text/Text.h"
#include "words/ScriptWords.h"
#include "words/WordFile.h"

namespace tessel::cli {
namespace {

/// Opens the user's store and runs the function on it; errors are told to the user. Nothing is kept
/// in memory here: a store that cannot be used is a failure.
bool WithStore(const WordsArguments& arguments, const std::function<bool(SettingsStore&)>& use) {
  try {
    SqliteSettingsStore store(arguments.store.empty() ? DefaultSettingsPath() : arguments.store);
    return use(store);
  } catch (const RuntimeError& error) {
    Complain(error.what());
    return false;
  }
}

std::optional<ScriptWord> FindWord(SettingsStore& store, const std::string& word) {
  const auto words = ReadScriptWords(store);
  const auto it = std::ranges::find_if(
      words, [&](const ScriptWord& entry) { return EqualIgnoringAsciiCase(entry.word, word); });
  if (it != words.end()) return *it;
  Complain("\"" + ToUtf8(word) + "\" is not in the word list.");
  return std::nullopt;
}

/// Why a word and its parameters cannot be kept, or null.
const char* Refusal(const WordsArguments& arguments) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  const auto holdsControl = [&](const std::string& text) {
    return std::ranges::any_of(text, isControl);
  };
  const auto holdsMark = [](const std::string& text) { return text.find('[') != text.npos; };
  if (arguments.word.empty()) return "A word cannot be empty.";
  if (holdsControl(arguments.word) || holdsControl(arguments.parameters)) {
    return "A word and its parameters cannot hold tabs, line breaks or other control characters.";
  }
  if (holdsMark(arguments.word)) {
    return "A word cannot hold \"[\": that mark tells parameter texts from words.";
  }
  if (!arguments.parameters.empty() && !holdsMark(arguments.parameters)) {
    return "Parameters need a \"[\", as in \"[amount]\": that mark tells them from words.";
  }
  return nullptr;
}

}  // namespace

bool ListWords(const WordsArguments& arguments) {
  return WithStore(arguments, [](SettingsStore& store) {
    for (const ScriptWord& word : ReadScriptWords(store)) {
      std::cout << DocumentForTerminal(word.word) << '\n';
    }
    return true;
  });
}

bool GetWord(const WordsArguments& arguments) {
  return WithStore(arguments, [&](SettingsStore& store) {
    const auto word = FindWord(store, arguments.word);
    if (word) std::cout << DocumentForTerminal(word->parameters) << '\n';
    return word.has_value();
  });
}

bool SetWord(const WordsArguments& arguments) {
  return WithStore(arguments, [&](SettingsStore& store) {
    if (const char* refusal = Refusal(arguments)) {
      Complain(refusal);
      return false;
    }
    WriteScriptWord(store, {arguments.word, arguments.parameters});
    return true;
  });
}

bool RemoveWord(const WordsArguments& arguments) {
  return WithStore(arguments, [&](SettingsStore& store) {
    const auto word = FindWord(store, arguments.word);
    if (word) DeleteScriptWord(store, word->word);
    return word.has_value();
  });
}

bool ImportWords(const WordsArguments& arguments) {
  return WithStore(arguments, [&](SettingsStore& store) {
    WriteScriptWords(store, ParseWordFile(PosixFiles().Read(arguments.file)));
    return true;
  });
}

bool ExportWords(const WordsArguments& arguments) {
  return WithStore(arguments, [&](SettingsStore& store) {
    return WriteResult(FormatWordFile(ReadScriptWords(store)), arguments.destination, {});
  });
}

}  // namespace tessel::cli
