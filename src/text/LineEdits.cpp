#include "text/LineEdits.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace tessel {
namespace {

using LineSpan = std::span<const std::string_view>;

// The search for the fewest edits keeps the square of their number.
constexpr std::ptrdiff_t kMostEdits = 2000;

/// The furthest line of `before` that each diagonal (line before − line after) has been followed
/// to, after 0, 1, 2 ... lines removed or added.
class Frontiers {
 public:
  Frontiers(LineSpan before, LineSpan after) : before_(before), after_(after) {}

  /// False when it takes more than kMostEdits.
  bool Search() {
    for (std::ptrdiff_t edits = 0; edits <= kMostEdits; ++edits) {
      std::vector<std::ptrdiff_t>& frontier =
          frontiers_.emplace_back(static_cast<std::size_t>(2 * edits + 1));
      for (std::ptrdiff_t diagonal = -edits; diagonal <= edits; diagonal += 2) {
        const std::ptrdiff_t line = Follow(Start(edits, diagonal), diagonal);
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

  LineSpan before_, after_;
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

std::vector<LineEdit> LineEditsBetween(const std::vector<std::string_view>& before,
                                       const std::vector<std::string_view>& after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t start = 0;
  while (start < shorter && before[start] == after[start]) ++start;
  std::size_t end = 0;
  while (end < shorter - start &&
         before[before.size() - 1 - end] == after[after.size() - 1 - end]) {
    ++end;
  }
  const LineSpan oldLines = LineSpan(before).subspan(start, before.size() - start - end);
  const LineSpan newLines = LineSpan(after).subspan(start, after.size() - start - end);
  if (oldLines.empty() && newLines.empty()) return {};
  Frontiers frontiers(oldLines, newLines);
  if (!frontiers.Search()) return {{start, oldLines.size(), start, newLines.size()}};
  std::vector<LineEdit> edits = Joined(frontiers.Edits());
  for (LineEdit& edit : edits) {
    edit.before += start;
    edit.after += start;
  }
  return edits;
}

}  // namespace tessel
