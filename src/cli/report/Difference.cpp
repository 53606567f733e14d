#include "cli/report/Difference.h"

#include <algorithm>
#include <vector>

#include "text/LineEdits.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t kContext = 3;

/// Edits so near to each other that they are shown together: [first, last] of the list.
struct Hunk {
  std::size_t first = 0, last = 0;
};

std::vector<Hunk> HunksOf(const std::vector<LineEdit>& edits) {
  std::vector<Hunk> hunks;
  for (std::size_t i = 0; i < edits.size(); ++i) {
    const bool near =
        i > 0 && edits[i].before - (edits[i - 1].before + edits[i - 1].removed) <= 2 * kContext;
    if (near) {
      hunks.back().last = i;
    } else {
      hunks.push_back({i, i});
    }
  }
  return hunks;
}

void AddLine(std::string& text, char mark, std::string_view line) {
  text += mark;
  text += line;
  if (!line.ends_with('\n')) text += "\n\\ No newline at end of file\n";
}

void AddLines(std::string& text, char mark, const Lines& lines, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i) AddLine(text, mark, lines[i]);
}

/// Lines count from 1; a range without lines is named by the line in front of it.
std::string RangeText(std::size_t start, std::size_t count) {
  return std::to_string(count == 0 ? start : start + 1) + ',' + std::to_string(count);
}

void AddHunk(std::string& text, const Hunk& hunk, const std::vector<LineEdit>& edits,
             const Lines& before, const Lines& after) {
  const LineEdit& first = edits[hunk.first];
  const LineEdit& last = edits[hunk.last];
  const std::size_t lead = std::min(kContext, first.before);
  const std::size_t beforeEnd = std::min(before.size(), last.before + last.removed + kContext);
  const std::size_t trail = beforeEnd - (last.before + last.removed);
  const std::size_t beforeStart = first.before - lead;
  const std::size_t afterStart = first.after - lead;
  text += "@@ -" + RangeText(beforeStart, beforeEnd - beforeStart) + " +" +
          RangeText(afterStart, last.after + last.added + trail - afterStart) + " @@\n";
  std::size_t line = beforeStart;
  for (std::size_t i = hunk.first; i <= hunk.last; ++i) {
    AddLines(text, ' ', before, line, edits[i].before);
    line = edits[i].before + edits[i].removed;
    AddLines(text, '-', before, edits[i].before, line);
    AddLines(text, '+', after, edits[i].after, edits[i].after + edits[i].added);
  }
  AddLines(text, ' ', before, line, beforeEnd);
}

const char* ColourOf(std::string_view line) {
  switch (line.front()) {
    case '-':
      return "\x1b[31m";
    case '+':
      return "\x1b[32m";
    case '@':
      return "\x1b[36m";
    default:
      return "";
  }
}

}  // namespace

std::string UnifiedDifference(std::string_view before, std::string_view after,
                              const std::string& name) {
  if (before == after) return {};
  const Lines oldLines = LinesOf(before);
  const Lines newLines = LinesOf(after);
  const std::vector<LineEdit> edits = LineEditsBetween(oldLines, newLines).edits;
  const std::string shown = ForTerminal(name);
  std::string text = "--- " + shown + "\n+++ " + shown + "\n";
  for (const Hunk& hunk : HunksOf(edits)) AddHunk(text, hunk, edits, oldLines, newLines);
  return text;
}

std::string InColours(std::string_view difference) {
  std::string text;
  for (const std::string_view line : LinesOf(difference)) {
    const std::string_view shown = line.substr(0, line.find_last_not_of("\r\n") + 1);
    const std::string colour = shown.empty() ? "" : ColourOf(shown);
    text += colour + DocumentForTerminal(shown) + (colour.empty() ? "\n" : "\x1b[0m\n");
  }
  return text;
}

}  // namespace tessel::cli
