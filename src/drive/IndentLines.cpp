#include "drive/IndentLines.h"

#include <algorithm>
#include <ranges>
#include <string>
#include <vector>

namespace tessel::drive {
namespace {

constexpr Position kTabColumns = 8;

/// Where the lines of a text begin.
std::vector<Position> LineStarts(std::string_view text) {
  std::vector<Position> starts = {0};
  for (Position at = 0; at < std::ssize(text); ++at) {
    const auto rest = text.substr(static_cast<std::size_t>(at));
    const bool breaks = rest.front() == '\n' || (rest.front() == '\r' && !rest.starts_with("\r\n"));
    if (breaks) starts.push_back(at + 1);
  }
  return starts;
}

std::size_t LineOf(const std::vector<Position>& starts, Position at) {
  return static_cast<std::size_t>(std::ranges::upper_bound(starts, at) - starts.begin()) - 1;
}

Position ColumnsOf(std::string_view blanks) {
  Position columns = 0;
  for (const char c : blanks) columns += c == '\t' ? kTabColumns - columns % kTabColumns : 1;
  return columns;
}

void IndentLine(RichTextBox& editor, Position start) {
  const std::string_view rest = editor.Bytes().substr(static_cast<std::size_t>(start));
  if (rest.empty() || rest.front() == '\r' || rest.front() == '\n') return;
  const std::string_view blanks = rest.substr(0, rest.find_first_not_of(" \t"));
  const Position columns = ColumnsOf(blanks) + kTabColumns;
  const std::string indentation =
      std::string(static_cast<std::size_t>(columns / kTabColumns), '\t') +
      std::string(static_cast<std::size_t>(columns % kTabColumns), ' ');
  editor.EditByHand(start, std::ssize(blanks), indentation);
}

}  // namespace

bool SelectsOverLines(const RichTextBox& editor) {
  const auto starts = LineStarts(editor.Bytes());
  return LineOf(starts, editor.SelStart()) != LineOf(starts, editor.SelEnd());
}

void IndentLines(RichTextBox& editor) {
  const auto starts = LineStarts(editor.Bytes());
  const std::size_t top = LineOf(starts, editor.SelStart());
  const std::size_t end = LineOf(starts, editor.SelEnd());
  const bool nothingOnLast = starts[end] == editor.SelEnd();
  {
    const RichTextBox::Gesture gesture(editor, false);
    for (std::size_t line = nothingOnLast ? end : end + 1; line-- > top;) {
      IndentLine(editor, starts[line]);
    }
  }
  const auto indented = LineStarts(editor.Bytes());
  const std::size_t behind = nothingOnLast ? end : end + 1;
  const Position last = behind < indented.size() ? indented[behind] : editor.Length();
  editor.SelectByHand(indented[top], last - indented[top]);
}

}  // namespace tessel::drive
