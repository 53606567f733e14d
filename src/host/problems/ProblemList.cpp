#include "host/problems/ProblemList.h"

#include <utility>

namespace tessel {

void ProblemList::Take(CheckedTexts checked) {
  const bool none = problems_.empty() && checked.problems.empty();
  problems_ = std::move(checked.problems);
  complete_ = checked.complete;
  readings_.clear();
  for (const CheckedDocument& document : checked.documents) {
    readings_[document.slot] = {document.revision};
  }
  if (!none) Replaced.Raise();
}

language::Range ProblemList::RangeOf(const Problem& problem) const {
  const auto reading = readings_.find(problem.slot);
  const language::Range& range = problem.finding.range;
  if (reading == readings_.end() || !reading->second.change) return range;
  return {reading->second.change->Moved(range.begin), reading->second.change->Moved(range.end)};
}

std::optional<std::uint64_t> ProblemList::RevisionOf(Slot slot) const {
  const auto reading = readings_.find(slot);
  return reading == readings_.end() ? std::nullopt : std::optional(reading->second.revision);
}

void ProblemList::Changed(Slot slot, const ChangedRange& change) {
  const auto reading = readings_.find(slot);
  if (reading == readings_.end()) return;
  auto& before = reading->second.change;
  before = before ? before->Then(change) : change;
}

void ProblemList::Dropped(Slot slot) {
  readings_.erase(slot);
  const auto gone =
      std::erase_if(problems_, [slot](const Problem& problem) { return problem.slot == slot; });
  if (gone > 0) Replaced.Raise();
}

void ProblemList::Moved(Slot from, Slot to) {
  const auto reading = readings_.extract(from);
  if (!reading.empty()) readings_[to] = reading.mapped();
  bool any = false;
  for (Problem& problem : problems_) {
    if (problem.slot != from) continue;
    problem.slot = to;
    any = true;
  }
  if (any) Replaced.Raise();
}

}  // namespace tessel
