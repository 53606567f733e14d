#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindStrayClosers(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    for (const language::Mark mark : mod.Files()[i].StrayClosers()) {
      const std::string_view word = language::GrammarOf(mark.keyword).word;
      findings.push_back({.file = i,
                          .range = {mark.begin, mark.begin + std::ssize(word)},
                          .text = Quoted(word) + " closes nothing that is open here"});
    }
  }
}

}  // namespace

const Rule kStrayCloser = {
    .id = "stray-closer",
    .severity = Severity::kError,
    .summary = "\"ends\", \"enda\" or \"}\" closes nothing",
    .explanation =
        "\"ends\" closes a state, \"enda\" an actor, and \"}\" the brace that was opened "
        "last in the same block.",
    .good = "actor TROOPER 30\n  fall\nenda\n",
    .bad = "actor TROOPER 30\n  fall\nends\nenda\n",
    .find = FindStrayClosers};

}  // namespace tessel::check
