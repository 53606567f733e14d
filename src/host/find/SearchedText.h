// A text that is searched, also as Unicode.
#pragma once

#include <QString>
#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

/// The bytes of a document, and what they show: one unit of UTF-16 for each byte, so that offsets
/// are the same in both. The bytes outlive it and stay as they are.
class SearchedText {
 public:
  explicit SearchedText(std::string_view bytes) : bytes_(bytes) {}

  std::string_view Bytes() const { return bytes_; }
  Position Length() const { return std::ssize(bytes_); }

  /// Translates some more of the text, for a millisecond or two. True when all of it is there.
  bool TranslateSome();
  /// All of it; translates what is missing.
  const QString& Unicode();

 private:
  std::string_view bytes_;
  QString unicode_;
};

}  // namespace tessel
