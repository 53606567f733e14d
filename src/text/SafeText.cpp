#include "text/SafeText.h"

#include "text/Text.h"

namespace tessel {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

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

/// Takes one character off the front of a text; of a text that does not begin with one, a byte.
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

bool IsControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

/// The invisible marks that turn the reading direction round for what follows them.
bool TurnsDirection(char32_t c) {
  return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

bool IsObeyed(char32_t c) { return IsControl(c) || TurnsDirection(c); }

bool EndsLine(char32_t c) { return c == '\n' || c == '\t'; }

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(out, CodePointOfByte(static_cast<unsigned char>(byte)));
  return out;
}

std::string ForTerminal(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const auto c = TakeCharacter(text);
    if (c && !IsObeyed(*c)) {
      AppendUtf8(out, *c);
    } else {
      out += '?';
    }
  }
  return out;
}

std::optional<std::string> FromTerminal(std::string_view text) {
  std::string out;
  for (std::string_view rest = text; !rest.empty();) {
    const auto c = TakeCharacter(rest);
    if (!c) return std::string(text);
    const int byte = ByteOfCodePoint(*c);
    if (byte < 0) return std::nullopt;
    out += static_cast<char>(byte);
  }
  return out;
}

std::string DocumentForTerminal(std::string_view bytes) {
  std::string out;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char32_t c = CodePointOfByte(static_cast<unsigned char>(bytes[i]));
    if (c == '\r') {
      if (i + 1 == bytes.size() || bytes[i + 1] != '\n') out += '\n';
    } else {
      AppendUtf8(out, IsControl(c) && !EndsLine(c) ? U'?' : c);
    }
  }
  return out;
}

std::string JsonForTerminal(std::string_view json) {
  std::string out;
  while (!json.empty()) {
    const char32_t c = TakeCharacter(json).value_or(kReplacement);
    if (c >= 0x7F && IsObeyed(c)) {
      constexpr std::string_view kDigits = "0123456789abcdef";
      out += "\\u";
      for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[(c >> shift) & 0xF];
    } else {
      AppendUtf8(out, c);
    }
  }
  return out;
}

std::string ForHtml(std::string_view bytes) {
  std::string out;
  for (const char byte : bytes) {
    const char32_t c = CodePointOfByte(static_cast<unsigned char>(byte));
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&#39;";
        break;
      default:
        AppendUtf8(out, IsControl(c) && !EndsLine(c) && c != '\r' ? kReplacement : c);
    }
  }
  return out;
}

}  // namespace tessel
