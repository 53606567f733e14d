// The commands of a script, which are all words that belong to no statement.
#pragma once

#include <string_view>
#include <vector>

#include "check/facts/CommandTable.h"
#include "check/facts/FileFacts.h"
#include "check/facts/Stretch.h"

namespace tessel::check {

/// Is told the words that belong to no statement, one by one. A command takes its parameters from
/// its own line, and from the next lines only as long as too few stand there and no command comes.
class CommandReader {
 public:
  /// Adds to the two lists.
  CommandReader(std::string_view text, const CommandTable& table, std::vector<Stretch>& uses,
                std::vector<WordFault>& faults)
      : text_(text), table_(table), uses_(uses), faults_(faults) {}

  void LineEnds() { newLine_ = true; }
  void Take(Stretch word);
  /// A statement begins, or the text ends: no parameters can follow.
  void Interrupt();
  /// What follows on this line belongs to a statement that takes any number of words.
  void BeginAnyNumber();

 private:
  void Begin(const Command& command, Stretch word);
  void Count();

  std::string_view text_;
  const CommandTable& table_;
  std::vector<Stretch>& uses_;
  std::vector<WordFault>& faults_;
  const Command* command_ = nullptr;  // the one on this line
  Stretch commandWord_;
  ParameterCount missing_;  // what may still follow
  bool newLine_ = true;
  bool skipsLine_ = false;  // one unknown word is told, not all that follow it
};

/// A minus sign or not, then digits.
bool LooksLikeNumber(std::string_view word);

}  // namespace tessel::check
