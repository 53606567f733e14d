#include "JsonText.h"

#include <array>
#include <cstdio>

namespace scenario {
namespace {

bool CannotBeSeen(unsigned code) { return (code >= 0x7F && code <= 0xA0) || code == 0xAD; }

std::string Escaped(unsigned code) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "\\u%04x", code);
  return text.data();
}

}  // namespace

std::string TextOf(const Json& value) {
  const std::string utf8 = value.dump();
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    const bool two = byte == 0xC2 && i + 1 < utf8.size();
    const unsigned code = two ? static_cast<unsigned char>(utf8[i + 1]) : byte;
    if ((two || byte == 0x7F) && CannotBeSeen(code)) {
      text += Escaped(code);
      i += two ? 1 : 0;
    } else {
      text += utf8[i];
    }
  }
  return text;
}

bool SameValue(const Json& one, const Json& other) {
  return nlohmann::json(one) == nlohmann::json(other);
}

}  // namespace scenario
