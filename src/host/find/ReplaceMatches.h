// Replacing matches in a document, as one edit of a person.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/find/Replacement.h"
#include "host/find/SearchPattern.h"
#include "models/RichTextBox.h"
#include "qt/base/LongestText.h"

namespace tessel {

/// A stretch of a text and what comes there.
struct TextChange {
  Position at = 0;
  Position length = 0;
  std::string inserted;
};

/// What the matches of a pattern in `text` are to become. A RuntimeError when the text would have
/// more than `most` bytes then.
std::vector<TextChange> ChangesOf(const SearchPattern& pattern, SearchedText& text,
                                  const std::vector<TextMatch>& matches,
                                  const Replacement& replacement,
                                  Position most = Position{kLongestShownText});

/// Makes these changes, which stand in order and do not overlap, in one undo step. Nothing else
/// changes its colour. The caret stays with the text around it.
void MakeChanges(RichTextBox& editor, std::vector<TextChange> changes);

}  // namespace tessel
