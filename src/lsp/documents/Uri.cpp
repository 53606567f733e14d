#include "lsp/documents/Uri.h"

#include <charconv>

#include "text/Text.h"

namespace tessel::lsp {
namespace {

constexpr std::string_view kScheme = "file:";

bool IsPlain(char c) {
  constexpr std::string_view kPlain = "-._~/";
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         kPlain.find(c) != kPlain.npos;
}

/// Nothing where a "%" does not begin a byte.
std::optional<std::string> Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      plain += text[i];
      continue;
    }
    const std::string_view digits = text.substr(i + 1, 2);
    unsigned byte = 0;
    const auto [end, problem] =
        std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    if (digits.size() < 2 || problem != std::errc() || end != digits.data() + 2) return {};
    plain += static_cast<char>(byte);
    i += 2;
  }
  return plain;
}

}  // namespace

std::optional<std::string> PathOfUri(std::string_view uri) {
  if (!EqualIgnoringAsciiCase(uri.substr(0, kScheme.size()), kScheme)) return std::nullopt;
  std::string_view rest = uri.substr(kScheme.size());
  if (rest.starts_with("//")) {
    rest.remove_prefix(2);
    const std::string_view host = rest.substr(0, rest.find('/'));
    if (!host.empty() && !EqualIgnoringAsciiCase(host, "localhost")) return std::nullopt;
    rest.remove_prefix(host.size());
  }
  rest = rest.substr(0, rest.find_first_of("?#"));
  auto path = Unescaped(rest);
  if (!path || !path->starts_with('/') || path->find('\0') != path->npos) return std::nullopt;
  return path;
}

std::string UriOfPath(std::string_view path) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string uri = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlain(c)) {
      uri += c;
    } else {
      uri += '%';
      uri += kHex[byte >> 4U];
      uri += kHex[byte & 0xFU];
    }
  }
  return uri;
}

std::string KeyOfUri(std::string_view uri) { return PathOfUri(uri).value_or(std::string(uri)); }

}  // namespace tessel::lsp
