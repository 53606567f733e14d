// Word files, the words of the store and the search in them. An input is a word file.
#include <algorithm>
#include <string>

#include "base/RuntimeError.h"
#include "fuzz/Fuzzing.h"
#include "services/MemorySettingsStore.h"
#include "text/Text.h"
#include "words/ScriptWords.h"
#include "words/WordFile.h"
#include "words/WordSearch.h"

namespace tessel::fuzz {
namespace {

bool SameWords(const std::vector<ScriptWord>& a, const std::vector<ScriptWord>& b) {
  return std::ranges::equal(a, b, [](const ScriptWord& x, const ScriptWord& y) {
    return x.word == y.word && x.parameters == y.parameters;
  });
}

std::vector<ScriptWord> Parse(std::string_view text) {
  try {
    return ParseWordFile(text);
  } catch (const RuntimeError&) {
    return {};
  }
}

/// What comes back from the store of one word.
void RequireKept(SettingsStore& store, const ScriptWord& word) {
  const auto words = ReadScriptWords(store);
  const auto kept = std::ranges::find(words, word.word, &ScriptWord::word);
  Require(kept != words.end(), "a written word is read");
  Require(kept->parameters == word.parameters, "with its parameters");
}

/// How many characters two texts share from their start, case ignored.
std::size_t SharedPrefix(std::string_view a, std::string_view b) {
  std::size_t n = 0;
  while (n < a.size() && n < b.size() && AsciiLower(a.substr(n, 1)) == AsciiLower(b.substr(n, 1)))
    ++n;
  return n;
}

void RequireBestMatch(const std::vector<std::string>& names, const std::string& wanted) {
  WordSearch search;
  const int found = search.Search(wanted, names);
  Require(found >= 0 && found < static_cast<int>(names.size()), "a match is a word");
  const auto equal = std::ranges::find_if(
      names, [&](const std::string& name) { return EqualIgnoringAsciiCase(name, wanted); });
  if (equal != names.end()) Require(found == equal - names.begin(), "an equal word wins");
  if (equal != names.end()) return;
  std::size_t best = 0;
  for (const std::string& name : names) best = std::max(best, SharedPrefix(name, wanted));
  if (best > 0) {
    Require(SharedPrefix(names[static_cast<std::size_t>(found)], wanted) == best,
            "the longest prefix wins");
  }
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  const std::string text(AsText(data, size));
  const auto words = Parse(text);
  std::vector<ScriptWord> readable = words;
  // A lone CR within a line is no line end of a word file, and would not survive being written.
  for (ScriptWord& word : readable) {
    std::ranges::replace(word.word, '\r', ' ');
    std::ranges::replace(word.parameters, '\r', ' ');
  }
  Require(SameWords(ParseWordFile(FormatWordFile(words)), readable), "what is written is read");

  MemorySettingsStore store;
  WriteScriptWords(store, words);
  for (std::size_t i = 0; i < words.size() && i < 20; ++i) {
    WriteScriptWord(store, words[i]);
    // A parameter key that looks like a word's, or the other way round, takes its place.
    RequireKept(store, words[i]);
    DeleteScriptWord(store, words[i].word);
    for (const ScriptWord& left : ReadScriptWords(store)) {
      Require(!EqualIgnoringAsciiCase(left.word, words[i].word) || left.word != words[i].word ||
                  store.GetSetting("ConWords", "NAME" + left.word) == std::nullopt,
              "a deleted word is gone");
    }
  }

  std::vector<std::string> names;
  for (const ScriptWord& word : words) names.push_back(word.word);
  if (!names.empty()) RequireBestMatch(names, text.substr(0, text.find('\t')) + "x");
  return 0;
}
