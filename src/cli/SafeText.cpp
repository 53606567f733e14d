#include "cli/SafeText.h"

#include "platform/Text.h"

namespace tessel::cli {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  }
}

bool IsControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

bool EndsLine(char32_t c) { return c == '\n' || c == '\t'; }

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(out, CodePointOfByte(static_cast<unsigned char>(byte)));
  return out;
}

std::string ForTerminal(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80 && IsControl(byte) && !EndsLine(byte)) c = '?';
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

}  // namespace tessel::cli
