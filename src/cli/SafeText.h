// Text from files, made harmless for where it is shown.
#pragma once

#include <string>
#include <string_view>

namespace tessel::cli {

/// UTF-8 of single-byte text, one character for each byte (see CodePointOfByte).
std::string ToUtf8(std::string_view bytes);

/// Control characters (escape sequences among them) become "?"; tabs and line feeds stay. Bytes
/// from 0x80 up are passed on: file names and messages are in the terminal's own encoding.
std::string ForTerminal(std::string_view text);

/// Single-byte text as UTF-8 for a terminal: line ends become LF, other control characters "?".
std::string DocumentForTerminal(std::string_view bytes);

/// Single-byte text as UTF-8 with "&", "<", ">" and quotes written as HTML entities; control
/// characters other than tab and line ends become U+FFFD.
std::string ForHtml(std::string_view bytes);

}  // namespace tessel::cli
