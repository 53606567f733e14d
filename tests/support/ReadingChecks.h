// Whether a script's reading is what the naive one is: for property tests and the fuzzer.
#pragma once

#include <algorithm>
#include <string>

#include "support/NaiveReading.h"

namespace tessel::test {

inline bool SameComment(const language::Comment& a, const language::Comment& b) {
  return a.range == b.range && a.block == b.block && a.terminated == b.terminated;
}

inline std::string CommentDifference(const language::Script& script) {
  const auto comments = NaiveComments(script.Text());
  auto next = comments.begin();
  for (Position at = 0; at <= script.Length(); ++at) {
    while (next != comments.end() && next->range.end <= at) ++next;
    const bool expected = next != comments.end() && next->range.Contains(at);
    const auto found = script.CommentAt(at);
    if (found.has_value() != expected || (found && !SameComment(*found, *next))) {
      return "the comment at " + std::to_string(at);
    }
  }
  const bool open = !comments.empty() && !comments.back().terminated;
  const auto unterminated = script.UnterminatedComment();
  if (unterminated.has_value() != open || (open && !SameComment(*unterminated, comments.back()))) {
    return "the comment that is not closed";
  }
  return {};
}

inline std::string LineDifference(const language::Script& script) {
  const auto lines = NaiveLines(script.Text());
  if (script.LineCount() != std::ssize(lines)) return "the number of lines";
  for (Position i = 0; i < std::ssize(lines); ++i) {
    if (script.Line(i + 1) != lines[i]) return "line " + std::to_string(i + 1);
    const Position behind = i + 1 < std::ssize(lines) ? lines[i + 1].begin : script.Length() + 1;
    for (Position at = lines[i].begin; at < behind; ++at) {
      if (script.PlaceOf(at) != language::LineColumn{i + 1, at - lines[i].begin + 1}) {
        return "the place of " + std::to_string(at);
      }
    }
  }
  return {};
}

inline std::string MarkDifference(const language::Script& script) {
  const auto marks = NaiveMarks(script.Text());
  const auto found = script.Marks();
  if (!std::equal(found.begin(), found.end(), marks.begin(), marks.end())) return "the statements";
  auto next = marks.begin();
  for (Position at = 0; at <= script.Length(); ++at) {
    const auto from = script.MarksFrom(at);
    const bool none = from.begin() == from.end();
    if (none != (next == marks.end()) || (!none && *from.begin() != *next)) {
      return "the first statement from " + std::to_string(at);
    }
    if (next != marks.end() && next->begin == at) ++next;
    const auto last = script.LastMarkUpTo(at);
    if (last.has_value() != (next != marks.begin()) || (last && *last != *(next - 1))) {
      return "the last statement up to " + std::to_string(at);
    }
  }
  return {};
}

/// What the reading has got wrong, or nothing.
inline std::string ReadingDifference(const language::Script& script) {
  for (const auto& difference : {CommentDifference, LineDifference, MarkDifference}) {
    const std::string found = difference(script);
    if (!found.empty()) return found;
  }
  return {};
}

}  // namespace tessel::test
