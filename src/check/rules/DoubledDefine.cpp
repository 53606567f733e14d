#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindDoubledDefines(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& define : file.Statements(language::Keyword::kDefine)) {
      const std::string_view name = file.WordText(define, 0);
      const auto first = name.empty() ? std::nullopt : mod.DefineOf(name);
      if (!first || first->statement == &define) continue;
      AddDoubled(mod, *first, {i, &define}, Quoted(name), findings);
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
