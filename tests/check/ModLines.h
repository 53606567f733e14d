// A mod as lines that can be changed one by one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Mods.h"

namespace tessel::test {

/// The lines of a text without their CR LF; the last is empty where the text ends with one.
inline std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t end = text.find("\r\n"); end != text.npos; end = text.find("\r\n")) {
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 2);
  }
  lines.emplace_back(text);
  return lines;
}

inline std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) text += (i == 0 ? "" : "\r\n") + lines[i];
  return text;
}

/// Which lines stand in a block comment, wholly or in part.
inline std::vector<bool> CommentedLines(const std::vector<std::string>& lines) {
  std::vector<bool> commented(lines.size());
  bool inside = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto opens = lines[i].find("/*");
    commented[i] = inside || opens != std::string::npos;
    if (!inside && opens != std::string::npos) inside = true;
    if (inside && lines[i].find("*/") != std::string::npos) inside = false;
  }
  return commented;
}

/// The lines outside of block comments that begin with this text, by their index.
inline std::vector<std::size_t> LinesThatBegin(const std::vector<std::string>& lines,
                                               std::string_view begin) {
  const std::vector<bool> commented = CommentedLines(lines);
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!commented[i] && lines[i].starts_with(begin)) found.push_back(i);
  }
  return found;
}

}  // namespace tessel::test
