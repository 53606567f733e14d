#include "lsp/messages/Framing.h"

#include <algorithm>
#include <charconv>

#include "text/Text.h"

namespace tessel::lsp {
namespace {

constexpr std::string_view kEndOfHeader = "\r\n\r\n";
constexpr std::string_view kLength = "Content-Length";

std::string_view Trimmed(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t");
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::size_t LengthOf(std::string_view digits) {
  std::size_t length = 0;
  const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
  if (problem != std::errc() || end != digits.data() + digits.size() || digits.empty()) {
    throw FramingError("The length of a message is no number.");
  }
  if (length > FrameReader::kMostBody) throw FramingError("A message has more than 1 GiB.");
  return length;
}

std::size_t LengthIn(std::string_view header) {
  std::optional<std::size_t> length;
  while (!header.empty()) {
    const std::string_view line = header.substr(0, header.find("\r\n"));
    header.remove_prefix(std::min(line.size() + 2, header.size()));
    const auto colon = line.find(':');
    if (colon == line.npos) throw FramingError("A line of a header has no colon.");
    if (EqualIgnoringAsciiCase(line.substr(0, colon), kLength)) {
      length = LengthOf(Trimmed(line.substr(colon + 1)));
    }
  }
  if (!length) throw FramingError("A header does not say how long its message is.");
  return *length;
}

}  // namespace

bool FrameReader::ReadHeader() {
  const std::string_view rest = std::string_view(buffer_).substr(at_);
  const auto end = rest.substr(0, kMostHeader).find(kEndOfHeader);
  if (end == rest.npos) {
    if (rest.size() >= kMostHeader) throw FramingError("A header does not end.");
    return false;
  }
  body_ = LengthIn(rest.substr(0, end));
  at_ += end + kEndOfHeader.size();
  return true;
}

std::optional<std::string> FrameReader::Next() {
  if (!body_ && !ReadHeader()) return std::nullopt;
  if (buffer_.size() - at_ < *body_) return std::nullopt;
  std::string message = buffer_.substr(at_, *body_);
  at_ += *body_;
  body_.reset();
  if (at_ == buffer_.size() || at_ > buffer_.size() / 2) {
    buffer_.erase(0, at_);
    at_ = 0;
  }
  return message;
}

std::string HeaderOf(std::string_view message) {
  return "Content-Length: " + std::to_string(message.size()) + std::string(kEndOfHeader);
}

std::string Framed(std::string_view message) { return HeaderOf(message).append(message); }

}  // namespace tessel::lsp
