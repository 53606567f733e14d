// What the fuzz targets share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tessel::fuzz {

/// A property that must hold whatever the input is: the fuzzer keeps an input that breaks it.
inline void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "Broken: %s\n", property);
  std::abort();
}

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Cuts an input into numbers and texts; an input that is used up gives zeros and empty texts.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(AsText(data, size)) {}

  bool Empty() const { return rest_.empty(); }
  unsigned Byte() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }
  /// In [0, most], for `most` below 65,536.
  std::size_t Number(std::size_t most) {
    const std::size_t value = most < 256 ? Byte() : Byte() * 256 + Byte();
    return value % (most + 1);
  }
  /// So many bytes, or what is left.
  std::string Text(std::size_t length) {
    const std::string text(rest_.substr(0, length));
    rest_.remove_prefix(text.size());
    return text;
  }
  /// What stands before the next line feed, which goes too.
  std::string Line() {
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string line = Text(end);
    Byte();
    return line;
  }
  std::string Rest() { return Text(rest_.size()); }

 private:
  std::string_view rest_;
};

}  // namespace tessel::fuzz
