#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindDefinesWithoutValue(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& define : file.Statements(language::Keyword::kDefine)) {
      const std::string_view value = file.WordText(define, 1);
      if (!value.empty() && value != "{" && value != "}") continue;
      const std::string_view name = file.WordText(define, 0);
      findings.push_back({.file = i,
                          .range = define.range.AsRange(),
                          .text = name.empty() ? "this define has no name and no value"
                                               : Quoted(name) + " has no value"});
    }
  }
}

}  // namespace

const Rule kDefineWithoutValue = {
    .id = "define-without-value",
    .severity = Severity::kError,
    .summary = "a define has no value",
    .explanation = "A define line is the keyword, a name and a value, all in one line.",
    .good = "define TROOPSTRENGTH 30\n",
    .bad = "define TROOPSTRENGTH\n30\n",
    .find = FindDefinesWithoutValue};

}  // namespace tessel::check
