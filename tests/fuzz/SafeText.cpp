// Text of files on a terminal or a page. An input is such a text.
#include "text/SafeText.h"

#include <string>

#include "fuzz/Fuzzing.h"

namespace tessel::fuzz {
namespace {

/// The length of the well-formed UTF-8 sequence at the start, 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
  const auto at = [&](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const auto tail = [&](std::size_t i) { return at(i) >= 0x80 && at(i) <= 0xBF; };
  const unsigned a = at(0);
  const unsigned b = at(1);
  if (a < 0x80) return 1;
  if (a >= 0xC2 && a <= 0xDF) return tail(1) ? 2 : 0;
  if (a >= 0xE0 && a <= 0xEF) {
    if ((a == 0xE0 && b < 0xA0) || (a == 0xED && b > 0x9F)) return 0;
    return tail(1) && tail(2) ? 3 : 0;
  }
  if (a >= 0xF0 && a <= 0xF4) {
    if ((a == 0xF0 && b < 0x90) || (a == 0xF4 && b > 0x8F)) return 0;
    return tail(1) && tail(2) && tail(3) ? 4 : 0;
  }
  return 0;
}

/// Well-formed, and of the control characters only those that are allowed.
void RequireHarmless(std::string_view text, std::string_view allowed) {
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    Require(length > 0, "the output is UTF-8");
    const auto first = static_cast<unsigned char>(text[0]);
    const bool c0 = first < 0x20 || first == 0x7F;
    const bool c1 = first == 0xC2 && static_cast<unsigned char>(text[1]) < 0xA0;
    Require(!c1 && (!c0 || allowed.find(text[0]) != allowed.npos), "no control characters");
    text.remove_prefix(length);
  }
}

std::size_t Characters(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(SequenceLength(text));
  return count;
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessel;
  using namespace tessel::fuzz;
  const std::string text(AsText(data, size));

  RequireHarmless(ForTerminal(text), "");
  RequireHarmless(DocumentForTerminal(text), "\t\n");
  const std::string html = ForHtml(text);
  RequireHarmless(html, "\t\n\r");
  Require(html.find_first_of("<>\"'") == html.npos, "no markup gets through");
  Require(Characters(DocumentForTerminal(text)) <= text.size(), "nothing is added to a document");

  const std::string utf8 = ToUtf8(text);
  Require(Characters(utf8) == text.size(), "a byte is a character");
  Require(FromTerminal(utf8) == text, "what is shown can be typed");
  FromTerminal(text);
  return 0;
}
