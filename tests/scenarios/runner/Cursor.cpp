#include "Cursor.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace scenario {
namespace {

bool IsWordCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

std::size_t WordLength(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::find_if_not(text, IsWordCharacter) - text.begin());
}

/// The length of the text in quotes that `text` begins with.
std::size_t QuotedLength(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      return i + 1;
    }
  }
  return text.size();
}

/// The length of the list or object that `text` begins with.
std::size_t BracketedLength(std::string_view text) {
  int depth = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') i += QuotedLength(text.substr(i)) - 1;
    if (text[i] == '[' || text[i] == '{') ++depth;
    if ((text[i] == ']' || text[i] == '}') && --depth == 0) return i + 1;
  }
  return text.size();
}

std::size_t ValueLength(std::string_view text) {
  if (text.starts_with('"')) return QuotedLength(text);
  if (text.starts_with('[') || text.starts_with('{')) return BracketedLength(text);
  return std::min(text.find_first_of(" ,"), text.size());
}

}  // namespace

bool Cursor::Skip(std::string_view words) {
  if (!rest_.starts_with(words)) return false;
  const bool goesOn = rest_.size() > words.size() && !words.empty() &&
                      IsWordCharacter(words.back()) && IsWordCharacter(rest_[words.size()]);
  if (goesOn) return false;
  Advance(words.size());
  return true;
}

std::optional<std::string> Cursor::Word() {
  const std::string word(rest_.substr(0, WordLength(rest_)));
  if (std::ranges::none_of(word, IsLetter)) return std::nullopt;
  Advance(word.size());
  return word;
}

std::optional<int> Cursor::Number() {
  int number = 0;
  const auto end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number).ptr;
  if (end == rest_.data()) return std::nullopt;
  Advance(static_cast<std::size_t>(end - rest_.data()));
  return number;
}

std::optional<Json> Cursor::Value() {
  const std::string_view text = rest_.substr(0, ValueLength(rest_));
  Json value = Json::parse(text, nullptr, false);
  if (text.empty() || value.is_discarded()) return std::nullopt;
  Advance(text.size());
  return value;
}

std::optional<Json> Cursor::Value(Json::value_t type) {
  const Cursor before = *this;
  auto value = Value();
  if (value && value->type() == type) return value;
  *this = before;
  return std::nullopt;
}

void Cursor::SkipBlanks() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(" ,"), rest_.size()));
}

void Cursor::Advance(std::size_t length) {
  rest_.remove_prefix(length);
  SkipBlanks();
}

}  // namespace scenario
