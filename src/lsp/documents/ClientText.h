// What a client calls a text, as the bytes of a CON file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/TextTypes.h"

namespace tessel::lsp {

/// A character that a CON file cannot hold. One byte stands for it in the text.
struct Foreigner {
  Position at = 0;
  char32_t character = 0;

  friend bool operator==(const Foreigner&, const Foreigner&) = default;
};

/// The byte that stands for a foreigner. It never reaches a file or a client.
inline constexpr char kForeignerByte = '\xA4';

struct ClientText {
  std::string bytes;                  ///< Windows-1252
  std::vector<Foreigner> foreigners;  ///< in the order of the text
};

ClientText FromClient(std::string_view utf8);

}  // namespace tessel::lsp
