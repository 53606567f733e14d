#include "check/rules/RuleHelp.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

void FindUnknownWords(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size(); ++i) {
    const FileFacts& file = mod.Files()[i];
    for (const WordFault& fault : file.WordFaults()) {
      if (fault.problem != WordProblem::kUnknown) continue;
      findings.push_back({.file = i,
                          .range = fault.word.AsRange(),
                          .text = Quoted(file.Text(fault.word)) + " is no script word"});
    }
  }
}

}  // namespace

const Rule kUnknownWord = {
    .id = "unknown-word",
    .severity = Severity::kError,
    .summary = "a word is no script word",
    .explanation =
        "Where a command is to stand, a word of the list of script words stands. Of a "
        "line with an unknown word the rest is not looked at. \"tessel words set\" adds "
        "a word to the list.",
    .good = "state bleed\n  spawn BLOOD\nends\n",
    .bad = "state bleed\n  sprawn BLOOD\nends\n",
    .find = FindUnknownWords};

}  // namespace tessel::check
