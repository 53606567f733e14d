#include "words/WordFile.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
bool HoldsControl(const std::string& text) { return std::ranges::any_of(text, IsControl); }
bool HoldsMark(const std::string& text) { return text.find('[') != text.npos; }

ScriptWord ParseLine(std::string_view line, int number) {
  const std::string name = "Line " + std::to_string(number) + " of the word list";
  const std::size_t tab = line.find('\t');
  if (tab == line.npos) {
    throw RuntimeError(name + " is not a word, a tab and its parameters.");
  }
  ScriptWord word = {std::string(line.substr(0, tab)), std::string(line.substr(tab + 1))};
  if (const char* refusal = RefusalOf(word)) throw RuntimeError(name + ": " + refusal);
  return word;
}

}  // namespace

const char* RefusalOf(const ScriptWord& word) {
  if (word.word.empty()) return "A word cannot be empty.";
  if (HoldsControl(word.word) || HoldsControl(word.parameters)) {
    return "A word and its parameters cannot hold tabs, line breaks or other control characters.";
  }
  if (HoldsMark(word.word)) {
    return "A word cannot hold \"[\": that mark tells parameter texts from words.";
  }
  if (!word.parameters.empty() && !HoldsMark(word.parameters)) {
    return "Parameters need a \"[\", as in \"[amount]\": that mark tells them from words.";
  }
  return nullptr;
}

std::vector<ScriptWord> ParseWordFile(std::string_view text) {
  std::vector<ScriptWord> words;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty()) words.push_back(ParseLine(line, number));
  }
  return words;
}

std::string FormatWordFile(const std::vector<ScriptWord>& words) {
  std::string text;
  for (const ScriptWord& word : words) {
    std::string line = word.word + '\t' + word.parameters;
    std::ranges::replace_if(
        line, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    text += line + '\n';
  }
  return text;
}

}  // namespace tessel
