#include "words/WordFile.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

ScriptWord ParseLine(std::string_view line, int number) {
  const std::size_t tab = line.find('\t');
  const std::string_view word = line.substr(0, tab);
  if (tab == line.npos || word.empty() || word.find('[') != word.npos) {
    throw RuntimeError("Line " + std::to_string(number) +
                       " of the word list is not a word, a tab and its parameters.");
  }
  return {std::string(word), std::string(line.substr(tab + 1))};
}

}  // namespace

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
