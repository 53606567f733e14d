#include "lsp/documents/ClientText.h"

#include "text/Text.h"
#include "text/Utf8.h"

namespace tessel::lsp {
namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

}  // namespace

ClientText FromClient(std::string_view utf8) {
  ClientText text;
  text.bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t character = TakeCharacter(utf8).value_or(kReplacementCharacter);
    const int byte = ByteOfCodePoint(character);
    if (byte < 0) text.foreigners.push_back({std::ssize(text.bytes), character});
    text.bytes += byte < 0 ? kForeignerByte : static_cast<char>(byte);
  }
  return text;
}

}  // namespace tessel::lsp
