// A check of copies of the open texts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/problems/Problem.h"
#include "words/ScriptWords.h"

namespace tessel {

/// What is open in a slot at some time: as long as it is equal, the text is the same.
struct CheckedDocument {
  Slot slot{};
  std::uint64_t revision = 0;  ///< of its text
  std::string name;

  friend bool operator==(const CheckedDocument&, const CheckedDocument&) = default;
};

/// All that a check needs, without a tie to the documents.
struct TextCheck {
  std::vector<CheckedDocument> documents;
  std::vector<std::string> texts;  ///< theirs
  std::vector<ScriptWord> words;
  std::string olderTemplate, newerTemplate;  ///< see check::Knowledge
};

/// So many problems are listed at most.
inline constexpr std::size_t kMostProblems = 10'000;

struct CheckedTexts {
  std::vector<CheckedDocument> documents;
  std::vector<Problem> problems;  ///< document by document, in the order of the text
  bool complete = true;           ///< false where there are more of them
};

/// Checks the texts as one mod. May be called on any thread.
CheckedTexts Checked(const TextCheck& task);

}  // namespace tessel
