#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindDoubledDefines(const Mod& mod, Findings& findings) {
  for (const PlacedStatement& define : mod.RepeatedDefines()) {
    const std::string_view name = mod.Files()[define.file].WordText(*define.statement, 0);
    if (const auto first = mod.DefineOf(name)) {
      AddDoubled(mod, *first, define, Quoted(name), findings);
    }
  }
}

}  // namespace

const Rule kDoubledDefine = {
    .id = "doubled-define",
    .severity = Severity::kError,
    .summary = "a name is defined twice",
    .explanation =
        "A name stands for one number, whatever its case. The settings panel shows and "
        "changes the first define alone.",
    .good = "define TROOPSTRENGTH 30\ndefine PIGCOPSTRENGTH 100\n",
    .bad = "define TROOPSTRENGTH 30\ndefine TROOPSTRENGTH 40\n",
    .find = FindDoubledDefines};

}  // namespace tessel::check
