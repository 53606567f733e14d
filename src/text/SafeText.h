// Text from files, made harmless for where it is shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessel {

/// UTF-8 of single-byte text, one character for each byte (see CodePointOfByte).
std::string ToUtf8(std::string_view bytes);

/// Names and messages as one line of valid UTF-8: control characters (line ends and escape
/// sequences among them), marks that turn the reading direction round, and bytes that are no UTF-8
/// become "?".
std::string ForTerminal(std::string_view text);

/// What a person typed (UTF-8) as single-byte text: the inverse of ToUtf8. Text that is no UTF-8 is
/// taken byte for byte. Nothing, when a character has no byte.
std::optional<std::string> FromTerminal(std::string_view text);

/// Single-byte text as UTF-8 for a terminal: line ends become LF, other control characters "?".
std::string DocumentForTerminal(std::string_view bytes);

/// A JSON text with escapes for what JSON allows as it is and terminals obey: DEL, the second set
/// of control characters, and marks that turn the reading direction round.
std::string JsonForTerminal(std::string_view json);

/// Single-byte text as UTF-8 with "&", "<", ">" and quotes written as HTML entities; control
/// characters other than tab and line ends become U+FFFD.
std::string ForHtml(std::string_view bytes);

}  // namespace tessel
