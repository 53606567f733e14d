// What a script's reading has to give, said once more in the simplest way: byte by byte and line by
// line over the whole text.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "language/Script.h"
#include "text/Text.h"

namespace tessel::test {

inline bool BreaksLine(char c) { return c == '\r' || c == '\n'; }

/// The comments of a text, in its order.
inline std::vector<language::Comment> NaiveComments(std::string_view text) {
  std::vector<language::Comment> comments;
  for (std::size_t at = 0; at < text.size();) {
    const auto opening = text.substr(at, 2);
    std::size_t end = at + 1;
    if (opening == "//") {
      while (end < text.size() && !BreaksLine(text[end])) ++end;
      comments.push_back({{std::ssize(text.substr(0, at)), std::ssize(text.substr(0, end))}});
    } else if (opening == "/*") {
      while (end < text.size() && text.substr(end, 2) != "*/") ++end;
      const bool terminated = end < text.size();
      end = std::min(end + 2, text.size());
      comments.push_back(
          {{std::ssize(text.substr(0, at)), std::ssize(text.substr(0, end))}, true, terminated});
    }
    at = end;
  }
  return comments;
}

/// The text with blanks in place of all comments; line breaks in them are kept.
inline std::string NaivelyBare(std::string_view text) {
  std::string bare(text);
  for (const auto& comment : NaiveComments(text)) {
    for (Position i = comment.range.begin; i < comment.range.end; ++i) {
      if (!BreaksLine(bare[i])) bare[i] = ' ';
    }
  }
  return bare;
}

/// The lines of a text without their breaks; CR LF is one break.
inline std::vector<language::Range> NaiveLines(std::string_view text) {
  std::vector<language::Range> lines(1);
  for (Position at = 0; at < std::ssize(text); ++at) {
    lines.back().end = at;
    if (!BreaksLine(text[at])) continue;
    if (text.substr(at, 2) == "\r\n") ++at;
    lines.push_back({at + 1, at + 1});
  }
  lines.back().end = std::ssize(text);
  return lines;
}

/// The words of a line without comments; braces are words of their own.
inline std::vector<language::Range> NaiveWords(std::string_view bare, language::Range line) {
  std::vector<language::Range> words;
  bool inWord = false;
  for (Position at = line.begin; at < line.end; ++at) {
    const char c = bare[at];
    const bool brace = c == '{' || c == '}';
    const bool blank = c == ' ' || c == '\t';
    if (!blank && (brace || !inWord)) words.push_back({at, at});
    inWord = !blank && !brace;
    if (!blank) words.back().end = at + 1;
  }
  return words;
}

/// Where statements begin.
inline std::vector<language::Mark> NaiveMarks(std::string_view text) {
  using language::Keyword;
  struct Row {
    const char* word;
    Keyword keyword;
    std::size_t names;  // words that follow it and are no statements
  };
  constexpr std::size_t kAll = 1'000'000;
  static constexpr Row kRows[] = {{"define", Keyword::kDefine, kAll},
                                  {"definequote", Keyword::kDefineQuote, kAll},
                                  {"definevolumename", Keyword::kDefineVolumeName, kAll},
                                  {"defineskillname", Keyword::kDefineSkillName, kAll},
                                  {"definelevelname", Keyword::kDefineLevelName, kAll},
                                  {"definesound", Keyword::kDefineSound, kAll},
                                  {"include", Keyword::kInclude, kAll},
                                  {"music", Keyword::kMusic, 0},
                                  {"gamestartup", Keyword::kGameStartup, 0},
                                  {"action", Keyword::kAction, 1},
                                  {"move", Keyword::kMove, 1},
                                  {"ai", Keyword::kAi, 1},
                                  {"state", Keyword::kState, 1},
                                  {"ends", Keyword::kEnds, 0},
                                  {"actor", Keyword::kActor, 1},
                                  {"useractor", Keyword::kUserActor, 2},
                                  {"enda", Keyword::kEndA, 0},
                                  {"{", Keyword::kOpenBrace, 0},
                                  {"}", Keyword::kCloseBrace, 0}};
  const std::string bare = ToLowerText(NaivelyBare(text));
  std::vector<language::Mark> marks;
  for (const auto& line : NaiveLines(bare)) {
    std::size_t names = 0;
    for (const auto& range : NaiveWords(bare, line)) {
      const std::string_view word = language::Slice(bare, range);
      const bool brace = word == "{" || word == "}";
      if (names > 0 && !(brace && names < 10)) {
        --names;
        continue;
      }
      const auto* const row = std::ranges::find(kRows, word, &Row::word);
      if (row == std::end(kRows)) continue;
      marks.push_back({row->keyword, range.begin});
      names = row->names;
    }
  }
  return marks;
}

/// One change of a text.
struct TextEdit {
  Position offset = 0;
  Position removed = 0;
  std::string inserted;

  void ApplyTo(std::string& text) const {
    text.replace(static_cast<std::size_t>(offset), static_cast<std::size_t>(removed), inserted);
  }
};

}  // namespace tessel::test
