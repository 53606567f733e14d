#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tessel {
namespace {

constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct CasePair {
  unsigned char upper, lower;
};
// Letters of Windows-1252 below 0xC0 that have both cases: S and Z with caron, OE, Y with
// diaeresis.
constexpr std::array<CasePair, 4> kOddPairs = {
    {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}}};

constexpr std::array<unsigned char, 256> MakeLower() {
  std::array<unsigned char, 256> table{};
  for (int i = 0; i < 256; ++i) {
    const bool letter = (i >= 'A' && i <= 'Z') || (i >= 0xC0 && i <= 0xDE && i != 0xD7);
    table[i] = static_cast<unsigned char>(letter ? i + 0x20 : i);
  }
  for (const auto& pair : kOddPairs) table[pair.upper] = pair.lower;
  return table;
}

constexpr std::array<unsigned char, 256> kLower = MakeLower();

constexpr std::array<unsigned char, 256> MakeUpper() {
  std::array<unsigned char, 256> table{};
  for (int i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
  for (int i = 0; i < 256; ++i) {
    if (kLower[i] != i) table[kLower[i]] = static_cast<unsigned char>(i);
  }
  return table;
}

constexpr std::array<unsigned char, 256> kUpper = MakeUpper();

std::string MapBytes(std::string_view text, const std::array<unsigned char, 256>& table) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(table[static_cast<unsigned char>(c)]);
  return result;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

char32_t CodePointOfByte(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : byte;
}

int ByteOfCodePoint(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<int>(codePoint);
  const auto it = std::ranges::find(kHighControls, codePoint);
  return it == kHighControls.end() ? -1 : 0x80 + static_cast<int>(it - kHighControls.begin());
}

unsigned char ToLowerByte(unsigned char byte) { return kLower[byte]; }
unsigned char ToUpperByte(unsigned char byte) { return kUpper[byte]; }
std::string ToLowerText(std::string_view text) { return MapBytes(text, kLower); }
std::string ToUpperText(std::string_view text) { return MapBytes(text, kUpper); }
const std::array<unsigned char, 256>& LowerTable() { return kLower; }

std::string AsciiLower(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 0x20);
  }
  return result;
}

bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && AsciiLower(a) == AsciiLower(b);
}

std::string WithCrLf(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool breaks = text[i] == '\r' || text[i] == '\n';
    if (text.substr(i, 2) == "\r\n") ++i;
    breaks ? result += "\r\n" : result += text[i];
  }
  return result;
}

bool IsWordByte(unsigned char byte) {
  return byte >= 0x80 || byte == '_' || IsDigit(static_cast<char>(byte)) ||
         (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

std::string_view NumericPrefix(std::string_view text) {
  const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
  std::size_t end = start;
  if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
  const std::size_t mantissa = end;
  while (end < text.size() && IsDigit(text[end])) ++end;
  std::size_t digits = end - mantissa;
  if (end < text.size() && text[end] == '.') {
    ++end;
    const std::size_t fraction = end;
    while (end < text.size() && IsDigit(text[end])) ++end;
    digits += end - fraction;
  }
  if (digits == 0) return {};
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t first = exponent;
    while (exponent < text.size() && IsDigit(text[exponent])) ++exponent;
    if (exponent > first) end = exponent;
  }
  return text.substr(start, end - start);
}

namespace {

/// What a number is that no double can hold: 0 or an infinity, by the power of ten of its first
/// digit that is not 0.
double BeyondDoubles(std::string_view number) {
  const bool negative = number.starts_with('-');
  const std::size_t end = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), end);
  const std::size_t first = number.find_first_of("123456789");
  double power = static_cast<double>(point) - static_cast<double>(first);
  std::string_view exponent = number.substr(std::min(end + 1, number.size()));
  if (exponent.starts_with('+')) exponent.remove_prefix(1);
  long long written = 0;
  const auto parsed = std::from_chars(exponent.data(), exponent.data() + exponent.size(), written);
  constexpr double kBeyondAnyText = 1e30;
  if (parsed.ec == std::errc::result_out_of_range) {
    power = exponent.starts_with('-') ? -kBeyondAnyText : kBeyondAnyText;
  } else {
    power += static_cast<double>(written);
  }
  if (power < 0) return 0;
  return negative ? -HUGE_VAL : HUGE_VAL;
}

}  // namespace

double NumericValue(std::string_view text) {
  std::string_view number = NumericPrefix(text);
  if (number.starts_with('+')) number.remove_prefix(1);
  double value = 0;
  const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
  return parsed.ec == std::errc::result_out_of_range ? BeyondDoubles(number) : value;
}

}  // namespace tessel
