#include "lsp/documents/Positions.h"

#include <algorithm>
#include <array>

#include "text/Text.h"

namespace tessel::lsp {
namespace {

constexpr std::int64_t UnitsOf(char32_t character, PositionEncoding encoding) {
  if (encoding == PositionEncoding::kUtf16) return character > 0xFFFF ? 2 : 1;
  if (character < 0x80) return 1;
  if (character < 0x800) return 2;
  return character < 0x10000 ? 3 : 4;
}

std::int64_t UnitsOfByte(char byte, PositionEncoding encoding) {
  if (encoding == PositionEncoding::kUtf16) return 1;
  return UnitsOf(CodePointOfByte(static_cast<unsigned char>(byte)), encoding);
}

std::int64_t UnitsOfBytes(std::string_view bytes, PositionEncoding encoding) {
  if (encoding == PositionEncoding::kUtf16) return std::ssize(bytes);
  std::int64_t units = 0;
  for (const char byte : bytes) units += UnitsOfByte(byte, encoding);
  return units;
}

/// The byte that the unit belongs to, counted from the begin of the range.
Position ByteOfUnit(const Document& document, language::Range range, std::int64_t unit,
                    PositionEncoding encoding) {
  const auto foreigners = document.ForeignersIn(range);
  if (encoding == PositionEncoding::kUtf16 && foreigners.empty()) {
    return std::min(range.begin + unit, range.end);
  }
  auto next = foreigners.begin();
  for (Position at = range.begin; at < range.end; ++at) {
    const bool isForeigner = next != foreigners.end() && next->at == at;
    unit -= isForeigner ? UnitsOf((next++)->character, encoding)
                        : UnitsOfByte(document.Bytes()[static_cast<std::size_t>(at)], encoding);
    if (unit < 0) return at;
  }
  return range.end;
}

}  // namespace

std::int64_t UnitsIn(const Document& document, language::Range range, PositionEncoding encoding) {
  std::int64_t units = UnitsOfBytes(language::Slice(document.Bytes(), range), encoding);
  for (const Foreigner& foreigner : document.ForeignersIn(range)) {
    units += UnitsOf(foreigner.character, encoding) - UnitsOfByte(kForeignerByte, encoding);
  }
  return units;
}

Place PlaceOf(const Document& document, Position offset, PositionEncoding encoding) {
  const std::size_t line = document.Lines().LineOf(offset);
  return {static_cast<std::int64_t>(line),
          UnitsIn(document, {document.Lines().BeginOf(line), offset}, encoding)};
}

Position OffsetOf(const Document& document, Place place, PositionEncoding encoding) {
  const LineIndex& lines = document.Lines();
  if (place.line >= static_cast<std::int64_t>(lines.Count())) return std::ssize(document.Bytes());
  const language::Range line = lines.LineIn(document.Bytes(), static_cast<std::size_t>(place.line));
  const std::int64_t most = line.Length() * 4;  // no character has more units
  return ByteOfUnit(document, line, std::min(place.character, most), encoding);
}

Place PlaceFrom(const Json& position) {
  const Place place = {NumberMember(position, "line"), NumberMember(position, "character")};
  if (place.line < 0 || place.character < 0) {
    throw ResponseError(ErrorCode::kInvalidParams, "A position is negative.");
  }
  return place;
}

language::Range RangeFrom(const Json& range, const Document& document, PositionEncoding encoding) {
  const Place begin = PlaceFrom(Member(range, "start"));
  const Place end = PlaceFrom(Member(range, "end"));
  if (end < begin) throw ResponseError(ErrorCode::kInvalidParams, "A range ends before it begins.");
  return {OffsetOf(document, begin, encoding), OffsetOf(document, end, encoding)};
}

Json RangeAsJson(const Document& document, language::Range range, PositionEncoding encoding) {
  const auto asJson = [](Place place) {
    return Json{{"line", place.line}, {"character", place.character}};
  };
  return {{"start", asJson(PlaceOf(document, range.begin, encoding))},
          {"end", asJson(PlaceOf(document, range.end, encoding))}};
}

void RangeText::AppendPlace(std::string& out, Position offset) {
  line_ = document_.Lines().LineNear(line_, offset);
  const language::Range before = {document_.Lines().BeginOf(line_), offset};
  out += "{\"line\":";
  AppendJson(out, static_cast<std::int64_t>(line_));
  out += ",\"character\":";
  AppendJson(out, UnitsIn(document_, before, encoding_));
  out += '}';
}

void RangeText::Append(std::string& out, language::Range range) {
  out += "{\"start\":";
  AppendPlace(out, range.begin);
  out += ",\"end\":";
  AppendPlace(out, range.end);
  out += '}';
}

}  // namespace tessel::lsp
