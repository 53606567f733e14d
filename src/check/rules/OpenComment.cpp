#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "language/Reader.h"

namespace tessel::check {
namespace {

using language::Range;
using language::Reader;
using language::Token;
using language::TokenKind;

/// Whether a line begins with a keyword or a "//".
bool BeginsAnew(std::string_view line) {
  const Token token = Reader(line).Next();
  return token.kind == TokenKind::kLineComment ||
         (token.kind == TokenKind::kWord &&
          language::KeywordOf(language::Slice(line, token.range)));
}

bool IsBlankLine(std::string_view line) { return line.find_first_not_of(" \t") == line.npos; }

/// The comment was most likely meant to end in front of the next line that says something.
Position LikelyEnd(std::string_view text, Position opener) {
  Position end = LineAround(text, opener).end;
  for (Position at = NextLine(text, opener); at < std::ssize(text); at = NextLine(text, at)) {
    const Range line = LineAround(text, at);
    if (BeginsAnew(language::Slice(text, line))) break;
    if (!IsBlankLine(language::Slice(text, line))) end = line.end;
    if (line.end == std::ssize(text)) break;
  }
  return end;
}

void FindOpenComments(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    const auto comment = file.OpenComment();
    if (!comment) continue;
    const Position begin = comment->begin;
    const Position end = LikelyEnd(file.Text(), begin);
    findings.push_back({.file = i,
                        .range = {begin, begin + 2},
                        .text = "this comment is not closed: all that follows belongs to it",
                        .fix = Fix{"close the comment", {{{end, end}, " */"}}}});
  }
}

}  // namespace

const Rule kOpenComment = {
    .id = "open-comment",
    .severity = Severity::kError,
    .summary = "a block comment is not closed",
    .explanation =
        "A comment that begins with \"/*\" ends with the next \"*/\". Without one it "
        "takes in the rest of the file.",
    .good = "/* The strength of creatures. */\ndefine TROOPSTRENGTH 30\n",
    .bad = "/* The strength of creatures.\ndefine TROOPSTRENGTH 30\n",
    .find = FindOpenComments};

}  // namespace tessel::check
