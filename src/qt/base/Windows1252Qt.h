// From Qt's Unicode back to single-byte text without loss, and text in UTF-8 and as mime data.
// See QtText.h for showing bytes.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QMimeData;

namespace tessel {

/// The bytes that show a text, or nothing when one of its characters has no byte.
std::optional<std::string> BytesOfText(const QString& text);
/// A sentence for the user that names the first character of `text` that has no byte.
QString RefusalOf(const QString& text);

/// What a text of bytes shows, in UTF-8. The number of code points is the number of bytes.
std::string Utf8OfBytes(std::string_view bytes);
/// Nothing when one of the characters has no byte.
std::optional<std::string> BytesOfUtf8(std::string_view utf8);
/// How many characters a piece of well-formed UTF-8 holds.
std::ptrdiff_t CharactersOfUtf8(std::string_view utf8);

/// Text for the clipboard and for drag and drop: as Unicode for other programs, and byte for byte
/// (a NUL among them) for editors of this kind.
std::unique_ptr<QMimeData> MimeOfBytes(std::string_view bytes);
bool HoldsText(const QMimeData& data);
/// The format of the bytes.
inline constexpr const char* kBytesFormat = "application/x-tessel-text";
/// The bytes of such text. A text with a character that has no byte is a RuntimeError (the sentence
/// of RefusalOf): half a text would be a silent loss.
std::string BytesOfMime(const QMimeData& data);

}  // namespace tessel
