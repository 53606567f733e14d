#include "text/SafeText.h"

#include "text/Text.h"
#include "text/Utf8.h"

namespace tessel {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

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
