#include <algorithm>
#include <functional>
#include <iostream>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/files/Input.h"
#include "cli/files/WordStore.h"
#include "cli/report/Complaint.h"
#include "cli/report/Json.h"
#include "cli/report/Suggestion.h"
#include "posix/HostDirectory.h"
#include "posix/Posix.h"
#include "posix/SqliteSettingsStore.h"
#include "text/SafeText.h"
#include "text/Text.h"
#include "words/ScriptWords.h"
#include "words/WordFile.h"

namespace tessel::cli {
namespace {

/// Runs the function on the user's store, which it may write to and which is made where there is
/// none. A store that cannot be used is a RuntimeError: nothing is kept in memory here.
void ChangeStore(const WordsArguments& arguments, const std::function<void(SettingsStore&)>& use) {
  SqliteSettingsStore store(WordStore(arguments.store));
  use(store);
}

ScriptWord FindWord(const std::vector<ScriptWord>& words, const std::string& wanted) {
  std::vector<std::string> names;
  for (const ScriptWord& word : words) {
    if (EqualIgnoringAsciiCase(word.word, wanted)) return word;
    names.push_back(ToUtf8(word.word));
  }
  const std::string guess = DidYouMean(ToUtf8(wanted), names);
  throw RuntimeError("\"" + ToUtf8(wanted) + "\" is not in the word list." +
                     (guess.empty() ? "" : " " + guess));
}

void Print(const WordsArguments& arguments, const char* command,
           const std::vector<ScriptWord>& words) {
  FileReport store;
  store.file = WordStore(arguments.store);
  for (const ScriptWord& word : words) {
    store.rows.push_back({ToUtf8(word.word), ToUtf8(word.parameters)});
  }
  const Report report = {command, {"word", "parameters"}, {store}};
  std::cout << (arguments.format == Format::kJson ? ReportAsJson(report) + '\n'
                                                  : ReportAsTsv(report));
}

void RefuseToReplaceTheStore(const WordsArguments& arguments) {
  const std::string& file = arguments.destination.file;
  const auto there = posix::StatusOf(file);
  const auto store = posix::StatusOf(WordStore(arguments.store));
  if (!there || !store || !posix::IsSameFile(*there, *store)) return;
  throw RuntimeError("Cannot save " + file + ": it is the settings store.");
}

void SayWhereTheStarterWordsAre() {
  Complain("The word list is empty. \"tessel words import " + DefaultHostDirectory() +
           "/words.txt\" adds the starter words.");
}

}  // namespace

bool ListWords(const WordsArguments& arguments) {
  const std::vector<ScriptWord> words = StoredWords(arguments.store);
  if (words.empty()) SayWhereTheStarterWordsAre();
  if (arguments.format != Format::kText) {
    Print(arguments, "words list", words);
    return true;
  }
  for (const ScriptWord& word : words) std::cout << DocumentForTerminal(word.word) << '\n';
  return true;
}

bool GetWord(const WordsArguments& arguments) {
  const ScriptWord word = FindWord(StoredWords(arguments.store), arguments.word);
  if (arguments.format != Format::kText) {
    Print(arguments, "words get", {word});
  } else {
    std::cout << DocumentForTerminal(word.parameters) << '\n';
  }
  return true;
}

bool SetWord(const WordsArguments& arguments) {
  const ScriptWord word = {arguments.word, arguments.parameters};
  if (const char* refusal = RefusalOf(word)) throw RuntimeError(refusal);
  ChangeStore(arguments, [&](SettingsStore& store) { WriteScriptWord(store, word); });
  return true;
}

bool RemoveWord(const WordsArguments& arguments) {
  const ScriptWord word = FindWord(StoredWords(arguments.store), arguments.word);
  ChangeStore(arguments, [&](SettingsStore& store) { DeleteScriptWord(store, word.word); });
  return true;
}

bool ImportWords(const WordsArguments& arguments) {
  const std::vector<ScriptWord> words = ParseWordFile(ReadInput(arguments.file));
  ChangeStore(arguments, [&](SettingsStore& store) { WriteScriptWords(store, words); });
  return true;
}

bool ExportWords(const WordsArguments& arguments) {
  RefuseToReplaceTheStore(arguments);
  WriteResult(FormatWordFile(StoredWords(arguments.store)), arguments.destination, {});
  return true;
}

}  // namespace tessel::cli
