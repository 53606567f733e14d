#include "host/changes/LineDifference.h"

#include <algorithm>
#include <utility>

#include "text/ChangedWords.h"
#include "text/LineEdits.h"
#include "text/LineEnds.h"

namespace tessel {
namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t kContext = 3;

std::uint32_t Line(std::size_t number) { return static_cast<std::uint32_t>(number); }

}  // namespace

struct LineDifference::Edit : LineEdit {
  /// True where the line with that number, from 0, has become the one with the same.
  bool Pairs(std::size_t line, const Lines& linesBefore, const Lines& linesAfter) const {
    return line < removed && line < added &&
           LooksChangedFrom(WithoutBreak(linesBefore[before + line]),
                            WithoutBreak(linesAfter[after + line]));
  }
  /// True where each line has become another one, and nothing else.
  bool IsOfPairs(const Lines& linesBefore, const Lines& linesAfter) const {
    if (removed != added) return false;
    for (std::size_t line = 0; line < removed; ++line) {
      if (!Pairs(line, linesBefore, linesAfter)) return false;
    }
    return true;
  }
};

LineDifference::LineDifference(std::string before, std::string after)
    : before_(std::move(before)),
      after_(std::move(after)),
      linesBefore_(LinesWithBreaks(before_)),
      linesAfter_(LinesWithBreaks(after_)) {
  const LineEdits found = LineEditsBetween(linesBefore_, linesAfter_);
  fewest_ = found.fewest;
  std::size_t lineBefore = 0;
  std::size_t lineAfter = 0;
  for (const LineEdit& each : found.edits) {
    const Edit edit{each};
    AddSame(lineBefore, lineAfter, edit.before - lineBefore, changes_.empty(), false);
    lineBefore = edit.before + edit.removed;
    lineAfter = edit.after + edit.added;
    if (!edit.IsOfPairs(linesBefore_, linesAfter_)) {
      AddChange(edit);
      continue;
    }
    for (std::size_t line = 0; line < edit.removed; ++line) {
      AddChange({{edit.before + line, 1, edit.after + line, 1}});
    }
  }
  AddSame(lineBefore, lineAfter, linesBefore_.size() - lineBefore, changes_.empty(), true);
}

void LineDifference::AddRow(const DifferenceRow& row) {
  rows_.push_back(row);
  longest_ = std::max(longest_, std::ssize(LineOf(row)));
}

void LineDifference::AddSame(std::size_t before, std::size_t after, std::size_t count, bool first,
                             bool last) {
  const std::size_t lead = first ? 0 : std::min(kContext, count);
  const std::size_t trail = last ? 0 : std::min(kContext, count - lead);
  const std::size_t hidden = count - lead - trail;
  AddLines(before, after, lead);
  // A row that says so takes the room of the line.
  if (hidden == 1) AddLines(before + lead, after + lead, 1);
  if (hidden > 1) AddLeftOut(before + lead, after + lead, hidden);
  AddLines(before + count - trail, after + count - trail, trail);
}

void LineDifference::AddLines(std::size_t before, std::size_t after, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    AddRow({RowKind::kSame, Line(before + i), Line(after + i)});
  }
}

void LineDifference::AddLeftOut(std::size_t before, std::size_t after, std::size_t count) {
  AddRow({RowKind::kLeftOut, Line(before), Line(after), Line(count)});
}

void LineDifference::AddChange(const Edit& edit) {
  changes_.push_back({rows_.size(), edit.removed + edit.added});
  const auto partner = [&](std::size_t line, std::size_t first) {
    return edit.Pairs(line, linesBefore_, linesAfter_) ? Line(first + line) : DifferenceRow::kNone;
  };
  for (std::size_t line = 0; line < edit.removed; ++line) {
    AddRow({RowKind::kRemoved, Line(edit.before + line), partner(line, edit.after)});
  }
  for (std::size_t line = 0; line < edit.added; ++line) {
    AddRow({RowKind::kAdded, partner(line, edit.before), Line(edit.after + line)});
  }
}

std::string_view LineDifference::LineOf(const DifferenceRow& row) const {
  if (row.kind == RowKind::kLeftOut) return {};
  return row.kind == RowKind::kAdded ? linesAfter_[row.after] : linesBefore_[row.before];
}

std::optional<std::string_view> LineDifference::PartnerOf(const DifferenceRow& row) const {
  if (row.kind == RowKind::kRemoved && row.after != DifferenceRow::kNone) {
    return linesAfter_[row.after];
  }
  if (row.kind == RowKind::kAdded && row.before != DifferenceRow::kNone) {
    return linesBefore_[row.before];
  }
  return std::nullopt;
}

}  // namespace tessel
