#include "text/LineEdits.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <unordered_map>

namespace tessel {
namespace {

using LineSpan = std::span<const std::string_view>;
using LineNumbers = std::vector<std::uint32_t>;

// The search for the fewest edits keeps the square of their number.
constexpr std::ptrdiff_t kMostEdits = 2000;
// Of lines that are compared: some tenths of a second.
constexpr std::ptrdiff_t kMostSteps = 50'000'000;

/// Equal lines have the same number, so that a line is read once, however often it is compared.
class Numbering {
 public:
  LineNumbers Of(LineSpan lines) {
    LineNumbers numbers;
    numbers.reserve(lines.size());
    for (const std::string_view line : lines) {
      const auto next = static_cast<std::uint32_t>(numbers_.size());
      numbers.push_back(numbers_.try_emplace(line, next).first->second);
    }
    return numbers;
  }

 private:
  std::unordered_map<std::string_view, std::uint32_t> numbers_;
};

/// The furthest line of `before` that each diagonal (line before − line after) has been followed
/// to, after 0, 1, 2 ... lines removed or added.
class Frontiers {
 public:
  Frontiers(const LineNumbers& before, const LineNumbers& after) : before_(before), after_(after) {}

  /// False when it takes more than kMostEdits or kMostSteps.
  bool Search() {
    for (std::ptrdiff_t edits = 0; edits <= kMostEdits && steps_ <= kMostSteps; ++edits) {
      std::vector<std::ptrdiff_t>& frontier =
          frontiers_.emplace_back(static_cast<std::size_t>(2 * edits + 1));
      for (std::ptrdiff_t diagonal = -edits; diagonal <= edits; diagonal += 2) {
        const std::ptrdiff_t start = Start(edits, diagonal);
        const std::ptrdiff_t line = Follow(start, diagonal);
        steps_ += line - start + 1;
        frontier[static_cast<std::size_t>(diagonal + edits)] = line;
        if (line >= std::ssize(before_) && line - diagonal >= std::ssize(after_)) return true;
      }
    }
    return false;
  }

  /// Single lines removed and added, in order.
  std::vector<LineEdit> Edits() const {
    std::vector<LineEdit> edits;
    std::ptrdiff_t line = std::ssize(before_);
    std::ptrdiff_t diagonal = line - std::ssize(after_);
    for (std::ptrdiff_t count = std::ssize(frontiers_) - 1; count > 0; --count) {
      const bool added = CameByAdding(count, diagonal);
      const std::ptrdiff_t from = added ? diagonal + 1 : diagonal - 1;
      line = At(count - 1, from);
      edits.push_back({.before = static_cast<std::size_t>(line),
                       .removed = added ? 0U : 1U,
                       .after = static_cast<std::size_t>(line - from),
                       .added = added ? 1U : 0U});
      diagonal = from;
    }
    std::ranges::reverse(edits);
    return edits;
  }

 private:
  std::ptrdiff_t At(std::ptrdiff_t edits, std::ptrdiff_t diagonal) const {
    return frontiers_[static_cast<std::size_t>(edits)][static_cast<std::size_t>(diagonal + edits)];
  }
  bool CameByAdding(std::ptrdiff_t edits, std::ptrdiff_t diagonal) const {
    return diagonal == -edits ||
           (diagonal != edits && At(edits - 1, diagonal - 1) < At(edits - 1, diagonal + 1));
  }
  std::ptrdiff_t Start(std::ptrdiff_t edits, std::ptrdiff_t diagonal) const {
    if (edits == 0) return 0;
    return CameByAdding(edits, diagonal) ? At(edits - 1, diagonal + 1)
                                         : At(edits - 1, diagonal - 1) + 1;
  }
  std::ptrdiff_t Follow(std::ptrdiff_t line, std::ptrdiff_t diagonal) const {
    while (line < std::ssize(before_) && line - diagonal < std::ssize(after_) &&
           before_[static_cast<std::size_t>(line)] ==
               after_[static_cast<std::size_t>(line - diagonal)]) {
      ++line;
    }
    return line;
  }

  const LineNumbers& before_;
  const LineNumbers& after_;
  std::ptrdiff_t steps_ = 0;
  std::vector<std::vector<std::ptrdiff_t>> frontiers_;
};

/// Edits without a line between them are one.
std::vector<LineEdit> Joined(const std::vector<LineEdit>& singles) {
  std::vector<LineEdit> joined;
  for (const LineEdit& edit : singles) {
    if (!joined.empty() && joined.back().before + joined.back().removed == edit.before &&
        joined.back().after + joined.back().added == edit.after) {
      joined.back().removed += edit.removed;
      joined.back().added += edit.added;
    } else {
      joined.push_back(edit);
    }
  }
  return joined;
}

/// Between texts of as many lines, single lines.
std::vector<LineEdit> LinesThatDiffer(const LineNumbers& before, const LineNumbers& after) {
  std::vector<LineEdit> edits;
  for (std::size_t line = 0; line < before.size(); ++line) {
    if (before[line] != after[line]) edits.push_back({line, 1, line, 1});
  }
  return edits;
}

/// Between texts whose first and last lines differ.
LineEdits EditsBetween(LineSpan before, LineSpan after) {
  if (before.empty() && after.empty()) return {};
  Numbering numbering;
  const LineNumbers oldNumbers = numbering.Of(before);
  const LineNumbers newNumbers = numbering.Of(after);
  Frontiers frontiers(oldNumbers, newNumbers);
  if (frontiers.Search()) return {Joined(frontiers.Edits())};
  if (before.size() == after.size()) {
    return {Joined(LinesThatDiffer(oldNumbers, newNumbers)), false};
  }
  return {{{0, before.size(), 0, after.size()}}, false};
}

}  // namespace

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  lines.reserve(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1);
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

LineEdits LineEditsBetween(const std::vector<std::string_view>& before,
                           const std::vector<std::string_view>& after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t start = 0;
  while (start < shorter && before[start] == after[start]) ++start;
  std::size_t end = 0;
  while (end < shorter - start &&
         before[before.size() - 1 - end] == after[after.size() - 1 - end]) {
    ++end;
  }
  LineEdits found = EditsBetween(LineSpan(before).subspan(start, before.size() - start - end),
                                 LineSpan(after).subspan(start, after.size() - start - end));
  for (LineEdit& edit : found.edits) {
    edit.before += start;
    edit.after += start;
  }
  return found;
}

}  // namespace tessel
