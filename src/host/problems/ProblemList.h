// The problems of the open documents, as far as they are known.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "base/Event.h"
#include "host/problems/TextCheck.h"
#include "text/ChangedRange.h"

namespace tessel {

/// What the last check has found. Its places follow the edits that have come since.
class ProblemList {
 public:
  void Take(CheckedTexts checked);
  void Clear() { Take({}); }

  const std::vector<Problem>& All() const { return problems_; }
  /// False where there are more problems than are listed.
  bool IsComplete() const { return complete_; }
  /// Where the problem stands in the text as it is now.
  language::Range RangeOf(const Problem& problem) const;
  /// The revision of the text in which the problems of that document were found; nothing where
  /// there are none.
  std::optional<std::uint64_t> RevisionOf(Slot slot) const;

  // --- What has become of the documents since
  void Changed(Slot slot, const ChangedRange& change);
  void Dropped(Slot slot);
  void Moved(Slot from, Slot to);

  /// There are other problems, or they belong to other slots.
  Event<> Replaced;

 private:
  struct Reading {
    std::uint64_t revision = 0;
    std::optional<ChangedRange> change = {};  // since then
  };

  std::vector<Problem> problems_;
  std::map<Slot, Reading> readings_;
  bool complete_ = true;
};

}  // namespace tessel
