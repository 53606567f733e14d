#include "text/Utf8.h"

namespace tessel {
namespace {

struct SequenceKind {
  unsigned char mask, lead;
  std::size_t length;
  char32_t smallest;
};
constexpr SequenceKind kSequences[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

/// The code point of one whole, well-formed sequence, or nothing.
std::optional<char32_t> Decode(std::string_view sequence, const SequenceKind& kind) {
  char32_t c = static_cast<unsigned char>(sequence[0]) & static_cast<unsigned char>(~kind.mask);
  for (const char next : sequence.substr(1)) {
    if ((next & 0xC0) != 0x80) return std::nullopt;
    c = (c << 6) | (next & 0x3F);
  }
  const bool surrogate = c >= 0xD800 && c < 0xE000;
  if (c < kind.smallest || c > 0x10FFFF || surrogate) return std::nullopt;
  return c;
}

}  // namespace

void AppendUtf8(std::string& out, char32_t c) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c >= 0x10000) {
    out += static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  }
}

std::optional<char32_t> TakeCharacter(std::string_view& text) {
  for (const SequenceKind& kind : kSequences) {
    if ((text[0] & kind.mask) != kind.lead || text.size() < kind.length) continue;
    const auto c = Decode(text.substr(0, kind.length), kind);
    if (!c) break;
    text.remove_prefix(kind.length);
    return c;
  }
  text.remove_prefix(1);
  return std::nullopt;
}

}  // namespace tessel
