#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindDefinesWithMore(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const Statement& define : file.Statements(language::Keyword::kDefine)) {
      if (define.words < 3) continue;
      findings.push_back({.file = i,
                          .range = WordsFrom(file, define, 2),
                          .text = Quoted(file.WordText(define, 0)) + " has more than one value"});
    }
  }
}

}  // namespace

const Rule kDefineWithMore = {
    .id = "define-with-more",
    .severity = Severity::kWarning,
    .summary = "a define has more than one value",
    .explanation =
        "Behind the value only a comment may follow. The settings panel takes the last "
        "word of the line for the value.",
    .good = "define TROOPSTRENGTH 30 // strong\n",
    .bad = "define TROOPSTRENGTH 30 strong\n",
    .find = FindDefinesWithMore};

}  // namespace tessel::check
