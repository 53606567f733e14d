// Single-byte text: Windows-1252 for what people see, ASCII for keys.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessel {

/// The Unicode code point that a byte shows, one to one: Windows-1252 with its five unassigned
/// bytes standing for the C1 control characters of the same number. Source: the "windows-1252"
/// index of the WHATWG Encoding Standard.
char32_t CodePointOfByte(unsigned char byte);
/// The byte that shows a code point, or −1 when there is none.
int ByteOfCodePoint(char32_t codePoint);

/// Case of the letters of Windows-1252 (the ASCII ones among them).
unsigned char ToLowerByte(unsigned char byte);
unsigned char ToUpperByte(unsigned char byte);
std::string ToLowerText(std::string_view text);
std::string ToUpperText(std::string_view text);

/// Case of ASCII letters alone: keys, file names, captions.
std::string AsciiLower(std::string_view text);
bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b);

/// The text with each of its line breaks (CR LF, LF, CR) written as CR LF.
std::string WithCrLf(std::string_view text);

/// A table from each byte to its lower case.
const std::array<unsigned char, 256>& LowerTable();

/// ASCII letters, digits, the underscore, and every byte from 0x80 up.
bool IsWordByte(unsigned char byte);

/// The longest prefix, after leading blanks, that is a decimal number (sign, digits, point,
/// exponent), or nothing.
std::string_view NumericPrefix(std::string_view text);
/// The value of that prefix; 0 without one.
double NumericValue(std::string_view text);

}  // namespace tessel
