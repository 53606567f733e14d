#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindStrayCommentEnds(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    for (const Stretch end : mod.Files()[i].StrayCommentEnds()) {
      findings.push_back(
          {.file = i, .range = end.AsRange(), .text = "\"*/\" closes no comment here"});
    }
  }
}

}  // namespace

const Rule kStrayCommentEnd = {
    .id = "stray-comment-end",
    .severity = Severity::kError,
    .summary = "\"*/\" stands outside of every comment",
    .explanation =
        "Comments do not stand in each other: the first \"*/\" ends the comment, "
        "whatever \"/*\" stands between.",
    .good = "/* old: define TROOPSTRENGTH 30 */\ndefine TROOPSTRENGTH 40\n",
    .bad = "/* old: /* weak */ define TROOPSTRENGTH 30 */\n",
    .find = FindStrayCommentEnds};

}  // namespace tessel::check
