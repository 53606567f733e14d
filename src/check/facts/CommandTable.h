// The script words as commands: how many parameters each takes.
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "check/facts/NameTable.h"
#include "words/ScriptWords.h"

namespace tessel::check {

/// How many words belong to a command.
struct ParameterCount {
  static constexpr int kAny = std::numeric_limits<int>::max();

  int least = 0;
  int most = 0;

  friend bool operator==(const ParameterCount&, const ParameterCount&) = default;
};

/// What a word's parameter text says: one for each pair of brackets. "[no parameters]" and brackets
/// that say what the word itself is ("[move flag]") stand for none, "[conditions of the player]"
/// and brackets that end with "..." for any number.
ParameterCount ParametersOf(std::string_view parameterText);

struct Command {
  std::string_view word;
  ParameterCount parameters;
};

/// Knows the commands of a word list, which outlives it.
class CommandTable {
 public:
  explicit CommandTable(std::span<const ScriptWord> words);

  bool IsEmpty() const { return commands_.empty(); }
  /// Null for a word that is none.
  const Command* Find(std::string_view word) const {
    if (word.size() > longest_) return nullptr;
    const NamedPlace* place = table_.Find(word);
    return place == nullptr ? nullptr : &commands_[place->statement];
  }

 private:
  std::vector<Command> commands_;
  NameTable table_;
  std::size_t longest_ = 0;
};

}  // namespace tessel::check
