// Characters in UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessel {

void AppendUtf8(std::string& out, char32_t c);

/// Takes one character off the front of a text that is not empty; of a text that does not begin
/// with one, a byte, and gives nothing then.
std::optional<char32_t> TakeCharacter(std::string_view& text);

}  // namespace tessel
