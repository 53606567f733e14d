// UTF-8, as the editor's widget holds its text.
#pragma once

namespace tessel {

/// Is this byte the first one of a character?
inline bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

}  // namespace tessel
