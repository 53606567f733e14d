// Messages in a stream of bytes: a header that says how long each is, and the message.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tessel::lsp {

/// The stream cannot be cut into messages any more: what() says why.
class FramingError : public std::runtime_error {
 public:
  explicit FramingError(const std::string& sentence) : std::runtime_error(sentence) {}
};

/// Cuts what comes in into messages, however it is sliced.
class FrameReader {
 public:
  static constexpr std::size_t kMostHeader = 8192;
  static constexpr std::size_t kMostBody = std::size_t{1} << 30U;

  void Feed(std::string_view bytes) { buffer_.append(bytes); }
  /// The next whole message, without its header; nothing until all of it is there. A header
  /// without a length, or larger than the limits, is a FramingError, and so is every call then.
  std::optional<std::string> Next();
  /// Part of a message is there.
  bool IsInMidst() const { return at_ < buffer_.size(); }

 private:
  bool ReadHeader();

  std::string buffer_;
  std::size_t at_ = 0;               // what stands before has been taken
  std::optional<std::size_t> body_;  // the length of the message whose header has been read
};

/// What stands in front of a message.
std::string HeaderOf(std::string_view message);
/// A message with its header.
std::string Framed(std::string_view message);

}  // namespace tessel::lsp
