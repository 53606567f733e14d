#include "check/facts/SwitchComments.h"
#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindUnknownRules(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Switch& each : SwitchesIn(file)) {
      if (each.rule.IsEmpty() || RuleNamed(file.Text(each.rule)) != nullptr) continue;
      findings.push_back({.file = i,
                          .range = each.rule.AsRange(),
                          .text = "there is no rule " + Quoted(file.Text(each.rule))});
    }
  }
}

}  // namespace

const Rule kUnknownRule = {
    .id = "unknown-rule",
    .severity = Severity::kNote,
    .summary = "a comment switches a rule that there is not",
    .explanation =
        "\"// check: off RULE\" behind something is for that line; alone in its line it "
        "holds up to \"// check: on RULE\" or the end of the file. Without a rule it is "
        "for all of them.",
    .good = "define TROOPSTRENGTH lots // check: off panel-value randomizer-stops\n",
    .bad = "define TROOPSTRENGTH lots // check: off panel-values\n",
    .find = FindUnknownRules};

}  // namespace tessel::check
