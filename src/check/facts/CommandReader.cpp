#include "check/facts/CommandReader.h"

#include <algorithm>

namespace tessel::check {

bool LooksLikeNumber(std::string_view word) {
  if (word.starts_with('-')) word.remove_prefix(1);
  return !word.empty() && std::ranges::all_of(word, [](char c) { return c >= '0' && c <= '9'; });
}

void CommandReader::Begin(const Command& command, Stretch word) {
  command_ = &command;
  commandWord_ = word;
  missing_ = command.parameters;
}

void CommandReader::BeginAnyNumber() {
  command_ = nullptr;
  missing_ = {0, ParameterCount::kAny};
  newLine_ = false;
  skipsLine_ = false;
}

void CommandReader::Count() {
  if (missing_.least > 0) --missing_.least;
  if (missing_.most != ParameterCount::kAny) --missing_.most;
}

void CommandReader::Interrupt() {
  if (missing_.least > 0) faults_.push_back({WordProblem::kTooFew, commandWord_, command_});
  command_ = nullptr;
  missing_ = {};
  skipsLine_ = false;
}

void CommandReader::Take(Stretch word) {
  if (table_.IsEmpty()) return;
  const bool isFirst = newLine_;
  newLine_ = false;
  if (isFirst) {
    skipsLine_ = false;
    if (missing_.least == 0) {
      command_ = nullptr;
      missing_ = {};
    }
  }
  if (skipsLine_) return;
  const std::string_view text = text_.substr(word.begin, word.end - word.begin);
  const Command* const known = table_.Find(text);
  const bool isParameter = known != nullptr ? missing_.least > 0 && !isFirst : missing_.most > 0;
  if (isParameter) {
    Count();
    if (known == nullptr && !LooksLikeNumber(text)) uses_.push_back(word);
    return;
  }
  if (known != nullptr) {
    Interrupt();
    Begin(*known, word);
    return;
  }
  const bool isTooMany = command_ != nullptr && LooksLikeNumber(text);
  faults_.push_back({isTooMany ? WordProblem::kTooMany : WordProblem::kUnknown, word,
                     isTooMany ? command_ : nullptr});
  skipsLine_ = true;
}

}  // namespace tessel::check
