// Reads the data files that ship with the host, for the tests of their contents.
#pragma once

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessel::test {

inline constexpr std::array<const char*, 6> kTemplates = {
    "zmuser.dat", "zmuserp.dat", "zmdefs.dat", "zmdefsp.dat", "zmgame.dat", "zmgamep.dat"};

inline std::string ReadDataFile(const std::string& name) {
  std::ifstream file(std::string(TESSEL_TEST_DATA_DIR "/") + name, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + name);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The text cut at `end`; what follows the last `end` counts only when it is not empty.
inline std::vector<std::string> Lines(std::string_view text, std::string_view end) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto at = text.find(end);
    lines.emplace_back(text.substr(0, at));
    text = at == std::string_view::npos ? std::string_view{} : text.substr(at + end.size());
  }
  return lines;
}

/// The text with every comment turned into a blank.
inline std::string WithoutComments(std::string_view text) {
  std::string bare;
  for (std::size_t i = 0; i < text.size();) {
    if (text.substr(i, 2) == "/*") {
      i = text.find("*/", i);
      i = i == std::string_view::npos ? text.size() : i + 2;
      bare += ' ';
    } else if (text.substr(i, 2) == "//") {
      i = std::min(text.find('\r', i), text.size());
    } else {
      bare += text[i++];
    }
  }
  return bare;
}

/// The blank-delimited tokens of a text.
inline std::vector<std::string> Tokens(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), std::istream_iterator<std::string>()};
}

}  // namespace tessel::test
