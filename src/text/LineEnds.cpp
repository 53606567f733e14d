#include "text/LineEnds.h"

#include <cstdint>

namespace tessel {
namespace {

struct Break {
  std::size_t at = 0, length = 0;
};

/// The first break from `from` on; at the end of the text when there is none.
Break NextBreak(std::string_view text, std::size_t from) {
  const std::size_t at = text.find_first_of("\r\n", from);
  if (at == text.npos) return {text.size(), 0};
  return {at, text.substr(at, 2) == "\r\n" ? std::size_t{2} : std::size_t{1}};
}

// So many that a byte counts them.
constexpr std::size_t kPiece = 128;

struct Breaks {
  std::size_t crs = 0, lfs = 0, pairs = 0;

  void Add(char before, char c) {
    crs += c == '\r' ? 1U : 0U;
    lfs += c == '\n' ? 1U : 0U;
    pairs += c == '\n' && before == '\r' ? 1U : 0U;
  }
  /// Counts in many bytes at once: no branch, and a number of them that the compiler knows. There
  /// is one in front of the piece.
  void AddPiece(const char* piece) {
    const char* const before = piece - 1;
    std::uint8_t cr = 0, lf = 0, pair = 0;
    for (std::size_t i = 0; i < kPiece; ++i) {
      const auto isLf = static_cast<std::uint8_t>(piece[i] == '\n');
      cr = static_cast<std::uint8_t>(cr + (piece[i] == '\r'));
      lf = static_cast<std::uint8_t>(lf + isLf);
      pair = static_cast<std::uint8_t>(pair + (isLf & (before[i] == '\r')));
    }
    crs += cr;
    lfs += lf;
    pairs += pair;
  }
};

std::string_view BytesOf(LineEnd lineEnd) {
  switch (lineEnd) {
    case LineEnd::kCrLf:
      return "\r\n";
    case LineEnd::kLf:
      return "\n";
    case LineEnd::kCr:
      return "\r";
  }
  return {};
}

}  // namespace

std::optional<LineEnd> LineEnds::Only() const {
  if (Mixed()) return std::nullopt;
  if (crLf != 0) return LineEnd::kCrLf;
  if (lf != 0) return LineEnd::kLf;
  if (cr != 0) return LineEnd::kCr;
  return std::nullopt;
}

LineEnds LineEndsOf(std::string_view text) {
  Breaks breaks;
  if (!text.empty()) breaks.Add('\0', text.front());
  std::size_t at = 1;
  for (; at + kPiece <= text.size(); at += kPiece) breaks.AddPiece(text.data() + at);
  for (; at < text.size(); ++at) breaks.Add(text[at - 1], text[at]);
  return {.crLf = breaks.pairs, .lf = breaks.lfs - breaks.pairs, .cr = breaks.crs - breaks.pairs};
}

const char* NameOf(LineEnd lineEnd) {
  switch (lineEnd) {
    case LineEnd::kCrLf:
      return "CR LF";
    case LineEnd::kLf:
      return "LF";
    case LineEnd::kCr:
      return "CR";
  }
  return "";
}

std::vector<std::string_view> LinesWithBreaks(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    const Break found = NextBreak(text, from);
    const std::size_t end = found.at + found.length;
    lines.push_back(text.substr(from, end - from));
    from = end;
  }
  return lines;
}

std::string_view WithoutBreak(std::string_view line) {
  return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

std::string WithLineEnds(std::string_view text, LineEnd lineEnd) {
  std::string result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (Break found = NextBreak(text, 0); found.length != 0; found = NextBreak(text, from)) {
    result += text.substr(from, found.at - from);
    result += BytesOf(lineEnd);
    from = found.at + found.length;
  }
  return result.append(text.substr(from));
}

}  // namespace tessel
