#include "qt/base/Windows1252Qt.h"

#include <QByteArray>
#include <QMimeData>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "base/RuntimeError.h"
#include "qt/base/QtText.h"
#include "text/Text.h"

namespace tessel {
namespace {

struct Utf8Map {
  std::array<std::string, 256> of;

  Utf8Map() {
    for (int byte = 0; byte < 256; ++byte) {
      const auto codePoint = CodePointOfByte(static_cast<unsigned char>(byte));
      of[static_cast<std::size_t>(byte)] = QString::fromUcs4(&codePoint, 1).toStdString();
    }
  }
};

const Utf8Map& Utf8() {
  static const Utf8Map map;
  return map;
}

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }
/// How many bytes in front are ASCII; eight at a time, for a CON file is little else.
std::size_t AsciiInFrontOf(std::string_view bytes) {
  std::size_t count = 0;
  for (std::uint64_t eight; count + sizeof eight <= bytes.size(); count += sizeof eight) {
    std::memcpy(&eight, bytes.data() + count, sizeof eight);
    if ((eight & 0x8080808080808080U) != 0) break;
  }
  while (count < bytes.size() && IsAscii(bytes[count])) ++count;
  return count;
}

bool ContinuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

std::optional<std::string> BytesOfText(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar c : text) {  // a surrogate has no byte, so units are as good as code points
    const int byte = ByteOfCodePoint(c.unicode());
    if (byte < 0) return std::nullopt;
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

QString RefusalOf(const QString& text) {
  for (const uint codePoint : text.toUcs4()) {
    if (ByteOfCodePoint(codePoint) >= 0) continue;
    const char32_t c = codePoint;
    return QStringLiteral(
               "The character \"%1\" (U+%2) cannot be stored in a CON file. Nothing was inserted.")
        .arg(QString::fromUcs4(&c, 1))
        .arg(codePoint, 4, 16, QLatin1Char('0'));
  }
  return {};
}

std::string Utf8OfBytes(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t ascii = AsciiInFrontOf(bytes);
    utf8.append(bytes, 0, ascii);
    if (ascii == bytes.size()) break;
    utf8 += Utf8().of[static_cast<unsigned char>(bytes[ascii])];
    bytes.remove_prefix(ascii + 1);
  }
  return utf8;
}

std::optional<std::string> BytesOfUtf8(std::string_view utf8) {
  if (std::ranges::all_of(utf8, IsAscii)) return std::string(utf8);
  return BytesOfText(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::ptrdiff_t CharactersOfUtf8(std::string_view utf8) {
  return std::ssize(utf8) - std::ranges::count_if(utf8, ContinuesCharacter);
}

std::unique_ptr<QMimeData> MimeOfBytes(std::string_view bytes) {
  auto data = std::make_unique<QMimeData>();
  data->setText(ShownText(bytes));
  data->setData(kBytesFormat, QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return data;
}

bool HoldsText(const QMimeData& data) { return data.hasFormat(kBytesFormat) || data.hasText(); }

std::string BytesOfMime(const QMimeData& data) {
  if (data.hasFormat(kBytesFormat)) return data.data(kBytesFormat).toStdString();
  const QString text = data.text();
  auto bytes = BytesOfText(text);
  if (!bytes) throw RuntimeError(RefusalOf(text).toStdString());
  return *std::move(bytes);
}

}  // namespace tessel
