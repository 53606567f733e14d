// Lines so long that Scintilla needs help with them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "text/TextTypes.h"

namespace tessel {

/// From this length on, in bytes, a line is parted for Scintilla.
inline constexpr Position kLongLine = 1'000;

/// Whether some line has that many bytes, which are more than none, without its break. Looks at one
/// byte of many where all lines are short.
bool HasLongLine(std::string_view text, Position length);

/// The length of the longest line in bytes, without its break. CR, LF and CR LF each break a line.
Position LongestLine(std::string_view text);

/// Scintilla measures the whole of a line after each key, but remembers the widths of pieces of one
/// style that have less than 30 bytes. So the words of a long line take two styles of the same
/// looks by turns: `twins` has the second one of each style. `styles` has one style for each byte
/// of `text`.
void PartLongLines(std::string_view text, const std::array<char, 256>& twins, std::string& styles);

/// Gives what lies behind the first `shown` bytes of each line that is longer the style `hidden`.
/// `before` bytes of the first line stand before `text`.
void HideLongTails(std::string_view text, Position before, Position shown, char hidden,
                   std::string& styles);

}  // namespace tessel
