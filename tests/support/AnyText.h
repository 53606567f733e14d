// Texts of any bytes at all, the same ones in every run.
#pragma once

#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace tessel::test {

/// How many of them a test tries: $TESSEL_TEXTS, or some thousand.
inline unsigned TextsToTry() {
  const char* const wanted = std::getenv("TESSEL_TEXTS");
  return wanted == nullptr ? 2000 : static_cast<unsigned>(std::atol(wanted));
}

/// The text of that number: up to some hundred bytes, each of the 256 as often as the others, with
/// pieces in between that mean something to the control.
inline std::string AnyText(unsigned number) {
  using std::string_view_literals::operator""sv;
  static constexpr std::array kPieces = {
      "\0"sv, "\r"sv,      "\n"sv,     "\r\n"sv, "/*"sv,   "*/"sv,   "//"sv,   "\""sv,
      "{"sv,  "define "sv, "state "sv, "1.5"sv,  "\x80"sv, "\xFF"sv, "\x1A"sv, "\xEF\xBB\xBF"sv};
  std::mt19937 random(number);
  const auto below = [&](unsigned limit) { return random() % limit; };
  std::string text;
  for (unsigned pieces = below(120); pieces > 0; --pieces) {
    if (below(3) == 0) {
      text += kPieces[below(kPieces.size())];
    } else {
      for (unsigned bytes = below(8); bytes > 0; --bytes) text += static_cast<char>(below(256));
    }
  }
  return text;
}

}  // namespace tessel::test
