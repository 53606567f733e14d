#include "words/WordSearch.h"

#include <algorithm>

#include "text/Text.h"

namespace tessel {

void WordSearch::Reset() {
  LastMatchIndex = 0;
  LastSearchText.clear();
}

int WordSearch::Search(std::string_view text, const std::vector<std::string>& words) {
  const bool grown = !LastSearchText.empty() && text.size() > LastSearchText.size();
  if (LastSearchText.empty() || text.size() < LastSearchText.size()) LastMatchIndex = 0;

  const auto equal = std::ranges::find_if(
      words, [&](const std::string& word) { return EqualIgnoringAsciiCase(word, text); });
  if (equal != words.end()) {
    LastMatchIndex = static_cast<int>(equal - words.begin());
    LastPrefixMatched = true;
  } else if (!grown || LastPrefixMatched) {
    SearchPrefixes(text, words);
  }  // else no longer text can match either
  LastSearchText = text;
  return LastMatchIndex;
}

void WordSearch::SearchPrefixes(std::string_view text, const std::vector<std::string>& words) {
  for (std::size_t k = 1; k <= text.size(); ++k) {
    const std::string_view prefix = text.substr(0, k);
    const auto match = std::ranges::find_if(words, [&](const std::string& word) {
      return EqualIgnoringAsciiCase(std::string_view(word).substr(0, k), prefix);
    });
    LastPrefixMatched = match != words.end();
    if (!LastPrefixMatched) return;  // nor does any word share more
    LastMatchIndex = static_cast<int>(match - words.begin());
  }
}

}  // namespace tessel
