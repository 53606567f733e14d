#include "colouring/ColourRules.h"

#include <algorithm>

#include "text/TextSearch.h"

namespace tessel {
namespace {

Stretch LineComment(std::string_view text, Position at) {
  Position end = std::min(at + 2, std::ssize(text));
  while (end < std::ssize(text) && text[end] != '\r' && text[end] != '\n') ++end;
  return {end - at, end + 1};
}

// A lone "/" takes the character after it along; at the end of the text there is none.
Stretch CommentAt(std::string_view text, Position at) {
  switch (at + 1 < std::ssize(text) ? text[at + 1] : '/') {
    case '*':
      return RestOfBlockComment(text, at);
    case '/':
      return LineComment(text, at);
    default:
      return {2, at + 1};
  }
}

// Holds only where the text ends one blank after the word; the blank is coloured, too.
Stretch MusicAt(std::string_view text, Position at, Position length) {
  const bool holds = text.substr(at + length) == " ";
  return {holds ? length + 1 : 0, at + 1};
}

}  // namespace

// The scan goes on at the closing slash.
Stretch RestOfBlockComment(std::string_view text, Position from) {
  static const TextPattern end("*/", kFindWholeWord);
  const Position close = end.FindIn(text, from, std::ssize(text));
  if (close == kNotFound) return {std::ssize(text) - from, kNotFound};
  return {close + 2 - from, close + 1};
}

Stretch StretchOf(const ColorWord& entry, std::string_view text, Position at) {
  switch (entry.rule) {
    case ColourRule::kComment:
      return CommentAt(text, at);
    case ColourRule::kMusic:
      return MusicAt(text, at, std::ssize(entry.word));
    case ColourRule::kIfBlack:
      break;
  }
  return {std::ssize(entry.word), at + 1};
}

}  // namespace tessel
