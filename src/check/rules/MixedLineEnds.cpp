#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"
#include "text/LineEnds.h"

namespace tessel::check {
namespace {

/// The first line break that is not of that kind.
language::Range OtherBreak(std::string_view text, LineEnd usual) {
  for (Position at = 0; at < std::ssize(text);) {
    const Position end = LineAround(text, at).end;
    const Position next = NextLine(text, at);
    if (next == end) break;
    const std::string_view lineBreak = language::Slice(text, {end, next});
    const LineEnd kind = lineBreak.size() == 2 ? LineEnd::kCrLf
                         : lineBreak == "\n"   ? LineEnd::kLf
                                               : LineEnd::kCr;
    if (kind != usual) return {end, next};
    at = next;
  }
  return {};
}

LineEnd UsualOf(const LineEnds& ends) {
  if (ends.crLf >= ends.lf && ends.crLf >= ends.cr) return LineEnd::kCrLf;
  return ends.lf >= ends.cr ? LineEnd::kLf : LineEnd::kCr;
}

void FindMixedLineEnds(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const std::string_view text = mod.Files()[i].Text();
    const LineEnds ends = LineEndsOf(text);
    if (!ends.Mixed()) continue;
    const LineEnd usual = UsualOf(ends);
    findings.push_back(
        {.file = i,
         .range = OtherBreak(text, usual),
         .text = std::string("most lines end with ") + NameOf(usual) + ", this one otherwise"});
  }
}

}  // namespace

const Rule kMixedLineEnds = {
    .id = "mixed-line-ends",
    .severity = Severity::kWarning,
    .summary = "lines end in different ways",
    .explanation =
        "All lines of a file end with CR LF, with LF, or with CR. The first line that "
        "ends otherwise than most is told.",
    .good = "define TROOPSTRENGTH 30\r\ndefine PIGCOPSTRENGTH 100\r\n",
    .bad = "define TROOPSTRENGTH 30\r\ndefine PIGCOPSTRENGTH 100\n",
    .find = FindMixedLineEnds};

}  // namespace tessel::check
