#include <algorithm>

#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

constexpr Position kPiece = 64;

bool IsControlByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte < 0x20 && c != '\t' && c != '\r' && c != '\n') || byte == 0x7F;
}

/// Looks at many bytes at once: no branch, and a number of them that the compiler knows.
bool MayHoldControlByte(const char* piece) {
  unsigned char any = 0;
  for (Position at = 0; at < kPiece; ++at) {
    const auto byte = static_cast<unsigned char>(piece[at]);
    any |= static_cast<unsigned char>(
        ((byte < 0x20) & (byte != '\t') & (byte != '\r') & (byte != '\n')) | (byte == 0x7F));
  }
  return any != 0;
}

void AddControlBytes(std::string_view text, language::Range piece, std::size_t file,
                     Findings& findings) {
  for (Position at = piece.begin; at < piece.end; ++at) {
    if (!IsControlByte(text[static_cast<std::size_t>(at)])) continue;
    findings.push_back(
        {.file = file,
         .range = {at, at + 1},
         .text = "a control character (" +
                 std::to_string(static_cast<unsigned char>(text[static_cast<std::size_t>(at)])) +
                 ") stands here"});
  }
}

void FindControlCharacters(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const std::string_view text = mod.Files()[i].Text();
    for (Position at = 0; at < std::ssize(text); at += kPiece) {
      const language::Range piece = {at, std::min(at + kPiece, std::ssize(text))};
      if (piece.Length() < kPiece || MayHoldControlByte(text.data() + at)) {
        AddControlBytes(text, piece, i, findings);
      }
    }
  }
}

}  // namespace

const Rule kControlCharacter = {
    .id = "control-character",
    .severity = Severity::kWarning,
    .summary = "a control character stands in the text",
    .explanation =
        "Tabs and line ends alone are expected in a script. Nobody sees any other "
        "control character.",
    .good = "define TROOPSTRENGTH 30 // strong\n",
    .bad = "define TROOPSTRENGTH 30 // str\001ng\n",
    .find = FindControlCharacters};

}  // namespace tessel::check
