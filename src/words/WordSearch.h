// The incremental search in the word list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessel {

/// What is kept from one search to the next while a text is being typed.
struct WordSearch {
  std::string LastSearchText;
  int LastMatchIndex = 0;
  bool LastPrefixMatched = true;

  /// An emptied search text starts over.
  void Reset();
  /// Searches a text that is not empty: an equal word first, else the first word that shares the
  /// longest prefix with it; ASCII case is ignored. Returns LastMatchIndex.
  int Search(std::string_view text, const std::vector<std::string>& words);

 private:
  void SearchPrefixes(std::string_view text, const std::vector<std::string>& words);
};

}  // namespace tessel
