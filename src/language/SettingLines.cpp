#include "language/SettingLines.h"

#include <algorithm>

#include "text/Text.h"

namespace tessel {
namespace {

constexpr std::string_view kBreaks = "\r\n";
constexpr std::string_view kBlanks = " \t";

std::string_view PieceOf(std::string_view text, TextRange range) {
  return text.substr(static_cast<std::size_t>(range.start), static_cast<std::size_t>(range.length));
}

/// Takes the first word of a line away, with the blanks around it.
std::string_view TakeWord(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
  line.remove_prefix(word.size());
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return word;
}

/// What stands behind the first words of the piece's line, as far as a comment; nothing when the
/// first one is another.
std::string_view BehindWords(std::string_view line, std::string_view first, int words) {
  line = line.substr(0, std::min(line.find("//"), line.find("/*")));
  if (!EqualIgnoringAsciiCase(TakeWord(line), first)) return {};
  for (int word = 1; word < words; ++word) TakeWord(line);
  return line;
}

bool LiesBehindWords(std::string_view text, TextRange piece, std::string_view first, int words) {
  const std::string_view line = PieceOf(text, LineAt(text, piece.start));
  const std::string_view rest = BehindWords(line, first, words);
  if (rest.empty() || piece.length == 0) return false;
  const Position start = rest.data() - text.data();
  return piece.start >= start && piece.End() <= start + std::ssize(rest);
}

}  // namespace

TextRange LineAt(std::string_view text, Position place) {
  const auto at = static_cast<std::size_t>(place);
  const auto before = at == 0 ? text.npos : text.find_last_of(kBreaks, at - 1);
  const auto start = before == text.npos ? 0 : before + 1;
  const auto end = std::min(text.find_first_of(kBreaks, at), text.size());
  return {static_cast<Position>(start), static_cast<Position>(end - start)};
}

int LineNumberAt(std::string_view text, Position place) {
  const std::string_view before = text.substr(0, static_cast<std::size_t>(place));
  int line = 1;
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool firstOfTwo = before[i] == '\r' && text.substr(i + 1).starts_with('\n');
    if ((before[i] == '\r' && !firstOfTwo) || before[i] == '\n') ++line;
  }
  return line;
}

bool LiesInDefineValue(std::string_view text, TextRange piece) {
  return LiesBehindWords(text, piece, "define", 2);
}

bool LiesInLevel(std::string_view text, TextRange piece) {
  return LiesBehindWords(text, piece, "definelevelname", 1);
}

}  // namespace tessel
