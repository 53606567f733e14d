// What a check knows of one file, gathered in one pass over its text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "check/facts/CommandTable.h"
#include "check/facts/LineIndex.h"
#include "check/facts/Stretch.h"
#include "language/Blocks.h"
#include "language/Keywords.h"

namespace tessel::check {

/// A file as it is given to a check. Name and text outlive the check.
struct Source {
  std::string_view name;
  std::string_view text;
};

/// A statement with the first of its words.
struct Statement {
  language::Role role = language::Role::kOther;
  Stretch range;                ///< from the keyword to the last word
  std::uint32_t firstWord = 0;  ///< among FileFacts::words
  std::uint32_t words = 0;      ///< those that are kept: of texts the first few, of lists all
};

enum class WordProblem : std::uint8_t { kUnknown, kTooFew, kTooMany };

/// A word of a script that is no command, or has too few or too many parameters.
struct WordFault {
  WordProblem problem = WordProblem::kUnknown;
  Stretch word;                      ///< the unknown word, the command, or the word too many
  const Command* command = nullptr;  ///< whose parameters they are; null for an unknown word
};

/// A state that is run by another state.
struct StateUse {
  std::uint32_t keyword = 0;  ///< where "state" begins
  std::uint32_t opener = 0;   ///< where that of the state around it begins
  Stretch name;
};

class FileFacts {
 public:
  FileFacts(const Source& source, const CommandTable& commands);

  std::string_view Name() const { return source_.name; }
  std::string_view Text() const { return source_.text; }
  std::string_view Text(Stretch stretch) const {
    return source_.text.substr(stretch.begin, stretch.end - stretch.begin);
  }

  const std::vector<Statement>& Statements(language::Keyword keyword) const {
    return statements_[static_cast<std::size_t>(keyword)];
  }
  /// A word of a statement, counted from 0; an empty stretch behind the last where there is none.
  Stretch Word(const Statement& statement, std::size_t index) const {
    if (index < statement.words) return words_[statement.firstWord + index];
    return {statement.range.end, statement.range.end};
  }
  std::string_view WordText(const Statement& statement, std::size_t index) const {
    return Text(Word(statement, index));
  }

  /// The words that stand for something with a name; no numbers.
  const std::vector<Stretch>& Uses() const { return uses_; }
  const std::vector<WordFault>& WordFaults() const { return wordFaults_; }
  /// Blocks that nothing closes, and what closes nothing.
  const std::vector<language::Block>& OpenBlocks() const { return openBlocks_; }
  const std::vector<StateUse>& StateUses() const { return stateUses_; }
  const std::vector<language::Mark>& StrayClosers() const { return strayClosers_; }
  std::optional<Stretch> OpenComment() const { return openComment_; }
  /// Each "*/" outside of comments.
  const std::vector<Stretch>& StrayCommentEnds() const { return strayCommentEnds_; }

  /// Made when somebody asks.
  const LineIndex& Lines() const;

 private:
  friend class FactReader;
  static constexpr std::size_t kKeywords = 19;

  Source source_;
  std::array<std::vector<Statement>, kKeywords> statements_;
  std::vector<Stretch> words_;
  std::vector<Stretch> uses_;
  std::vector<WordFault> wordFaults_;
  std::vector<language::Block> openBlocks_;
  std::vector<StateUse> stateUses_;
  std::vector<language::Mark> strayClosers_;
  std::optional<Stretch> openComment_;
  std::vector<Stretch> strayCommentEnds_;
  mutable std::unique_ptr<LineIndex> lines_;
};

}  // namespace tessel::check
