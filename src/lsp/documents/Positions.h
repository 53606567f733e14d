// Places as the protocol counts them: lines from 0, and units of UTF-16 or UTF-8 in the line.
#pragma once

#include <cstdint>
#include <string>

#include "lsp/documents/Document.h"
#include "lsp/messages/Json.h"

namespace tessel::lsp {

enum class PositionEncoding : std::uint8_t { kUtf16, kUtf8 };

struct Place {
  std::int64_t line = 0;
  std::int64_t character = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): the 0 that its result is compared with
  friend auto operator<=>(const Place&, const Place&) = default;
};

Place PlaceOf(const Document& document, Position offset, PositionEncoding encoding);
/// A place behind the end of its line is that end, one behind the last line the end of the text,
/// and one in the midst of a character its begin.
Position OffsetOf(const Document& document, Place place, PositionEncoding encoding);
/// How many units a range has.
std::int64_t UnitsIn(const Document& document, language::Range range, PositionEncoding encoding);

/// From a Position and a Range of the protocol; ResponseErrors for anything else.
Place PlaceFrom(const Json& position);
language::Range RangeFrom(const Json& range, const Document& document, PositionEncoding encoding);

Json RangeAsJson(const Document& document, language::Range range, PositionEncoding encoding);

/// Adds ranges as JSON to a text, one after the other: quick where they stand near each other.
class RangeText {
 public:
  RangeText(const Document& document, PositionEncoding encoding)
      : document_(document), encoding_(encoding) {}

  void Append(std::string& out, language::Range range);

 private:
  void AppendPlace(std::string& out, Position offset);

  const Document& document_;
  PositionEncoding encoding_;
  std::size_t line_ = 0;  // of the last place
};

}  // namespace tessel::lsp
