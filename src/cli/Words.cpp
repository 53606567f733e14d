#include <algorithm>
#include <iostream>
#include <sstream>

#include "base/RuntimeError.h"
#include "cli/CommandLineServices.h"
#include "cli/CommonOptions.h"
#include "cli/SafeText.h"
#include "cli/Subcommands.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/PosixFiles.h"
#include "posix/SqliteSettingsStore.h"
#include "text/Text.h"
#include "words/ScriptWords.h"
#include "words/WordFile.h"

namespace tessel::cli {
namespace {

struct Options {
  std::string store;
  std::string word, parameters, file;
};

/// Opens the user's store and runs the function on it; errors are told to the user. Nothing is kept
/// in memory here: a store that cannot be used is a failure.
bool WithStore(const Options& options, const std::function<bool(SettingsStore&)>& use) {
  try {
    SqliteSettingsStore store(options.store.empty() ? DefaultSettingsPath() : options.store);
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

bool List(SettingsStore& store, const Options&) {
  for (const ScriptWord& word : ReadScriptWords(store)) {
    std::cout << DocumentForTerminal(word.word) << '\n';
  }
  return true;
}

bool Get(SettingsStore& store, const Options& options) {
  const auto word = FindWord(store, options.word);
  if (word) std::cout << DocumentForTerminal(word->parameters) << '\n';
  return word.has_value();
}

/// Why a word and its parameters cannot be kept, or null.
const char* Refusal(const Options& options) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  const auto holdsControl = [&](const std::string& text) {
    return std::ranges::any_of(text, isControl);
  };
  const auto holdsMark = [](const std::string& text) { return text.find('[') != text.npos; };
  if (options.word.empty()) return "A word cannot be empty.";
  if (holdsControl(options.word) || holdsControl(options.parameters)) {
    return "A word and its parameters cannot hold tabs, line breaks or other control characters.";
  }
  if (holdsMark(options.word)) {
    return "A word cannot hold \"[\": that mark tells parameter texts from words.";
  }
  if (!options.parameters.empty() && !holdsMark(options.parameters)) {
    return "Parameters need a \"[\", as in \"[amount]\": that mark tells them from words.";
  }
  return nullptr;
}

bool Set(SettingsStore& store, const Options& options) {
  if (const char* refusal = Refusal(options)) {
    Complain(refusal);
    return false;
  }
  WriteScriptWord(store, {options.word, options.parameters});
  return true;
}

bool Remove(SettingsStore& store, const Options& options) {
  const auto word = FindWord(store, options.word);
  if (word) DeleteScriptWord(store, word->word);
  return word.has_value();
}

bool Import(SettingsStore& store, const Options& options) {
  WriteScriptWords(store, ParseWordFile(PosixFiles().Read(options.file)));
  return true;
}

bool Export(SettingsStore& store, const Options& options) {
  return WriteResult(FormatWordFile(ReadScriptWords(store)), {options.file, false}, {});
}

}  // namespace

void AddWords(CLI::App& program, int& status) {
  auto options = std::make_shared<Options>();
  CLI::App* words = program.add_subcommand("words", "Keep the list of script words");
  words->require_subcommand(1);
  words->add_option("--store", options->store, "the settings file, instead of the user's own")
      ->type_name("FILE");

  const auto add = [&](const char* name, const char* what,
                       bool (*run)(SettingsStore&, const Options&)) {
    CLI::App* command = words->add_subcommand(name, what);
    command->callback([options, &status, run] {
      const bool done =
          WithStore(*options, [&](SettingsStore& store) { return run(store, *options); });
      if (!done) status = kFailed;
    });
    return command;
  };
  const auto addWord = [&](CLI::App* command) {
    TakeDocumentText(*command->add_option("WORD", options->word, "the word")->required());
  };
  add("list", "Print the words", List);
  addWord(add("get", "Print a word's parameters", Get));
  CLI::App* set = add("set", "Add a word or change its parameters", Set);
  addWord(set);
  TakeDocumentText(
      *set->add_option("PARAMETERS", options->parameters, "such as \"[weapon] [amount]\"")
           ->required());
  addWord(add("remove", "Take a word off the list", Remove));
  add("import", "Add the words of a file: one a line, word, tab, parameters", Import)
      ->add_option("FILE", options->file, "the file")
      ->required();
  AddOutput(*add("export", "Print the words as import reads them", Export), options->file);
}

}  // namespace tessel::cli
